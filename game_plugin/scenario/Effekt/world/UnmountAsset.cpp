#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/asset/Project.h"

#include <boost/lexical_cast.hpp>

namespace script {

struct UnmountAssetEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Variables are too coarse for such an id: only a string variable can hold it.",
  };

  Argument assetId;
};

static void read(UnmountAssetEffect& effect, ParameterReader& in) {
  effect.assetId = in.text(1, "my number", "Global Asset Ids", "Global id of the asset");
}

static void unmount(std::uint64_t globalAssetId) {
  const qsf::AssetProxy proxy(globalAssetId);
  if (!proxy.getAsset())
    return logError("your provided Global Asset Id was not found or the mod which contains this asset is not mounted");
  if (qsf::AssetPackage* package = proxy.getAssetPackage()) package->unmountAssetByGlobalAssetId(globalAssetId);
}

static void run(const UnmountAssetEffect& effect, ScenarioHandler& handler) {
  const std::string text = handler.ResolveString(effect.assetId);
  try {
    unmount(boost::lexical_cast<std::uint64_t>(text));
  } catch (const boost::bad_lexical_cast& fault) {
    logError(std::string("Your provided Global Asset Id is not a number... ") + fault.what() + " (" + text + ")");
  }
}

EFFECT(UnmountAsset, "Units", "Takes an asset away, as if its project didn't have it")

}
