#include "game_plugin/plugin/Plugin.h"

/// What the host calls after it has loaded the module. The caller owns the plug-in.
extern "C" QSF_API qsf::Plugin* CreatePluginInstance_tidemark_new();

qsf::Plugin* CreatePluginInstance_tidemark_new() { return new script::Plugin; }
