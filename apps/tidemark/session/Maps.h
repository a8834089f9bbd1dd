#pragma once
#include <optional>
#include <string>

namespace qsf {
class ProjectManager;
}

namespace tidemark {

/// What is played when nobody names a map: flat and empty, of the base project.
inline constexpr const char* DEFAULT_MAP = "em5/map/test/empty";

/// The map that a project's folder names in its project.json; nothing if it names none or can't be read (mounting tells
/// why). Throws std::runtime_error if it names something else than a text.
std::optional<std::string> findMapOfProject(const std::string& folder);

/// Throws std::runtime_error, which names near maps or all of them, if no mounted project has that map.
void requireMap(const qsf::ProjectManager& projects, const std::string& map);

}
