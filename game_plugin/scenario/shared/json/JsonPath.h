#pragma once
#include <boost/property_tree/ptree_fwd.hpp>

#include <string>

namespace script {

/// Sets the value at a path whose keys are separated by dots; what is missing of it is made. A value that is there is
/// replaced, its children stay. Throws std::runtime_error for a path of more keys than MAXIMUM_JSON_DEPTH.
void putJsonValue(boost::property_tree::ptree& tree, const std::string& path, const std::string& value);
/// Adds a child at the path, behind one of the same key. Throws like putJsonValue.
void addJsonChild(boost::property_tree::ptree& tree, const std::string& path, const boost::property_tree::ptree& child);

}
