#pragma once
#include "game_plugin/scenario/program/Argument.h"
#include "game_plugin/scenario/program/CatalogueEntry.h"
#include "game_plugin/scenario/program/ParameterRole.h"
#include "game_plugin/scenario/program/RunState.h"
#include "game_plugin/syntax/ScriptTokenizer.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace script {

class ProgramBuilder;

/// The words that a parameter accepts.
using WordList = std::span<const std::string_view>;

/// What a reader says of a parameter when it describes instead of reading.
struct ParameterDocumentation {
  std::string_view type; ///< "string", "bool", "int", "float" or "uint64"
  std::string_view name;
  std::string defaultValue;
  std::string_view description;
  int index = 0; ///< position in the line, from 1
  ParameterRole role = ParameterRole::RAW;
  int componentIndex = 0;              ///< of a property: the parameter that names its component
  std::vector<std::string_view> words; ///< accepted ones, if the role has some
};

/// A parameter's text as it was read: a view into the line or the default. To keep it, assign it to an Argument.
class ParameterText : public std::string_view {
public:
  ParameterText(std::string_view text, ProgramBuilder* builder) : std::string_view(text), mBuilder(builder) {}

private:
  friend class Argument;
  ProgramBuilder* mBuilder; ///< null if the parameter was only described
};

/// Reads the parameters of one line for an entry, or describes them: an entry's `read` is the one place that knows its
/// parameters. Each operation takes the position in the line, from 1, the default, the parameter's name and its
/// description, and says by its name what the parameter means. A token that is missing gives the default, without a
/// message; with an empty name a missing token throws std::out_of_range, flags excepted. A token of the wrong type is
/// logged and gives the default.
class ParameterReader {
public:
  using Text = std::string_view;
  using Documentation = std::vector<ParameterDocumentation>;

  /// Reads a line into a program.
  ParameterReader(std::span<const syntax::Token> tokens, ProgramBuilder& builder)
      : mTokens(tokens), mBuilder(&builder) {}
  /// Describes, into the given list; needs neither a program nor a host.
  explicit ParameterReader(Documentation& documentation) : mDocumentation(&documentation) {}

  /// True while parameters are described: every operation gives its default then.
  bool isDescribing() const { return mDocumentation != nullptr; }
  /// The program that is being loaded; only while reading.
  ProgramBuilder& builder() const { return *mBuilder; }

  ParameterText number(int i, Text def, Text name, Text text) {
    return read(ParameterRole::NUMBER, i, def, name, text);
  }
  ParameterText variableIn(int i, Text def, Text name, Text text) {
    return read(ParameterRole::VARIABLE_IN, i, def, name, text);
  }
  ParameterText variableOut(int i, Text def, Text name, Text text) {
    return read(ParameterRole::VARIABLE_OUT, i, def, name, text);
  }
  ParameterText variableInOut(int i, Text def, Text name, Text text) {
    return read(ParameterRole::VARIABLE_IN_OUT, i, def, name, text);
  }
  ParameterText text(int i, Text def, Text name, Text text) { return read(ParameterRole::TEXT, i, def, name, text); }
  ParameterText stringVariableIn(int i, Text def, Text name, Text text) {
    return read(ParameterRole::STRING_VARIABLE_IN, i, def, name, text);
  }
  ParameterText stringVariableOut(int i, Text def, Text name, Text text) {
    return read(ParameterRole::STRING_VARIABLE_OUT, i, def, name, text);
  }
  ParameterText stringVariableInOut(int i, Text def, Text name, Text text) {
    return read(ParameterRole::STRING_VARIABLE_IN_OUT, i, def, name, text);
  }
  ParameterText list(int i, Text def, Text name, Text text) { return read(ParameterRole::LIST, i, def, name, text); }
  ParameterText listOut(int i, Text def, Text name, Text text) {
    return read(ParameterRole::LIST_OUT, i, def, name, text);
  }
  ParameterText listInOut(int i, Text def, Text name, Text text) {
    return read(ParameterRole::LIST_IN_OUT, i, def, name, text);
  }
  ParameterText trigger(int i, Text def, Text name, Text text) {
    return read(ParameterRole::TRIGGER, i, def, name, text);
  }
  ParameterText component(int i, Text def, Text name, Text text) {
    return read(ParameterRole::COMPONENT, i, def, name, text);
  }
  /// A property of the component that the parameter at `componentIndex` names.
  ParameterText property(int i, int componentIndex, Text def, Text name, Text text);
  ParameterText prefab(int i, Text def, Text name, Text text) {
    return read(ParameterRole::PREFAB, i, def, name, text);
  }
  ParameterText vector(int i, Text def, Text name, Text text) {
    return read(ParameterRole::VECTOR, i, def, name, text);
  }
  /// A text that stands for itself.
  ParameterText raw(int i, Text def, Text name, Text text) { return read(ParameterRole::RAW, i, def, name, text); }
  /// Read because scripts write it, without influence.
  ParameterText unused(int i, Text def, Text name, Text text) {
    return read(ParameterRole::UNUSED, i, def, name, text);
  }
  /// An operator of CompareValues.
  ParameterText comparison(int i, Text def, Text name, Text text);
  /// One of some words, which stand in the table that the entry looks it up in.
  ParameterText words(int i, Text def, Text name, Text text, WordList accepted);
  /// The same for an entry that turns the text into capitals before it looks it up; the table holds capitals.
  ParameterText wordsInAnyCase(int i, Text def, Text name, Text text, WordList accepted);
  /// A text of one of the seldom roles.
  ParameterText of(ParameterRole role, int i, Text def, Text name, Text text) { return read(role, i, def, name, text); }

  bool flag(int i, bool def, Text name, Text text);
  int integer(int i, int def, Text name, Text text, ParameterRole role = ParameterRole::INTEGER);
  float decimal(int i, float def, Text name, Text text);
  std::uint64_t id(int i, std::uint64_t def, Text name, Text text);

  /// Texts of a record that has any number of them, kept in the program; nothing while parameters are described.
  std::span<const Argument> keep(const std::vector<Argument>& texts) const;
  /// A place for what the record must remember from tick to tick, of its own in each run of the program.
  template <class T> RunState<T> state();

private:
  ParameterText read(ParameterRole role, int index, Text defaultValue, Text name, Text description);
  void documentWords(WordList accepted);
  void hintUnknownWord(Text word, Text compared, Text defaultValue, Text name, WordList accepted) const;
  /// The token at that position; null if it is missing and the default stands in for it.
  const syntax::Token* find(int index, Text name) const;
  template <class T> T convert(ParameterRole role, int index, T defaultValue, Text name, Text description);
  std::uint32_t reserveState();

  std::span<const syntax::Token> mTokens;
  ProgramBuilder* mBuilder = nullptr;
  Documentation* mDocumentation = nullptr;
};

template <class T> RunState<T> ParameterReader::state() { return RunState<T>(reserveState()); }

}
