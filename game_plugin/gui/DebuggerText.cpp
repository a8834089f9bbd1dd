#include "game_plugin/gui/DebuggerText.h"

#include "game_plugin/scenario/language/TextConversion.h"
#include "game_plugin/scenario/lifecycle/MapScriptManager.h"
#include "game_plugin/syntax/ScriptText.h"

#include <fstream>
#include <iterator>

namespace script {

std::string escapeRml(std::string_view text) {
  std::string escaped;
  escaped.reserve(text.size());
  for (const char c : text) {
    switch (c) {
    case '&':
      escaped += "&amp;";
      break;
    case '<':
      escaped += "&lt;";
      break;
    case '>':
      escaped += "&gt;";
      break;
    case '"':
      escaped += "&quot;";
      break;
    default:
      escaped += c;
    }
  }
  return escaped;
}

namespace {

/// From the entry's name, with its `!`, to the bracket that closes its parameters.
std::string_view withoutRest(std::string_view line) {
  const std::size_t begin = line.find_first_not_of(' ');
  if (begin == std::string_view::npos) return {};
  const std::size_t end = line.rfind(')');
  return line.substr(begin, end == std::string_view::npos ? end : end + 1 - begin);
}

}

EntryTexts::EntryTexts(std::shared_ptr<const Program> program) : mProgram(std::move(program)) {
  std::ifstream file(mProgram->path(), std::ios::binary);
  const std::string content((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  syntax::ScriptText script(content);
  while (script.next()) {
    const syntax::Line& line = script.line();
    const bool isEntry = line.kind == syntax::LineKind::CONDITION || line.kind == syntax::LineKind::EFFECT;
    if (isEntry && !line.tokens.empty())
      mEntries[line.number] = {std::string(line.tokens[0].text), std::string(withoutRest(line.text))};
  }
}

std::string EntryTexts::at(std::uint32_t line, std::string_view entryName) const {
  const auto found = mEntries.find(line);
  if (found == mEntries.end() || found->second.name != entryName) return std::string(entryName);
  return found->second.text;
}

namespace {

/// RML that ends with three dots before a document refuses it: scripts may have any number of triggers and variables.
class BoundedRml {
public:
  explicit BoundedRml(std::string_view begin) : mText(begin) {}
  bool isFull() const { return mFull; }
  /// A piece with its number of elements. False if it isn't taken.
  bool add(std::string_view piece, std::size_t elements) {
    if (mFull) return false;
    mElements += elements;
    mFull = mElements > MOST_ELEMENTS || mText.size() + piece.size() > MOST_BYTES;
    mText += mFull ? "..." : piece;
    return !mFull;
  }
  /// Ends of elements that were taken; they always have room.
  void close(std::string_view tags) { mText += tags; }
  std::string take() { return std::move(mText); }

private:
  static constexpr std::size_t MOST_ELEMENTS = 5000;
  static constexpr std::size_t MOST_BYTES = 1000000;
  std::string mText;
  std::size_t mElements = 0;
  bool mFull = false;
};

}

std::string scriptListRml(const std::vector<MapScriptEntry*>& entries) {
  BoundedRml rml("Active Mapscripts<br/><br/>");
  for (std::size_t i = 0; i < entries.size(); ++i)
    if (entries[i]->handler)
      rml.add("<span class=\"script\" onclick=\"script\" id=\"" + std::to_string(i) + "\">" +
                  escapeRml(entries[i]->path) + "</span><br/>",
              2);
  return rml.take();
}

namespace {

/// The last evaluation stopped at the first condition that no longer counts, unless enough had held.
std::string_view classOfCondition(std::size_t index, std::uint32_t held, std::int32_t required) {
  if (index < held) return "active";
  return index == held && static_cast<std::int64_t>(held) < required ? "fail" : "inactive";
}

constexpr const char* INDENTED = "<span style=\"padding-left: 15px;\"";

void addOpenTrigger(BoundedRml& rml, const ScenarioTrigger& trigger, const EntryTexts& texts) {
  if (!rml.add("<div style=\"padding-left: 15px;\"><span>Conditions:<br/>", 3)) return;
  std::size_t index = 0;
  for (const DefaultCondition* condition : trigger.program->conditions) {
    const std::string_view state =
        classOfCondition(index++, trigger.fulfilledConditions, trigger.program->requiredConditions);
    rml.add(std::string(INDENTED) + " class=\"" + std::string(state) + "\">" +
                escapeRml(texts.at(condition->line, condition->name())) + "</span><br/>",
            2);
  }
  rml.add("Effects:<br/>", 1);
  for (const DefaultEffect* effect : trigger.program->effects)
    rml.add(std::string(INDENTED) + ">" + escapeRml(texts.at(effect->line, effect->name())) + "</span><br/>", 2);
  rml.close("</span></div>");
}

std::string triggerRml(const ScenarioTrigger& trigger) {
  const std::string name = escapeRml(trigger.name());
  return "<span id=\"" + name + "\" onclick=\"triggerinfo\" class=\"" + (trigger.active ? "active" : "inactive") +
         " script\">" + name + " Last Time Active: " + floatToText(trigger.lastTimeActive.getSeconds()) +
         " True Conditions/Required Conditions (" + std::to_string(trigger.fulfilledConditions) + "/" +
         std::to_string(trigger.program->requiredConditions) + ") " + (trigger.looped ? " Looped: true" : "") +
         "</span><br/>";
}

/// A long text of a script with its beginning only.
std::string shorten(const std::string& text) {
  constexpr std::size_t MOST_BYTES = 5000;
  return text.size() <= MOST_BYTES ? text : text.substr(0, MOST_BYTES) + "...";
}

}

std::string triggersRml(const ScriptDocument& document, const EntryTexts& texts, const std::string& openTrigger) {
  BoundedRml rml("");
  for (const ScenarioTrigger& trigger : document.triggers) {
    rml.add(triggerRml(trigger), 2);
    if (trigger.name() == openTrigger) addOpenTrigger(rml, trigger, texts);
    if (rml.isFull()) break;
  }
  return rml.take();
}

std::string variablesRml(const ScenarioHandler& handler) {
  // The headings' spelling is kept; so is that string variables stand side by side.
  BoundedRml rml("Varibales: <br/><br/>");
  for (std::size_t i = 0; i < handler.variables.size() && !rml.isFull(); ++i)
    rml.add(escapeRml(shorten(handler.variables.name(i))) + ": " + floatToText(handler.variables.value(i)) + "<br/>",
            1);
  rml.add("<br/><br/> StringVaribales: <br/><br/>", 4);
  for (std::size_t i = 0; i < handler.stringVariables.size() && !rml.isFull(); ++i)
    rml.add(escapeRml(shorten(handler.stringVariables.name(i))) + ": " +
                escapeRml(shorten(handler.stringVariables.value(i))),
            0);
  rml.add("<br/><br/> EntityLists: <br/><br/>", 4);
  for (std::size_t i = 0; i < handler.entityLists.size() && !rml.isFull(); ++i) {
    rml.add(escapeRml(shorten(handler.entityLists.name(i))) + ": ", 0);
    const char* separator = "";
    for (const std::uint64_t id : handler.entityLists.value(i).ids()) {
      const std::string number = std::to_string(id);
      rml.add(separator + ("<span onclick=\"entityselected\" id=\"" + number) + "\" class=\"script\">" + number +
                  "</span>",
              1);
      separator = " | ";
    }
    rml.add("<br/><br/>", 2);
  }
  return rml.take();
}

std::string playerLogRml(std::string_view headline, const std::vector<std::string>& lines) {
  BoundedRml rml(headline);
  for (const std::string& line : lines)
    rml.add(escapeRml(shorten(line)) + "<br/>", 1);
  return rml.take();
}

}
