#include "em5/application/Application.h"

namespace em5 {

Application::Wishes Application::takeWishes() {
  const Wishes wishes{mStartGameTriggered, mEndGameTriggered};
  mStartGameTriggered = mEndGameTriggered = false;
  return wishes;
}

}
