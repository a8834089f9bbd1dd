#pragma once
#include "apps/tidemark/test/TestPlan.h"

#include <string>

namespace tidemark::test {

/// Installs the projects that a test brings along, each in a folder of its name below `folder`. Throws DirectiveError
/// if a script can't be converted, std::exception if a file can't be written.
void writeProjects(const TestPlan& plan, const std::string& folder);

/// The folder of a project of the plan.
std::string projectDirectory(const ProjectPlan& project, const std::string& folder);

}
