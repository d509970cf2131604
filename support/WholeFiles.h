// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

// Files that are there whole or not at all. Each text is complete on disk before its file takes its
// name, in one step; an interruption (see UnbrokenWork) leaves nothing beside it, and a program
// that is killed nothing where the system can make files without a name, but for one file at most
// where it is killed in the moment in which that takes the place of another.
//
// Every error is 57, 61, 70, 75 or 76 and names the file, or for 76 the folder that is missing.
namespace modAllPurpose {

struct WholeFile {
  std::string Path;
  std::string Text;
};

// Makes the file `path`. False, with nothing changed, where anything has that name: a folder and a
// link that leads nowhere as well.
bool WriteFileWhereFree(const std::string& path, std::string_view text);

// Makes all of `files` or none: empty, or the path whose name was taken. Whatever of them it had
// made by then, or by an error or an interruption, it takes away again and nothing else. Of several
// programs that want some of the same names at once, two never have a part each: all take names in
// one order, so that whoever gets the first that they share gets them all.
std::string WriteFilesWhereFree(std::span<const WholeFile> files);

// Gives the file at `path` the contents `text`, whether it is there or not. Links are followed and
// only a regular file that may be written is replaced, anything else is error 75 or 70 and stays.
// The file keeps its mode, owner, group and access list as far as the system lets it; nobody may do
// more with it than before.
void WriteFileInOneStep(const std::string& path, std::string_view text);

// What the caller of WriteFilesTogether has to do between its steps.
struct StepsTogether {
  // When all files are complete and none has its name: what this throws leaves all as it was.
  std::function<void()> LastLook = [] {};
  // Each file once it has its name. It must not wait for anybody.
  std::function<void(const WholeFile& file)> Replaced = [](const WholeFile&) {};
};

// Does the same with each of `files`, in their order. All of them are complete on disk before the
// first takes its name, so that nothing has changed where one cannot be written or an interruption
// came; an error of the steps after that, each of which only names a file, leaves those before it
// replaced.
void WriteFilesTogether(std::span<const WholeFile> files, const StepsTogether& steps = {});

}  // namespace modAllPurpose
