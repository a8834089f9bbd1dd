#pragma once
#include <array>
#include <cstddef>
#include <string_view>

namespace script {

/// The operators, in the order of ComparisonOperator::Kind.
inline constexpr std::array<std::string_view, 6> COMPARISON_OPERATORS = {"<", "<=", "==", "!=", ">=", ">"};

/// The comparison of all numeric conditions. Any text that is no operator of the table means less-than, without a
/// message.
class ComparisonOperator {
public:
  enum Kind : unsigned char {
    LESS = 0,
    LESS_OR_EQUAL = 1,
    EQUAL = 2,
    NOT_EQUAL = 3,
    GREATER_OR_EQUAL = 4,
    GREATER = 5
  };

  ComparisonOperator() = default;
  ComparisonOperator(std::string_view text) {
    for (std::size_t i = 0; i < COMPARISON_OPERATORS.size(); ++i)
      if (COMPARISON_OPERATORS[i] == text) mKind = static_cast<Kind>(i);
  }

  Kind kind() const { return mKind; }
  bool operator()(float a, float b) const {
    switch (mKind) {
    case LESS_OR_EQUAL:
      return a <= b;
    case EQUAL:
      return a == b; // exact on purpose
    case NOT_EQUAL:
      return a != b;
    case GREATER_OR_EQUAL:
      return a >= b;
    case GREATER:
      return a > b;
    case LESS:
      break;
    }
    return a < b;
  }

private:
  Kind mKind = LESS;
};

/// Compares once, by the operator's text.
inline bool CompareValues(float a, float b, std::string_view operatorText) {
  return ComparisonOperator(operatorText)(a, b);
}

}
