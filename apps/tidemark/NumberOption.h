#pragma once
#include <CLI/CLI.hpp>

namespace tidemark {

/// Accepts a number from `minimum` to `maximum`, both included. Not-a-number is in no range: a run of that length would
/// never end.
CLI::Validator numberFrom(double minimum, double maximum);

}
