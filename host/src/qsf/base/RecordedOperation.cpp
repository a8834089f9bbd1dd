#include "qsf/base/RecordedOperation.h"

#include "qsf/Qsf.h"
#include "qsf/base/CallRecorder.h"

namespace qsf {

namespace {

/// The constants of the libraries that are in memory; a plug-in's come and go with it.
std::map<std::string, const RecordedOperation*>& operations() {
  static std::map<std::string, const RecordedOperation*> instance;
  return instance;
}

}

RecordedOperation::RecordedOperation(const char* name, const char* arguments) : mName(name), mArguments(arguments) {
  operations().emplace(name, this);
}

RecordedOperation::~RecordedOperation() {
  if (find(mName) == this) operations().erase(mName);
}

void RecordedOperation::record(std::vector<std::string> arguments) const {
  if (const Qsf* host = Qsf::instance()) host->getCallRecorder().record(mName, std::move(arguments));
}

const RecordedOperation* RecordedOperation::find(const std::string& name) {
  const auto found = operations().find(name);
  return found == operations().end() ? nullptr : found->second;
}

std::vector<const RecordedOperation*> RecordedOperation::getAll() {
  std::vector<const RecordedOperation*> all;
  for (const auto& [name, operation] : operations())
    all.push_back(operation);
  return all;
}

}
