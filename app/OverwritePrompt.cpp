// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/OverwritePrompt.h"

#include <QString>

#include "app/CursorOverride.h"
#include "app/FormReport.h"
#include "app/QtText.h"
#include "app/modMsgBoxPlus.h"

namespace app {

using modVantrel::OverwriteAnswer;

OverwriteAnswer OverwritePrompt::Ask(const std::string& gcdFileName) {
  const QString yes = QStringLiteral("Yes");
  const QString yesToAll = QStringLiteral("Yes to All");
  const QString cancel = QStringLiteral("Cancel");
  report_.ShowWritten();
  const CursorOverride arrow(Qt::ArrowCursor);
  const QString answer = modMsgBoxPlus::MsgBoxPlus(
      owner_, modMsgBoxPlus::kYesNoCancel, QStringLiteral("Writing GCD file"),
      ToQString("The GCD file named '" + gcdFileName +
                "' already exists.  Other GCD files for other cycles or the other limb may also "
                "exist.  Do you wish to overwrite this file or all these files?"),
      modMsgBoxPlus::kQuestionIcon, yes, yesToAll, cancel, 0);
  if (answer == yesToAll) return OverwriteAnswer::YesToAll;
  cancelled_ = answer == cancel;
  return cancelled_ ? OverwriteAnswer::Cancel : OverwriteAnswer::Yes;
}

}  // namespace app
