// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

// What systems do differently about a program's start and its standard output.
namespace console {

// The files, not folders, that `file` stands for, in order, where it has a wildcard, "*" or "?", in
// its last name; `file` itself where it has none or stands for no file. Only Windows shells leave
// that to a program, and Windows itself says which names fit, short ones among them; elsewhere a
// name is a name. A RuntimeError where a folder cannot be read to its end.
std::vector<std::string> WithoutWildcards(const std::string& file);

// Lets standard output and standard error take bytes as they are, UTF-8 on a console, and failed
// writes come back as errors. A console is as it was when the tool has ended.
void PrepareOutput();

// Lets as many files be open at once as the system allows the program: each job of GCD files that
// take the places of others keeps all those of its trial open. For a program's start.
void AllowManyOpenFiles();

bool IsTerminal(std::FILE* stream);

// How many characters stand in a row of a terminal; 0 where that is not known.
int TerminalColumns(std::FILE* stream);

// Writes all of `piece`; false where that fails. An UnbrokenWork around it lasts until whole lines
// are written; once it is interrupted it waits for slow readers a second in all, and not for one
// who does not read.
bool WriteLines(std::FILE* stream, std::string_view piece);

// Whether the write that has just failed did so because nobody reads it any
// more.
bool IsOutputClosed();

}  // namespace console
