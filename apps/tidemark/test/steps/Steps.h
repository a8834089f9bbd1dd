#pragma once
#include "apps/tidemark/test/TestPlan.h"
#include "apps/tidemark/test/directives/Words.h"

#include <initializer_list>
#include <string_view>

namespace tidemark::test {

/// The readers of what stands behind `@at T`, `@expect`, `@entity` and `@set`. All throw DirectiveError and leave no
/// words.
Action readAction(WordCursor& words);
Expectation readExpectation(WordCursor& words);
/// All entities are made before any gets its components and properties, so that these may name each other.
struct EntityDirective {
  Action make;
  Action equip;
};
EntityDirective readEntityDirective(WordCursor& words);
Action readSetDirective(WordCursor& words);

/// `[N times|never]`, at least once if nothing stands there.
struct Times {
  std::optional<std::uint64_t> exactly;
  bool holds(std::uint64_t count) const { return exactly ? count == *exactly : count > 0; }
};
Times takeTimes(WordCursor& words);
/// True if nothing but `never` or `N times` is left.
bool atTimes(const WordCursor& words);

/// `[vendor TEXT] [buttons N] [axes N]`.
qsf::GamepadModel takeGamepadModel(WordCursor& words);

/// A path in JSON; none in front of `size N` is the empty one.
std::string takeJsonPath(WordCursor& words);
/// The path whose number of children `PATH.size` or `size` asks for; nothing if it doesn't.
std::optional<std::string> jsonPathBeforeSize(const std::string& path);

/// `within EPS` if it is next. Throws for a negative one.
std::optional<double> takeWithin(WordCursor& words);

/// An entity: an id, or `NAME[I]`, the I-th id of a list of main.
struct EntityReference {
  std::uint64_t id = 0;
  std::string list;
  std::size_t index = 0;
};
std::optional<EntityReference> parseEntityReference(std::string_view text);
EntityReference takeEntityReference(WordCursor& words);
std::vector<EntityReference> takeEntityReferences(WordCursor& words);
/// True if an entity stands next and one of the keywords behind it.
bool peekEntityForm(const WordCursor& words, std::initializer_list<std::string_view> keywords);

/// `OP NUMBER [within EPS]`, OP being one of == != < <= > >=, the distance going with the first two.
struct Comparison {
  std::string operation;
  double expected = 0;
  std::optional<double> within;
  /// Compares as numbersMatch does.
  bool holds(double found) const;
};
/// Throws DirectiveError for another operator.
Comparison takeComparison(WordCursor& words);

/// Equal, or no further apart than `within`; not-a-number equals itself. Compares as the 32-bit floats that scripts
/// count with.
bool numbersMatch(double expected, double found, std::optional<double> within);

}
