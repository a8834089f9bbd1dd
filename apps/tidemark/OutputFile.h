#pragma once
#include <string>
#include <string_view>

namespace tidemark {

/// A file that a command writes at its end. It is opened at once, so that an author who can't have it hears so before
/// the work is done; what it holds stays until it is written. `-` is standard output.
class OutputFile {
public:
  /// `option` is named in faults; an empty path stands for none. Throws std::runtime_error if the file can't be opened.
  OutputFile(std::string option, const std::string& path);
  /// Takes away a file that was made here and not written.
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  bool isWanted() const { return !mPath.empty(); }
  bool isStandardOutput() const;
  /// Replaces what the file holds. Throws std::runtime_error. Once at most.
  void write(std::string_view text);

private:
  std::string mOption;
  std::string mPath; ///< absolute: the working directory may change
  bool mMadeHere = false;
};

}
