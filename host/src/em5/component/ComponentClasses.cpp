#include "em5/component/ComponentClasses.h"

#include "em5/freeplay/FreeplayEvent.h"
#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

void declareComponentClasses() { qsf::ClassRegistry::declareOnce<FreeplayEvent>(); }

}
