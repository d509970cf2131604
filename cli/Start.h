#pragma once

#include <string>
#include <vector>

// What systems do differently about a program's start and its standard output.
namespace cli {

// The arguments that the tool was started with, its own name aside, in UTF-8 on Windows and as they
// came elsewhere.
std::vector<std::string> Arguments(int argc, char* argv[]);

// `files` with each one that holds a wildcard, "*" or "?" in its name, replaced by the files that
// it stands for, in order; one that stands for none stays. Only Windows shells leave that to a
// program: elsewhere all files come back as they are.
std::vector<std::string> WithoutWildcards(const std::vector<std::string>& files);

// Lets standard output and standard error take bytes as they are, and failed writes come back as
// errors.
void PrepareOutput();

// Whether the write to standard output that has just failed did so because nobody reads it any
// more.
bool IsOutputClosed();

}  // namespace cli
