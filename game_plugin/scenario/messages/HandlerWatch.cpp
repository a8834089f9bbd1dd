#include "game_plugin/scenario/messages/HandlerWatch.h"

#include <algorithm>
#include <vector>

namespace script {

namespace {

std::vector<HandlerWatch*>& watches() {
  static std::vector<HandlerWatch*> all;
  return all;
}

}

HandlerWatch::HandlerWatch() { watches().push_back(this); }

HandlerWatch::~HandlerWatch() { std::erase(watches(), this); }

void HandlerWatch::tellAll(const ScenarioHandler* handler) {
  for (std::size_t i = 0; i < watches().size(); ++i)
    watches()[i]->forgetHandler(handler);
}

}
