#include "app/Startup.h"

int main(int argc, char* argv[]) { return app::RunVantrel(argc, argv); }
