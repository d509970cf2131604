#include "app/Startup.h"

#include <string>

#include <QApplication>
#include <QIcon>
#include <QString>

#include "app/CommandLine.h"
#include "app/frmVantrel.h"
#include "c3d/FileState.h"

namespace app {

namespace {

// Whether the program may start. The libraries it needs come with the system's packages, so there
// is nothing to put in place.
bool DeployDependencies() { return true; }

bool Form_Initialize() { return DeployDependencies(); }

}  // namespace

int RunVantrel(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("vantrel"));
  QApplication::setDesktopFileName(QStringLiteral("vantrel"));
  QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("vantrel")));
  // The toolkit has taken its own options off the command line; the rest is the path of a file.
  const std::string commandLine = JoinedArguments(argc, argv);
  if (!Form_Initialize()) return 0;

  modVantrel::FileState state;
  frmVantrel form(state);
  form.Form_Load(commandLine);
  if (form.IsUnloaded()) return form.ExitStatus();
  QObject::connect(&form, &frmVantrel::Unloaded, &QApplication::exit);
  form.show();
  return QApplication::exec();
}

}  // namespace app
