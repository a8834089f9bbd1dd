#include "apps/tidemark/docs/ExampleLine.h"

namespace tidemark::docs {

// The most arguments that mean something; what is too many is a lesson of its own, and shown only if there is no other.
const ExampleLine* findExample(std::string_view entry, std::size_t parameters) {
  const ExampleLine* best = nullptr;
  for (const ExampleLine& example : exampleLines()) {
    if (example.entry != entry) continue;
    if (!best ||
        (example.arguments <= parameters && (best->arguments > parameters || example.arguments > best->arguments)))
      best = &example;
  }
  return best;
}

}
