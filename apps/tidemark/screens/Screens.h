#pragma once
#include <string>
#include <vector>

namespace tidemark::screens {

/// A document that was visible.
struct Page {
  std::string name; ///< of its file, without ending
  std::string html;
};

/// What was on the screen at a moment of a run.
struct Moment {
  double seconds = 0;
  std::vector<Page> pages; ///< those in front behind the others
};

/// The documents of the game that are visible now; none in the editor.
Moment takeScreens(double seconds);

/// Makes the folder, if it isn't there; a relative one counts from the working directory. Returns its absolute path.
/// Throws std::runtime_error.
std::string makeScreenFolder(const std::string& directory);
/// Writes a folder for each moment and an index.html over them. Files of the same names are replaced. Throws
/// std::runtime_error.
void writeScreens(const std::string& directory, const std::vector<Moment>& moments);

}
