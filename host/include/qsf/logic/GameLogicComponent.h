#pragma once
#include "qsf/component/Component.h"
#include "qsf/logic/GameLogic.h"

#include <memory>
#include <string>
#include <vector>

namespace qsf {

/// An entity's game logics, at most one of a class. Property "GameLogics": their class names with blanks between, in
/// the order of their making; setting it makes what is missing and deletes what isn't named, and a name of no game
/// logic is refused.
class QSF_API GameLogicComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::GameLogicComponent"};
  explicit GameLogicComponent(Prototype* prototype) : Component(prototype) {}
  ~GameLogicComponent() override;
  static void declareCamp();

  /// The entity's logic of that class, made if it isn't there. Null if no game logic class has that id; this is logged
  /// at severity 4.
  GameLogic* createGameLogicByTypeId(StringHash typeId);
  /// Null if the entity has none of that class, nor of one that derives from it; the first of several.
  GameLogic* getGameLogicByTypeId(StringHash typeId) const;
  template <class T> T* getGameLogic() const { return static_cast<T*>(getGameLogicByTypeId(T::GAME_LOGIC_ID)); }
  /// One that isn't there does nothing.
  void deleteGameLogicByTypeId(StringHash typeId);

protected:
  bool onStartup() override;
  void onShutdown() override;

private:
  std::string getNames() const;
  void setNames(const std::string& names);
  void start(GameLogic& logic) const;
  static void stop(GameLogic& logic);

  std::vector<std::unique_ptr<GameLogic>> mGameLogics;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::GameLogicComponent)
