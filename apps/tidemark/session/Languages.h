#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace qsf {
class ProjectManager;
}

namespace tidemark {

/// True for what can name a language: two or three letters, perhaps a region behind a dash or an underscore.
bool isLanguageCode(std::string_view text);

/// The languages that mounted projects have texts in, sorted.
std::vector<std::string> findLanguages(const qsf::ProjectManager& projects);

}
