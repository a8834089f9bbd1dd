#pragma once
#include "apps/tidemark/test/TestPlan.h"

#include <string>
#include <string_view>

namespace tidemark::test {

// Names that the host doesn't know may still be meant: a test that asks for one must not take it for a slip.

/// True if a line of the test's scripts that is no comment holds the name.
bool isWrittenInScripts(const TestPlan& plan, const std::string& name);
/// True if an action of the test begins with that keyword and holds the name as its word of that number, from 1.
bool isWordOfActions(const TestPlan& plan, std::string_view keyword, std::size_t word, const std::string& name);

}
