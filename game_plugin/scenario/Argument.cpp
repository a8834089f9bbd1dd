#include "game_plugin/scenario/Argument.h"

#include "game_plugin/scenario/TextConversion.h"

#include <functional>
#include <unordered_set>

namespace script {

namespace {

struct TextHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
  std::size_t operator()(const std::unique_ptr<ArgumentText>& text) const { return (*this)(text->text); }
};
struct TextEqual {
  using is_transparent = void;
  static std::string_view view(std::string_view text) { return text; }
  static std::string_view view(const std::unique_ptr<ArgumentText>& text) { return text->text; }
  template <class A, class B> bool operator()(const A& a, const B& b) const { return view(a) == view(b); }
};
using TextPool = std::unordered_set<std::unique_ptr<ArgumentText>, TextHash, TextEqual>;

std::unique_ptr<ArgumentText> classify(std::string_view text) {
  auto info = std::make_unique<ArgumentText>();
  info->text = text;
  info->isNumber = textToFloat(info->text, info->number);
  info->isGlobal = isGlobalName(text);
  info->isVariableReference = text.find("svar(") != std::string_view::npos;
  if (info->isVariableReference) {
    info->referencedName = std::string_view(info->text).substr(5);
    info->isReferenceGlobal = isGlobalName(info->referencedName);
  }
  std::vector<std::uint64_t> ids;
  if (textToIds(info->text, ids)) info->ids = std::make_unique<std::vector<std::uint64_t>>(std::move(ids));
  return info;
}

const ArgumentText* intern(std::string_view text) {
  static TextPool& pool = *new TextPool; // records outlive static destruction
  auto found = pool.find(text);
  if (found == pool.end()) found = pool.insert(classify(text)).first;
  return found->get();
}

}

Argument::Argument(std::string_view text) : mText(intern(text)) {
  mEpoch = mText->isNumber ? LITERAL_EPOCH : NO_EPOCH;
  mSlot = std::bit_cast<std::uint32_t>(mText->number);
}

}
