#pragma once
#include "qsf/Export.h"

#include <cstddef>
#include <string>

namespace Rocket::Core {

/// A text of documents, in UTF-8.
class QSF_API String : public std::string {
public:
  using std::string::string;
  String() = default;
  String(const std::string& text) : std::string(text) {}
  String(std::string&& text) noexcept : std::string(std::move(text)) {}

  const char* CString() const { return c_str(); }
  bool Empty() const { return empty(); }
  std::size_t Length() const { return size(); }
};

}
