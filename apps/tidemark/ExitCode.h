#pragma once

namespace tidemark {

/// What the program returns. Scripts of build servers rely on the numbers.
enum ExitCode : int {
  EXIT_FINE = 0,
  EXIT_FAULT = 1,       ///< a test failed or a script faulted
  EXIT_USAGE = 2,       ///< wrong command line
  EXIT_CANNOT_LOAD = 3, ///< an input cannot be loaded, there is nothing to do, or a result cannot be written
};

}
