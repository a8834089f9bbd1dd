#include "apps/tidemark/session/Places.h"

#include "apps/tidemark/text/Encoding.h"

#include <fmt/format.h>

namespace tidemark {

std::string fileNameOf(const std::string& path) { return toUtf8(path.substr(path.find_last_of("/\\") + 1)); }

std::string describe(const script::tooling::Origin& origin) {
  return fmt::format("{}:{}{}{}", fileNameOf(origin.path), origin.line, origin.trigger.empty() ? "" : " ",
                     toUtf8(origin.trigger));
}

std::string describe(const script::tooling::HintView& hint) {
  return hint.nearest.empty() ? toUtf8(hint.text)
                              : fmt::format("{} (did you mean \"{}\"?)", toUtf8(hint.text), toUtf8(hint.nearest));
}

std::string describe(const script::tooling::DroppedLineView& dropped) { return toUtf8(dropped.reason); }

}
