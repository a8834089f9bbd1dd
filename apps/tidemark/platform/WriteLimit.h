#pragma once
#include <functional>
#include <string>
#include <vector>

namespace tidemark::platform {

/// True if the system can keep a thread from writing files, so that callWithWriteLimit does. Linux can by Landlock, if
/// the kernel has it.
bool canLimitWrites();

/// Makes the call on a thread of its own that, where the system can do so, makes, changes and removes files below these
/// folders only; files that are open stay writable. Reading is not limited. Comes back when the call does, and throws
/// what it throws. Throws std::system_error if a folder can't be opened. The rest of the program is free: it writes
/// reports and results.
void callWithWriteLimit(const std::vector<std::string>& folders, const std::function<void()>& call);

}
