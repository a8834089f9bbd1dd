#pragma once
#include "game_plugin/scenario/hints/Hints.h"
#include "game_plugin/scenario/program/Argument.h"

#include "qsf/component/Component.h"

#include <exception>
#include <string>

namespace script {

// Hints on what a script names and the world doesn't have. Each is to be called only while hints::isOn().

/// None of the entities that were looked at has a component of that class, maybe since there is no such class.
void hintMissingComponent(const std::string& className);
/// The class, if there is none of that name at all.
void hintUnknownComponent(const std::string& className);
/// An access to a property failed: it isn't there, or doesn't take or give the value.
void hintFailedAccess(qsf::Component& component, const std::string& property, const std::exception& fault);
/// Those ids of a literal argument that have no entity. A list may well hold units that are gone; a literal can't.
void hintLiteralIds(const Argument& list);
/// An asset that no mounted project has. The type is the second part of its name, "prefab".
void hintMissingAsset(const std::string& localAssetName);
/// A layer that the map doesn't have.
void hintUnknownLayer(const std::string& layerName);
/// The sound, with the ending .ogg or without, if no mounted project has it.
void hintUnknownSound(const std::string& sourceFile);
/// The name, if there is no action class of that name.
void hintUnknownAction(const std::string& className);

}
