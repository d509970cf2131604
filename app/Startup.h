#pragma once

namespace app {

// The whole program: start-up, the window, and its end. Returns the exit status.
int RunVantrel(int argc, char** argv);

}  // namespace app
