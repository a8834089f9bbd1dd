#include "em5/freeplay/EventDefinition.h"

#include "em5/base/JsonMembers.h"
#include "em5/freeplay/FreeplayEventFactory.h"
#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

namespace {

qsf::StringHash factoryOf(const qsf::JsonPlace& root) {
  const std::string name = textOr(root, "factory", "em5::FreeplayEventFactory");
  const camp::Class* type = qsf::ClassRegistry::findClass(qsf::StringHash(name));
  // A factory is a class that the module brings; without the module there is none of its name.
  if (!type) root.member("factory").fail("there is no event factory \"" + name + "\"");
  return qsf::StringHash(name);
}

std::string textOf(const qsf::JsonPlace& value) {
  if (value.getValue().is_boolean()) return value.asBool() ? "1" : "0";
  if (value.getValue().is_number()) return value.getValue().dump();
  return value.asText();
}

}

EventProperties asEventProperties(const qsf::JsonPlace& place) {
  EventProperties properties;
  place.expectObject();
  place.eachMember(
      [&](const std::string& key, const qsf::JsonPlace& value) { properties.emplace_back(key, textOf(value)); });
  return properties;
}

EventDefinition readEventDefinition(const qsf::BaseAsset& asset) {
  const std::string file = asset.getFile();
  const qsf::Json json = qsf::readJsonFile(file);
  const qsf::JsonPlace root(json, file);
  root.expectObject({"name", "factory", "properties", "variants", "supervisorMessage", "succeedsAfter", "failsAfter",
                     "canWin", "canLose"});
  const NumberRange times{0, LONGEST_EVENT_TIME};
  EventDefinition definition;
  definition.asset = asset.getName();
  definition.name = textOr(root, "name", asset.getName().substr(asset.getName().rfind('/') + 1));
  definition.factory = factoryOf(root);
  definition.supervisorMessage = textOr(root, "supervisorMessage", "");
  definition.succeedsAfter = qsf::Time::fromSeconds(numberOr(root, "succeedsAfter", times, 0));
  definition.failsAfter = qsf::Time::fromSeconds(numberOr(root, "failsAfter", times, 0));
  definition.canWin = boolOr(root, "canWin", true);
  definition.canLose = boolOr(root, "canLose", true);
  if (root.has("properties")) definition.properties = asEventProperties(root.member("properties"));
  if (root.has("variants")) {
    const qsf::JsonPlace variants = root.member("variants");
    variants.expectArray();
    for (std::size_t i = 0; i < variants.size(); ++i)
      definition.variants.push_back(asEventProperties(variants.element(i)));
  }
  return definition;
}

const qsf::BaseAsset* findAssetOfType(const std::string& localAssetName, const std::string& type) {
  const std::size_t slash = localAssetName.find('/');
  if (slash == std::string::npos || localAssetName.compare(slash + 1, type.size() + 1, type + "/") != 0) return nullptr;
  return qsf::AssetProxy(localAssetName).getAsset();
}

}
