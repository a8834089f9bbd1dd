#pragma once
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace script {

/// What a hint is about.
enum class HintKind : unsigned char {
  WORD,       ///< a word that an entry doesn't know
  OPERATOR,   ///< an operator that falls back to less-than
  CONVERSION, ///< a text that doesn't convert
  COMPONENT,  ///< a component that isn't there
  PROPERTY,   ///< a property that isn't there, or doesn't take the value
  ENTITY,     ///< an id without an entity
  ASSET,      ///< an asset that nobody has
  NAME,       ///< a name that is read and that nobody has ever written
  LINK,       ///< a link that is refused
  NETWORK     ///< what other machines get to see otherwise
};

/// Something that the language passes over without a word, at one place of a script.
struct Hint {
  HintKind kind;
  std::string path;    ///< the script's file
  std::uint32_t line;  ///< from 1
  std::string trigger; ///< local name of the trigger that the line belongs to
  std::string text;
  std::string nearest; ///< the nearest right name; empty if none comes close
  std::uint64_t count = 1;
};

/// What tools tell authors beside the log, which stays as the game would write it. Off, a hint costs a test of one
/// bool, and only where something is passed over; on, a place is told of once, with a count.
namespace hints {

namespace detail {
extern bool on;
}

inline bool isOn() { return detail::on; }
/// Switches hints for all scripts; what was collected is forgotten.
void switchTo(bool on);
/// Tells of the line at work (see ExecutionPoint). Nothing happens outside of scripts, or while hints are off.
void tell(HintKind kind, std::string text, std::string nearest = {});
/// The line at work names what it is going to write, or leaves a name at its default: nobody has mistyped that name,
/// whether the line ever runs or not. Local names are those of the line's script.
void noteMeant(std::string_view name);
/// A name was read before anybody wrote it: a hint that is withdrawn if somebody does, or was meant to. The kind of
/// store is "variable", "string variable" or "list"; its address tells stores apart. False if the name has been written
/// or is meant.
bool noteRead(const void* store, std::string_view kind, std::string_view name);
void noteWritten(const void* store, std::string_view name);
/// The store is no more; what was read from it in vain stays a hint.
void forgetStore(const void* store);

/// All hints so far, in the order of their first telling.
std::vector<Hint> all();

/// The candidate that comes nearest to a mistyped name; empty if none does.
std::string nearest(std::string_view name, std::span<const std::string_view> candidates);
std::string nearest(const std::string& name, const std::vector<std::string>& candidates);

}

}
