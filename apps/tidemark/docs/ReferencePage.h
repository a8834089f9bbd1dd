#pragma once
#include "apps/tidemark/catalogue/CatalogueText.h"

#include <string>
#include <string_view>

namespace tidemark::docs {

/// The catalogue as one page of HTML for people, complete in itself: it asks for no other file and for nothing from
/// anywhere. Each entry has an anchor of its name. Without its script the page can be read, with it filtered.
std::string toPage(const catalogue::Entries& entries);

/// What a parameter of that role takes, in an author's words; empty for a role that has none yet.
std::string_view textOfRole(std::string_view role);

/// The page's style and script.
std::string_view pageStyle();
std::string_view pageScript();

}
