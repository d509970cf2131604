// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCheckBox>
#include <QPushButton>

namespace app {

// A push button that breaks a long caption into lines instead of cutting it. Enter presses it as
// the space bar does. A double-click presses it once, and so does a key that is held down.
class CaptionButton : public QPushButton {
  Q_OBJECT

 public:
  CaptionButton(const QString& caption, QWidget* parent);

  // The room for the caption.
  QRect CaptionArea() const;

 protected:
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

// A check box that does the same.
class CaptionCheckBox : public QCheckBox {
  Q_OBJECT

 public:
  using QCheckBox::QCheckBox;

  QRect CaptionArea() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool hitButton(const QPoint& position) const override;
};

// How captions are drawn: broken at blanks, "&&" as one ampersand.
inline constexpr int kButtonCaptionFlags =
    Qt::AlignCenter | Qt::TextWordWrap | Qt::TextShowMnemonic;
inline constexpr int kCheckBoxCaptionFlags =
    Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap | Qt::TextShowMnemonic;

}  // namespace app
