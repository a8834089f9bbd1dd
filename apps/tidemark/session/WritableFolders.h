#pragma once
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace tidemark {

/// Folders below which scripts may write, beside the working directory: the values of `--allow-write`. Each must exist;
/// they are absolute when the command line has been read.
void addAllowWrite(CLI::App& command, std::vector<std::string>& folders);

/// The working directory of a session and those folders, absolute; without the first if it doesn't exist.
std::vector<std::string> writableFolders(const std::string& workingDirectory, const std::vector<std::string>& allowed);

/// Tells the running host to refuse what scripts want to write elsewhere, with a message that tells the way out. On
/// every system, and before the system is asked (see platform::callWithWriteLimit), which knows no such message.
void limitHostWrites(const std::vector<std::string>& folders);

}
