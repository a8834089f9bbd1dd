#include "game_plugin/scenario/hints/Hints.h"

#include "game_plugin/scenario/hints/ExecutionPoint.h"

#include "qsf/base/NearNames.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <tuple>

namespace script::hints {

namespace detail {
bool on = false;
}

namespace {

/// A faulty script can't fill the memory: what comes beyond is not told.
constexpr std::size_t MOST_PLACES = 10'000;

using Place = std::tuple<std::string, std::uint32_t, std::string>; ///< path, line, text

struct NameKey {
  const void* store;
  std::string name;
  auto operator<=>(const NameKey&) const = default;
};

struct Ledger {
  std::vector<Hint> hints;
  std::map<Place, std::size_t> byPlace;
  std::map<NameKey, std::vector<std::size_t>> reads; ///< hints that a write of the name withdraws
  std::map<NameKey, bool> written;
  std::map<std::size_t, std::string> readNames; ///< of hints about names, as meantName() gives them
  std::set<std::string> meant;
};

Ledger& ledger() {
  static Ledger theLedger;
  return theLedger;
}

/// A name that tells a script's local ones from those of all other scripts; a global one is one name, however its mark
/// is written.
std::string meantName(std::string_view name) {
  constexpr std::string_view MARK = "\xC2\xA7";
  const std::size_t mark = name.find('\xA7');
  if (mark == std::string_view::npos) return executionPoint.source->path() + '\n' + std::string(name);
  std::string global = "\n" + std::string(name);
  for (std::size_t at = global.find(MARK); at != std::string::npos; at = global.find(MARK))
    global.replace(at, MARK.size(), "\xA7");
  return global;
}

/// Index of the hint; nothing outside of scripts.
std::optional<std::size_t> add(HintKind kind, std::string text, std::string nearest) {
  const ScriptSource* source = executionPoint.source;
  if (!source) return std::nullopt;
  Ledger& all = ledger();
  const auto [place, isNew] =
      all.byPlace.try_emplace(Place(source->path(), executionPoint.line, text), all.hints.size());
  if (!isNew) {
    ++all.hints[place->second].count;
    return place->second;
  }
  if (all.hints.size() >= MOST_PLACES) {
    all.byPlace.erase(place);
    return std::nullopt;
  }
  all.hints.push_back({kind, source->path(), executionPoint.line, std::string(source->triggerAt(executionPoint.line)),
                       std::move(text), std::move(nearest)});
  return all.hints.size() - 1;
}

}

void switchTo(bool on) {
  ledger() = {};
  detail::on = on;
}

void tell(HintKind kind, std::string text, std::string nearest) {
  if (detail::on) add(kind, std::move(text), std::move(nearest));
}

void noteMeant(std::string_view name) {
  if (executionPoint.source) ledger().meant.insert(meantName(name));
}

bool noteRead(const void* store, std::string_view kind, std::string_view name) {
  NameKey key{store, std::string(name)};
  if (name.empty() || ledger().written.contains(key)) return false;
  if (executionPoint.source && ledger().meant.contains(meantName(name))) return false;
  const auto index =
      add(HintKind::NAME, "the " + std::string(kind) + " \"" + key.name + "\" is read, but nobody has written it", {});
  if (!index) return true;
  ledger().readNames.try_emplace(*index, meantName(name));
  std::vector<std::size_t>& reads = ledger().reads[std::move(key)];
  if (std::ranges::find(reads, *index) == reads.end()) reads.push_back(*index);
  return true;
}

void noteWritten(const void* store, std::string_view name) {
  NameKey key{store, std::string(name)};
  if (!ledger().written.try_emplace(key, true).second) return;
  const auto found = ledger().reads.find(key);
  if (found == ledger().reads.end()) return;
  for (const std::size_t index : found->second)
    ledger().hints[index].count = 0;
  ledger().reads.erase(found);
}

void forgetStore(const void* store) {
  Ledger& all = ledger();
  const auto erase = [store](auto& map) {
    auto at = map.lower_bound(NameKey{store, {}});
    while (at != map.end() && at->first.store == store)
      at = map.erase(at);
  };
  erase(all.reads);
  erase(all.written);
}

std::vector<Hint> all() {
  const Ledger& all = ledger();
  std::vector<Hint> told;
  for (std::size_t i = 0; i < all.hints.size(); ++i) {
    const auto name = all.readNames.find(i);
    const bool meant = name != all.readNames.end() && all.meant.contains(name->second);
    if (all.hints[i].count > 0 && !meant) told.push_back(all.hints[i]);
  }
  return told;
}

std::string nearest(std::string_view name, std::span<const std::string_view> candidates) {
  return nearest(std::string(name), std::vector<std::string>(candidates.begin(), candidates.end()));
}

std::string nearest(const std::string& name, const std::vector<std::string>& candidates) {
  const std::vector<std::string> names = qsf::findNearNames(name, candidates);
  return names.empty() ? std::string() : names.front();
}

}
