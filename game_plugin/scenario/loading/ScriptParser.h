#pragma once
#include <memory>
#include <string>
#include <string_view>

namespace script {

class Program;
class ReadingHost;

/// Turns a script's text into a program. Keeps no state between calls.
class ScriptParser {
public:
  /// Reads the file. Always gives a program: empty if the file can't be opened, or if a fault escapes from a line (then
  /// one line at severity 4 names the file and the line). `globalNamePrefix` stands before each trigger's name.
  std::shared_ptr<const Program> parse(const std::string& path, const std::string& globalNamePrefix) const;
  /// The same for a text in memory; `name` is what messages call it.
  std::shared_ptr<const Program> parseText(std::string_view text, const std::string& name,
                                           const std::string& globalNamePrefix) const;
  /// The same for a machine that a tool imagines.
  std::shared_ptr<const Program> parseText(std::string_view text, const std::string& name,
                                           const std::string& globalNamePrefix, const ReadingHost& host) const;

  /// The file's bytes; false if it can't be opened.
  static bool readFile(const std::string& path, std::string& text);
};

}
