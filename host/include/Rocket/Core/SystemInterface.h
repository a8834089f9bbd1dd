#pragma once
#include "Rocket/Core/String.h"

#include <functional>

namespace Rocket::Core {

/// What the documents need of the program that shows them.
class QSF_API SystemInterface {
public:
  virtual ~SystemInterface() = default;
  virtual void LogWarning(const String& message) = 0;
  /// The text of a file that a document names; false if there is none.
  virtual bool LoadFile(const String& path, String& text) = 0;
  /// Makes the call; what it throws is logged with the source.
  virtual void CallGuarded(const std::function<void()>& call, const String& source) = 0;
};

/// Whoever makes it owns it. Null at first, and again when it goes: then documents keep their warnings to themselves.
QSF_API SystemInterface* GetSystemInterface();
QSF_API void SetSystemInterface(SystemInterface* system);

}
