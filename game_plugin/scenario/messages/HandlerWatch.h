#pragma once

namespace script {

class ScenarioHandler;

/// Somebody outside the scripts who keeps handlers, such as a document whose buttons switch
/// triggers, or what messages have told each of them. Registered for as
/// long as it lives.
class HandlerWatch {
public:
  HandlerWatch(const HandlerWatch&) = delete;
  HandlerWatch& operator=(const HandlerWatch&) = delete;

  /// That script ends: whatever was kept of it goes. Called once or twice for a handler.
  virtual void forgetHandler(const ScenarioHandler* handler) = 0;

  /// For the handler that ends: tells all.
  static void tellAll(const ScenarioHandler* handler);

protected:
  HandlerWatch();
  ~HandlerWatch();
};

}
