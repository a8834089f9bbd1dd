#pragma once
#include "qsf/plugin/Plugin.h"

namespace em5 {

/// The game version that plug-ins of this source tree are built for.
class QSF_API PluginVersion : public qsf::PluginVersion {
public:
  std::string getText() const override;
};

}
