#include "game_plugin/scenario/program/Argument.h"

#include "game_plugin/scenario/language/TextConversion.h"

#include <array>
#include <functional>
#include <new>

namespace script {

const ArgumentText ArgumentText::EMPTY;

ArgumentText::ArgumentText(std::string_view written) : text(written) {
  isNumber = textToFloat(text, number);
  isGlobal = isGlobalName(written);
  isVariableReference = written.find("svar(") != std::string_view::npos;
  isReferenceGlobal = isVariableReference && isGlobalName(referencedName());
  std::vector<std::uint64_t> read;
  if (textToIds(text, read)) ids = std::make_unique<std::vector<std::uint64_t>>(std::move(read));
}

/// Texts lie in blocks, so that they don't move and stand in the order of the script.
struct ArgumentTexts::Block {
  static constexpr std::size_t SIZE = 32;
  alignas(ArgumentText) std::array<std::byte, SIZE * sizeof(ArgumentText)> bytes;
  std::size_t used = 0;
  std::unique_ptr<Block> previous;

  ArgumentText* at(std::size_t index) {
    return std::launder(reinterpret_cast<ArgumentText*>(bytes.data() + index * sizeof(ArgumentText)));
  }
  ~Block() {
    while (used > 0)
      at(--used)->~ArgumentText();
  }
};

ArgumentTexts::ArgumentTexts() = default;

ArgumentTexts::~ArgumentTexts() {
  // One by one: blocks that own each other would be destroyed as deep as they are many.
  while (mLast)
    mLast = std::move(mLast->previous);
}

void ArgumentTexts::close() {
  mSlots.clear();
  mSlots.shrink_to_fit();
}

ArgumentText& ArgumentTexts::append(std::string_view text) {
  if (!mLast || mLast->used == Block::SIZE) {
    auto block = std::make_unique_for_overwrite<Block>();
    block->previous = std::move(mLast);
    mLast = std::move(block);
  }
  ArgumentText* made = new (mLast->bytes.data() + mLast->used * sizeof(ArgumentText)) ArgumentText(text);
  ++mLast->used;
  made->slot = mSize++;
  return *made;
}

ArgumentTexts::Slot& ArgumentTexts::find(std::string_view text, std::uint32_t hash) {
  for (std::size_t at = hash & (mSlots.size() - 1);; at = (at + 1) & (mSlots.size() - 1)) {
    Slot& slot = mSlots[at];
    if (!slot.text || (slot.hash == hash && slot.text->text == text)) return slot;
  }
}

void ArgumentTexts::grow() {
  std::vector<Slot> old(mSlots.empty() ? 64 : mSlots.size() * 2);
  old.swap(mSlots);
  for (const Slot& slot : old) {
    if (!slot.text) continue;
    std::size_t at = slot.hash & (mSlots.size() - 1);
    while (mSlots[at].text)
      at = (at + 1) & (mSlots.size() - 1);
    mSlots[at] = slot;
  }
}

const ArgumentText& ArgumentTexts::intern(std::string_view text) {
  if (text.empty()) return ArgumentText::EMPTY;
  if (std::size_t{mSize} * 4 >= mSlots.size() * 3) grow();
  const std::uint32_t hash = static_cast<std::uint32_t>(std::hash<std::string_view>()(text));
  Slot& slot = find(text, hash);
  if (!slot.text) {
    slot.hash = hash;
    slot.text = &append(text);
  }
  return *slot.text;
}

}
