#pragma once
#include "qsf/base/JsonFile.h"
#include "qsf/prototype/Prototype.h"

namespace qsf {

/// Reads an object of the form `{"ns::XComponent": {"Property": value}}` into components of the prototype, made where
/// they are missing and not started. Values are JSON texts, numbers, bools, or arrays of these; vectors and rotations
/// may be arrays of numbers. Throws LoadError at the first fault.
void readComponents(const JsonPlace& components, Prototype& prototype);

}
