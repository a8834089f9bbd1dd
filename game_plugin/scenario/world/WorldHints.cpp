#include "game_plugin/scenario/world/WorldHints.h"

#include "game_plugin/scenario/world/EntityAccess.h"

#include "qsf/Qsf.h"
#include "qsf/asset/AssetProxy.h"
#include "qsf/asset/Project.h"
#include "qsf/map/LayerManager.h"
#include "qsf/reflection/ClassRegistry.h"

#include <camp/class.hpp>
#include <camp/errors.hpp>
#include <camp/property.hpp>
#include <camp/userobject.hpp>

namespace script {

namespace {

std::vector<std::string> componentClasses() {
  std::vector<std::string> names;
  for (std::size_t i = 0; i < camp::classCount(); ++i) {
    const std::string& name = camp::classByIndex(i).name();
    if (name.ends_with("Component")) names.push_back(name);
  }
  return names;
}

bool isClass(const std::string& name) {
  for (std::size_t i = 0; i < camp::classCount(); ++i)
    if (camp::classByIndex(i).name() == name) return true;
  return false;
}

}

void hintUnknownComponent(const std::string& className) {
  if (!isClass(className))
    hints::tell(HintKind::COMPONENT, "there is no component \"" + className + "\"",
                hints::nearest(className, componentClasses()));
}

void hintMissingComponent(const std::string& className) {
  if (isClass(className))
    hints::tell(HintKind::COMPONENT, "no entity of the list has the component \"" + className + "\"");
  else
    hintUnknownComponent(className);
}

void hintFailedAccess(qsf::Component& component, const std::string& property, const std::exception& fault) {
  const camp::UserObject object(component);
  const camp::Class& type = object.getClass();
  if (type.hasProperty(property))
    return hints::tell(HintKind::PROPERTY, "the property \"" + property + "\" of " + type.name() +
                                               " is not what it is used as: " + fault.what());
  std::vector<std::string> names;
  for (std::size_t i = 0; i < type.propertyCount(); ++i)
    names.push_back(type.property(i).name());
  hints::tell(HintKind::PROPERTY, "the component " + type.name() + " has no property \"" + property + "\"",
              hints::nearest(property, names));
}

void hintLiteralIds(const Argument& list) {
  if (!list.info().ids) return;
  for (const std::uint64_t id : *list.info().ids)
    if (!findEntity(id)) hints::tell(HintKind::ENTITY, "there is no entity " + std::to_string(id));
}

void hintMissingAsset(const std::string& localAssetName) {
  const std::size_t typeBegin = localAssetName.find('/') + 1;
  const std::string type = localAssetName.substr(typeBegin, localAssetName.find('/', typeBegin) - typeBegin);
  const qsf::Qsf* host = qsf::Qsf::instance();
  hints::tell(HintKind::ASSET, "no project has the asset \"" + localAssetName + "\"",
              host ? hints::nearest(localAssetName, host->getProjectManager().getAssetNamesByType(type)) : "");
}

void hintUnknownLayer(const std::string& layerName) {
  const qsf::Qsf* host = qsf::Qsf::instance();
  if (!host) return;
  std::vector<std::string> names;
  for (const qsf::Layer* layer : host->getLayerManager().getLayers())
    names.push_back(layer->getName());
  hints::tell(HintKind::NAME, "the map has no layer \"" + layerName + "\"", hints::nearest(layerName, names));
}

void hintUnknownSound(const std::string& sourceFile) {
  constexpr std::string_view ENDING = ".ogg";
  std::string name = sourceFile;
  if (name.ends_with(ENDING)) name.resize(name.size() - ENDING.size());
  if (!qsf::AssetProxy(name).getAsset()) hintMissingAsset(name);
}

void hintUnknownAction(const std::string& className) {
  if (qsf::ClassRegistry::findClass(qsf::StringHash(className))) return;
  std::vector<std::string> names;
  for (const camp::Class* type : qsf::ClassRegistry::getClasses())
    if (type->name().ends_with("Action")) names.push_back(type->name());
  hints::tell(HintKind::WORD, "there is no action \"" + className + "\"", hints::nearest(className, names));
}

}
