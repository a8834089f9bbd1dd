#pragma once
#include "qsf/Export.h"

#include <string>
#include <vector>

namespace qsf {

/// An operation that leaves its trace in the call recorder. A constant of this type stands in the operation's source;
/// nothing else lists it, and tools know its name from the program's start on.
class QSF_API RecordedOperation {
public:
  /// The qualified name, `em5::HintHelper::showHint`, and what its arguments are, in their order and with their units;
  /// both texts outlive the constant.
  RecordedOperation(const char* name, const char* arguments);
  ~RecordedOperation();
  RecordedOperation(const RecordedOperation&) = delete;
  RecordedOperation& operator=(const RecordedOperation&) = delete;

  const char* getName() const { return mName; }
  const char* getArguments() const { return mArguments; }
  /// Notes a call in the host's recorder. Nothing happens without a host.
  void record(std::vector<std::string> arguments = {}) const;

  /// Null if there is no such operation.
  static const RecordedOperation* find(const std::string& name);
  /// All operations, by name.
  static std::vector<const RecordedOperation*> getAll();

private:
  const char* mName;
  const char* mArguments;
};

}
