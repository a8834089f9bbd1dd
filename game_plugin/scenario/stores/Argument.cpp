#include "game_plugin/scenario/stores/Argument.h"

#include "game_plugin/scenario/language/TextConversion.h"

#include <functional>

namespace script {

// Records outlive static destruction, and so do their texts: nothing here is ever destroyed.
ArgumentText** ArgumentTexts::sBlocks = nullptr;

namespace {

void classify(ArgumentText& info, std::string_view text) {
  info.text = text;
  info.isNumber = textToFloat(info.text, info.number);
  info.isGlobal = isGlobalName(text);
  info.isVariableReference = text.find("svar(") != std::string_view::npos;
  info.isReferenceGlobal = info.isVariableReference && isGlobalName(info.referencedName());
  std::vector<std::uint64_t> ids;
  if (textToIds(info.text, ids)) info.ids = std::make_unique<std::vector<std::uint64_t>>(std::move(ids));
}

/// Open addressing from a text's hash to its number; three quarters full at most.
class NumberTable {
public:
  static constexpr std::uint32_t EMPTY = ~0u;

  /// The place of the text: the one that holds its number, or the empty one where it belongs.
  std::uint32_t& find(std::string_view text, std::size_t hash) {
    for (std::size_t at = hash & (mSlots.size() - 1);; at = (at + 1) & (mSlots.size() - 1)) {
      Slot& slot = mSlots[at];
      if (slot.number == EMPTY) {
        slot.hash = static_cast<std::uint32_t>(hash);
        return slot.number;
      }
      if (slot.hash == static_cast<std::uint32_t>(hash) && ArgumentTexts::get(slot.number).text == text)
        return slot.number;
    }
  }
  void makeRoom(std::size_t used) {
    if (used * 4 < mSlots.size() * 3) return;
    std::vector<Slot> old(mSlots.size() * 2);
    old.swap(mSlots);
    for (const Slot& slot : old)
      if (slot.number != EMPTY) {
        std::size_t at = slot.hash & (mSlots.size() - 1);
        while (mSlots[at].number != EMPTY)
          at = (at + 1) & (mSlots.size() - 1);
        mSlots[at] = slot;
      }
  }

private:
  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t number = EMPTY;
  };
  std::vector<Slot> mSlots = std::vector<Slot>(1024);
};

}

std::uint32_t ArgumentTexts::intern(std::string_view text) {
  static NumberTable& numbers = *new NumberTable;
  static std::vector<ArgumentText*>& blocks = *new std::vector<ArgumentText*>;
  static std::uint32_t used = 0;

  const std::size_t hash = std::hash<std::string_view>()(text) & 0xFFFFFFFFu;
  std::uint32_t& number = numbers.find(text, hash);
  if (number != NumberTable::EMPTY) return number;
  if (used % BLOCK_SIZE == 0) {
    blocks.push_back(new ArgumentText[BLOCK_SIZE]);
    sBlocks = blocks.data();
  }
  const std::uint32_t made = used++;
  classify(sBlocks[made / BLOCK_SIZE][made % BLOCK_SIZE], text);
  number = made;
  numbers.makeRoom(used);
  return made;
}

Argument::Argument(std::string_view text) : mText(ArgumentTexts::intern(text)) {
  const ArgumentText& meaning = info();
  mEpoch = meaning.isNumber ? LITERAL_EPOCH : NO_EPOCH;
  mSlot = std::bit_cast<std::uint32_t>(meaning.number);
}

}
