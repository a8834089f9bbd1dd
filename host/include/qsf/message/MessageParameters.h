#pragma once
#include "qsf/message/MessageConfiguration.h"

#include <any>
#include <map>
#include <string>

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
  /// False if there is no parameter of that name and type; `value` then stays as it was.
  template <typename T> bool getParameter(const std::string& name, T& value) const {
    const auto found = mParameters.find(name);
    const T* typed = found == mParameters.end() ? nullptr : std::any_cast<T>(&found->second);
    if (typed) value = *typed;
    return typed != nullptr;
  }

  /// Listeners get the parameters as const; the response is theirs to set all the same.
  void setResponse(int response) const { mResponse = response; }
  int getResponse() const { return mResponse; }

private:
  MessageConfiguration mMessage;
  std::map<std::string, std::any> mParameters;
  mutable int mResponse = 0;
};

}
