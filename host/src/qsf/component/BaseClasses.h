#pragma once

namespace qsf {

/// Declares to CAMP what the reflected classes derive from: qsf::Object, Prototype, Component, Action. They can't be
/// made by name, so the class registry doesn't know them. Qsf calls it before ClassRegistry::declareAll; calling it
/// again does no harm.
void declareBaseClasses();

}
