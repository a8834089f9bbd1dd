#pragma once
#include <string>

namespace qsf {

/// The text of a file that a GUI names: below the working directory, else the asset of that local name, with an ending
/// or without. False if there is none, it is no ordinary file, or it is larger than 4 MiB.
bool readDocumentFile(const std::string& path, std::string& text);

/// Gives the documents their files, the log and guarded calls. Once is enough.
void installDocumentSystem();

}
