// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace app {

// The text file that gets what the output pane gets, lines ended by CR LF. It is open for one
// report at a time.
class DesktopCopy {
 public:
  // Makes the file at `path`, replacing what it held. An earlier copy that is still open is closed
  // first. Errors 57, 61, 70, 75 and 76.
  void Open(const std::string& path);

  // Adds `text`, with a line end unless the line continues. Writes nothing where no copy is open.
  // Errors 57 and 61.
  void Write(std::string_view text, bool continueLine);

  // Puts what was written so far into the file. Errors as Write.
  void Flush();

  // Closes the file; nothing happens where none is open. Errors as Write.
  void Close();

 private:
  struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };

  std::unique_ptr<std::FILE, Closer> file_;
};

}  // namespace app
