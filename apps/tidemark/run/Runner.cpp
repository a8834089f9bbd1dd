#include "apps/tidemark/run/Runner.h"

#include "apps/tidemark/ExitCode.h"
#include "apps/tidemark/OutputFile.h"
#include "apps/tidemark/platform/WriteLimit.h"
#include "apps/tidemark/run/NetworkGame.h"
#include "apps/tidemark/run/Play.h"
#include "apps/tidemark/session/WritableFolders.h"

#include <fmt/format.h>

namespace tidemark::run {

int runProjects(const RunOptions& options) {
  if (options.machines > 1) return runMachines(options);
  OutputFile file("--report", options.report);
  const std::string screenFolder = options.screens.empty() ? "" : screens::makeScreenFolder(options.screens);
  const std::vector<std::string> writable = writableFolders(options.projects.front(), options.allowWrite);
  RunReport report;
  // The road to other machines is made here: who may not write may still talk.
  Seat seat = options.serve ? serveGame(options) : options.join ? joinGame(options) : Seat();
  platform::callWithWriteLimit(writable, [&] { report = play(options, writable, seat); });
  if (!file.isStandardOutput()) fmt::print("{}", toText(report));
  if (file.isWanted()) file.write(toJson(report));
  if (!screenFolder.empty()) screens::writeScreens(screenFolder, report.screens);
  return isFaulty(report, options) ? EXIT_FAULT : EXIT_FINE;
}

}
