#pragma once

#include <string>
#include <vector>

// What systems do differently about a program's start and its standard output.
namespace cli {

// The arguments that the tool was started with, its own name aside, in UTF-8 on Windows and as they
// came elsewhere.
std::vector<std::string> Arguments(int argc, char* argv[]);

// Lets standard output and standard error take bytes as they are, and failed writes come back as
// errors.
void PrepareOutput();

// Whether the write to standard output that has just failed did so because nobody reads it any
// more.
bool IsOutputClosed();

}  // namespace cli
