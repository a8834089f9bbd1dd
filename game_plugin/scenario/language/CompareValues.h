#pragma once
#include <string_view>

namespace script {

/// The comparison of all numeric conditions. Any text that is no operator of the table means less-than, without a
/// message.
class ComparisonOperator {
public:
  enum Kind : unsigned char { Less = 0, LessOrEqual = 1, Equal = 2, NotEqual = 3, GreaterOrEqual = 4, Greater = 5 };

  ComparisonOperator() = default;
  ComparisonOperator(std::string_view text)
      : mKind(text == "<="   ? LessOrEqual
              : text == "==" ? Equal
              : text == "!=" ? NotEqual
              : text == ">=" ? GreaterOrEqual
              : text == ">"  ? Greater
                             : Less) {}

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
