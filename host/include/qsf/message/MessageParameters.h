#pragma once
#include "qsf/message/MessageConfiguration.h"

#include <any>
#include <map>
#include <string>
#include <type_traits>

namespace qsf {

/// What listeners are handed: the message, named parameters (pointers and values of the sender), and a response that a
/// listener may set for the sender.
class QSF_API MessageParameters {
public:
  /// Response of a listener that forbids what the message announces.
  static constexpr int RESPONSE_BLOCK = 1;

  MessageParameters() = default;
  explicit MessageParameters(const MessageConfiguration& message) : mMessage(message) {}

  const MessageConfiguration& getMessage() const { return mMessage; }
  std::uint64_t getFilter(unsigned int number) const { return mMessage.getFilter(number); }

  template <typename T> void setParameter(const std::string& name, T value) { mParameters[name] = std::move(value); }
  /// A value from outside of the program: it can be read as a text, and as a number of any type that can hold it.
  void setParameterFromText(const std::string& name, std::string text) { mParameters[name] = Text{std::move(text)}; }
  /// False if there is no parameter of that name and type; `value` then stays as it was.
  template <typename T> bool getParameter(const std::string& name, T& value) const {
    const auto found = mParameters.find(name);
    if (found == mParameters.end()) return false;
    if (const T* typed = std::any_cast<T>(&found->second)) {
      value = *typed;
      return true;
    }
    if constexpr (std::is_same_v<T, std::string> || std::is_arithmetic_v<T>) {
      const Text* text = std::any_cast<Text>(&found->second);
      return text && convert(text->text, value);
    } else {
      return false;
    }
  }

  /// Listeners get the parameters as const; the response is theirs to set all the same.
  void setResponse(int response) const { mResponse = response; }
  int getResponse() const { return mResponse; }

private:
  struct Text {
    std::string text;
  };
  static bool convert(const std::string& text, std::string& value);
  static bool convert(const std::string& text, bool& value);
  static bool convert(const std::string& text, double& value);
  static bool convert(const std::string& text, std::int64_t& value);
  static bool convert(const std::string& text, std::uint64_t& value);
  template <typename T> static bool convert(const std::string& text, T& value) {
    using Widest = std::conditional_t<std::is_floating_point_v<T>, double,
                                      std::conditional_t<std::is_signed_v<T>, std::int64_t, std::uint64_t>>;
    Widest number{};
    if (!convert(text, number)) return false;
    if (!std::is_floating_point_v<T> && static_cast<Widest>(static_cast<T>(number)) != number) return false;
    value = static_cast<T>(number);
    return true;
  }

  MessageConfiguration mMessage;
  std::map<std::string, std::any> mParameters;
  mutable int mResponse = 0;
};

}
