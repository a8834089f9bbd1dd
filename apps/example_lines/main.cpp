// example_lines FOLDER SOURCE RULE: collects the example lines of the reference from the script tests below FOLDER into
// a C++ source, and writes the make rule that says what it depends on. A source that is up to date isn't touched.
#include "apps/example_lines/ExampleLines.h"

#include <cstdio>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace {

void write(const std::string& path, const std::string& text) {
  std::ofstream file(path, std::ios::binary);
  file << text;
  if (!file.flush()) throw std::runtime_error(path + ": can't be written");
}

bool holds(const std::string& path, const std::string& text) {
  std::ifstream file(path, std::ios::binary);
  return file && std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()) == text;
}

}

int main(int argumentCount, char** arguments) {
  if (argumentCount != 4) {
    std::fputs("usage: example_lines FOLDER SOURCE RULE\n", stderr);
    return 2;
  }
  try {
    const std::string output = arguments[2];
    const tidemark::examples::Collection found = tidemark::examples::collect(arguments[1]);
    write(arguments[3], tidemark::examples::toRule(output, found.inputs));
    const std::string source = tidemark::examples::toSource(found.lines);
    if (!holds(output, source)) write(output, source);
    return 0;
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "example_lines: %s\n", fault.what());
    return 1;
  }
}
