#pragma once
#include "game_plugin/scenario/stores/Store.h"

#include <boost/property_tree/ptree.hpp>

namespace script {

/// The JSON variables of a script. In a header of its own, since property trees are slow to compile.
struct JsonStore {
  Store<boost::property_tree::ptree> entries;
};

}
