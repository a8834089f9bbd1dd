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
  enum Kind : unsigned char { Less = 0, LessOrEqual = 1, Equal = 2, NotEqual = 3, GreaterOrEqual = 4, Greater = 5 };

  ComparisonOperator() = default;
  ComparisonOperator(std::string_view text) {
    for (std::size_t i = 0; i < COMPARISON_OPERATORS.size(); ++i)
      if (COMPARISON_OPERATORS[i] == text) mKind = static_cast<Kind>(i);
  }

  Kind kind() const { return mKind; }
  bool operator()(float a, float b) const {
    switch (mKind) {
    case LessOrEqual:
      return a <= b;
    case Equal:
      return a == b; // exact on purpose
    case NotEqual:
      return a != b;
    case GreaterOrEqual:
      return a >= b;
    case Greater:
      return a > b;
    case Less:
      break;
    }
    return a < b;
  }

private:
  Kind mKind = Less;
};

/// Compares once, by the operator's text.
inline bool CompareValues(float a, float b, std::string_view operatorText) {
  return ComparisonOperator(operatorText)(a, b);
}

}
