#pragma once
#include "qsf/Export.h"

namespace qsf {

/// Finds the one living object of a class, or null: `qsf::UniqueInstance<em5::Game> game; if (game) game->...`.
template <class T> class QSF_API UniqueInstance {
public:
  T* get() const { return sInstance; }
  T* operator->() const { return sInstance; }
  T& operator*() const { return *sInstance; }
  explicit operator bool() const { return sInstance != nullptr; }

private:
  template <class> friend class UniqueInstanceTarget;
  inline static T* sInstance = nullptr;
};

/// Base of a class of which at most one object lives. The newest object made is the one that is found.
template <class T> class QSF_API UniqueInstanceTarget {
public:
  UniqueInstanceTarget(const UniqueInstanceTarget&) = delete;
  UniqueInstanceTarget& operator=(const UniqueInstanceTarget&) = delete;

protected:
  UniqueInstanceTarget() { UniqueInstance<T>::sInstance = static_cast<T*>(this); }
  ~UniqueInstanceTarget() {
    if (UniqueInstance<T>::sInstance == static_cast<T*>(this)) UniqueInstance<T>::sInstance = nullptr;
  }
};

}
