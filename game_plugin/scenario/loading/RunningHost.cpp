#include "game_plugin/scenario/loading/RunningHost.h"

#include "qsf/Qsf.h"
#include "qsf/input/InputSystem.h"

namespace script {

std::vector<std::string> RunningHost::mouseButtons() const {
  std::vector<std::string> descriptions;
  if (const qsf::Qsf* host = qsf::Qsf::instance())
    for (const qsf::InputButton* button : host->getInputSystem().getMouse().getButtons())
      descriptions.push_back(button->getDescription());
  return descriptions;
}

}
