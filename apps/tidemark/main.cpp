#include "apps/tidemark/Program.h"

int main(int argumentCount, char** arguments) { return tidemark::runProgram(argumentCount, arguments); }
