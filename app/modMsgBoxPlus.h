// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

// A message box whose buttons carry the caller's own captions and that can close by itself.
namespace modMsgBoxPlus {

// The button sets.
inline constexpr int kOk = 0;
inline constexpr int kOkCancel = 1;
inline constexpr int kAbortRetryIgnore = 2;
inline constexpr int kYesNoCancel = 3;
inline constexpr int kYesNo = 4;
inline constexpr int kRetryCancel = 5;

// Style bits: one icon, and which button is pressed by Enter at first (the first one without any).
inline constexpr int kCriticalIcon = 16;
inline constexpr int kQuestionIcon = 32;
inline constexpr int kWarningIcon = 48;
inline constexpr int kInformationIcon = 64;
inline constexpr int kSecondButtonIsDefault = 256;
inline constexpr int kThirdButtonIsDefault = 512;

inline const QString kTimedOut = QStringLiteral("TimedOut");

// Shows `text` under the title `caption` with the buttons of `buttonSet`, named by the captions in
// their order, and waits. Answers with a caption, or with "TimedOut" where nobody answered within
// `timeoutMs` milliseconds (0 waits for ever, and so do Abort/Retry/Ignore and Yes/No, which have
// no button that closing could stand for).
//
// The answer follows the kind of the pressed button, not its place: OK, Abort and Yes give
// caption1, No and Retry caption2, Ignore caption3; Cancel gives caption3 in Yes/No/Cancel and
// caption2 elsewhere. So both buttons of Retry/Cancel answer caption2. Escape and the close box
// count as Cancel, in a box with OK alone as OK. An unknown set shows a plain OK button.
QString MsgBoxPlus(QWidget* ownerWindow, int buttonSet, const QString& caption, const QString& text,
                   int style, const QString& caption1, const QString& caption2,
                   const QString& caption3, int timeoutMs);

}  // namespace modMsgBoxPlus
