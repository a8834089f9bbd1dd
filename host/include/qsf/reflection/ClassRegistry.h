#pragma once
#include "qsf/base/StringHash.h"

#include <camp/class.hpp>
#include <camp/userobject.hpp>

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace qsf {

class Component;
class Prototype;

/// The declared classes that the host can make and find by the hash of their name: components, actions, commands. One
/// per process, since CAMP's own table is: a class stays known from one host to the next. Plug-ins add theirs through
/// Plugin::addCampClass; they go when the plug-in goes.
class QSF_API ClassRegistry {
public:
  /// Makes a component of a class with `new`. Much faster than the class's own constructor in CAMP.
  using ComponentMaker = Component* (*)(Prototype* owner);

  /// Adds a class under the hash of its name. A class that is there already is not added again. The running host
  /// remembers the name of the hash.
  static void addClass(const camp::Class& campClass, ComponentMaker maker = nullptr);
  /// Lets a class be found under another name, too. A name that is taken stays as it is.
  static void addOtherName(const camp::Class& campClass, const std::string& name);
  /// With its other names. A class that isn't there does nothing.
  static void removeClass(const camp::Class& campClass);
  /// Null if there is none. Declared classes that were never added are not found.
  static const camp::Class* findClass(StringHash id);
  static bool isOrDerivesFrom(const camp::Class& metaclass, const camp::Class& base);
  /// All classes, by name.
  static const std::vector<const camp::Class*>& getClasses();

  /// Null if the class isn't known, is no component, or was added without one; then CAMP's constructor serves.
  static ComponentMaker findComponentMaker(StringHash id);

  /// A new object of the class of that id. Null if there is none, if it isn't T and doesn't derive from it, or if it
  /// can't be made without arguments; the latter is logged.
  template <class T> static std::unique_ptr<T> createObject(StringHash id) {
    const camp::UserObject made = construct(id, camp::classByType<T>());
    return std::unique_ptr<T>(made.pointer() ? made.get<T*>() : nullptr);
  }

  /// Declares a class with its static declareCamp() unless that was done before in this process, and adds it.
  /// Declaring a class twice is an error in CAMP.
  template <class T> static void declareOnce() {
    static const bool declared = (T::declareCamp(), true);
    static_cast<void>(declared);
    addClass(camp::classByType<T>(), getMaker<T>());
  }

  /// Declares and adds all classes that have a DeclaredClass. Called by every host; in a process, only the first call
  /// declares.
  static void declareAll();

private:
  template <class T> friend class DeclaredClass;
  template <class T> static constexpr ComponentMaker getMaker() {
    if constexpr (std::is_convertible_v<T*, Component*> && std::is_constructible_v<T, Prototype*>)
      return [](Prototype* owner) -> Component* { return new T(owner); };
    else
      return nullptr;
  }
  static void addDeclaration(void (*declare)());
  static camp::UserObject construct(StringHash id, const camp::Class& base);
};

/// Makes a class of the host's own known to every host: a constant of this type stands in the class's source, above its
/// declareCamp(). Nothing else lists the class. One whose base isn't Component, Action or Object first calls
/// `ClassRegistry::declareOnce<Base>()` in its declareCamp(), as the order among the classes is open.
template <class T> class DeclaredClass {
public:
  DeclaredClass() { ClassRegistry::addDeclaration(&ClassRegistry::declareOnce<T>); }
};

/// Shorthand for ClassRegistry::findClass, for those that make components.
QSF_API const camp::Class* findComponentClass(StringHash componentId);

}
