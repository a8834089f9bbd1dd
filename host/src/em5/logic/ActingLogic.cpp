#include "em5/logic/ActingLogic.h"

#include "em5/base/Jobs.h"

namespace em5 {

void ActingLogic::onStartup() {
  mJob.registerAt(Jobs::SIMULATION_LOGIC,
                  [this](const qsf::JobArguments& arguments) { update(arguments.getTimePassed()); });
}

}
