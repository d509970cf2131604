// SPDX-License-Identifier: GPL-3.0-or-later

#include <exception>
#include <iostream>

#include "sample/SampleWalk.h"

// Writes the sample walk to the file that is named as the only argument.
int main(int argc, char* argv[]) {
  if (argc != 2) {
    std::cerr << "usage: make-sample-walk FILE.c3d\n";
    return 2;
  }
  try {
    sample::SampleWalk().Build().WriteTo(argv[1]);
    return 0;
  } catch (const std::exception& error) {
    std::cerr << "make-sample-walk: " << argv[1] << ": " << error.what() << '\n';
    return 1;
  }
}
