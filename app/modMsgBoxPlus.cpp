// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/modMsgBoxPlus.h"

#include <array>
#include <cstddef>
#include <vector>

#include <QDeadlineTimer>
#include <QPushButton>
#include <QTimer>

#include "app/MessageBox.h"

namespace modMsgBoxPlus {

namespace {

// What a button stands for.
enum class ButtonKind { None, Ok, Cancel, Abort, Retry, Ignore, Yes, No };

struct ButtonSet {
  std::array<ButtonKind, 3> Buttons;
  ButtonKind Escape;  // what Escape and the close box press; None: they do nothing
};

constexpr std::array kButtonSets = {
    ButtonSet{{ButtonKind::Ok}, ButtonKind::Ok},
    ButtonSet{{ButtonKind::Ok, ButtonKind::Cancel}, ButtonKind::Cancel},
    ButtonSet{{ButtonKind::Abort, ButtonKind::Retry, ButtonKind::Ignore}, ButtonKind::None},
    ButtonSet{{ButtonKind::Yes, ButtonKind::No, ButtonKind::Cancel}, ButtonKind::Cancel},
    ButtonSet{{ButtonKind::Yes, ButtonKind::No}, ButtonKind::None},
    ButtonSet{{ButtonKind::Retry, ButtonKind::Cancel}, ButtonKind::Cancel},
};

bool IsKnown(int buttonSet) {
  return buttonSet >= 0 && static_cast<std::size_t>(buttonSet) < kButtonSets.size();
}

const ButtonSet& SetFor(int buttonSet) {
  return kButtonSets.at(IsKnown(buttonSet) ? static_cast<std::size_t>(buttonSet) : kOk);
}

QMessageBox::Icon IconFor(int style) {
  constexpr int kIconBits = 0xF0;
  switch (style & kIconBits) {
    case kCriticalIcon:
      return QMessageBox::Critical;
    case kQuestionIcon:
      return QMessageBox::Question;
    case kWarningIcon:
      return QMessageBox::Warning;
    case kInformationIcon:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

std::size_t DefaultButton(int style) {
  if ((style & kThirdButtonIsDefault) != 0) return 2;
  return (style & kSecondButtonIsDefault) != 0 ? 1 : 0;
}

struct Button {
  ButtonKind Kind;
  QPushButton* Widget;
};

// Adds the buttons of the set. All get the same role, so that they stand in the order of the set on
// every desktop.
std::vector<Button> AddButtons(QMessageBox& box, int buttonSet,
                               const std::array<QString, 3>& captions, int style) {
  const ButtonSet& set = SetFor(buttonSet);
  std::vector<Button> buttons;
  for (std::size_t i = 0; i < set.Buttons.size() && set.Buttons.at(i) != ButtonKind::None; ++i) {
    const QString caption = IsKnown(buttonSet) ? captions.at(i) : QMessageBox::tr("OK");
    buttons.push_back({set.Buttons.at(i), box.addButton(caption, QMessageBox::ActionRole)});
    if (i == DefaultButton(style)) box.setDefaultButton(buttons.back().Widget);
    if (buttons.back().Kind == set.Escape) box.setEscapeButton(buttons.back().Widget);
  }
  return buttons;
}

QString AnswerFor(ButtonKind kind, int buttonSet, const std::array<QString, 3>& captions) {
  switch (kind) {
    case ButtonKind::Ok:
    case ButtonKind::Abort:
    case ButtonKind::Yes:
      return captions[0];
    case ButtonKind::No:
    case ButtonKind::Retry:
      return captions[1];
    case ButtonKind::Ignore:
      return captions[2];
    case ButtonKind::Cancel:
      return buttonSet == kYesNoCancel ? captions[2] : captions[1];
    case ButtonKind::None:
      break;
  }
  return {};
}

}  // namespace

QString MsgBoxPlus(QWidget* ownerWindow, int buttonSet, const QString& caption, const QString& text,
                   int style, const QString& caption1, const QString& caption2,
                   const QString& caption3, int timeoutMs) {
  const std::array captions = {caption1, caption2, caption3};
  app::MessageBox box(IconFor(style), caption, text, QMessageBox::NoButton, ownerWindow);
  const std::vector<Button> buttons = AddButtons(box, buttonSet, captions, style);
  const bool canBeClosed = SetFor(buttonSet).Escape != ButtonKind::None;
  box.setWindowFlag(Qt::WindowCloseButtonHint, canBeClosed);

  bool timedOut = false;
  const QDeadlineTimer end(timeoutMs, Qt::PreciseTimer);
  QTimer timer;
  timer.setSingleShot(true);
  timer.setTimerType(Qt::PreciseTimer);
  QObject::connect(&timer, &QTimer::timeout, &box, [&] {
    const int early = static_cast<int>(end.remainingTime());
    if (early > 0) return timer.start(early);  // a system's timer may come a moment before its time
    timedOut = true;
    box.reject();
  });
  if (timeoutMs > 0 && canBeClosed) timer.start(timeoutMs);
  box.exec();

  if (timedOut) return kTimedOut;
  for (const Button& button : buttons) {
    if (button.Widget == box.clickedButton()) return AnswerFor(button.Kind, buttonSet, captions);
  }
  // The box was closed without a button, as at the end of the desktop's session.
  return AnswerFor(SetFor(buttonSet).Escape, buttonSet, captions);
}

}  // namespace modMsgBoxPlus
