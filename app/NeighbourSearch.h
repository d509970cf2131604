// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <functional>
#include <string>

#include <QObject>

#include "app/Background.h"
#include "app/TrialFolder.h"

namespace app {

// Looks for the neighbours of a trial beside the window, on a thread of its own: a folder of a
// server that sleeps or is gone must not keep the window waiting. What nobody asks for any more is
// not begun, and what was found of it never heard of. Its end waits for an answer of the system.
class NeighbourSearch : public QObject {
  Q_OBJECT

 public:
  using Find = std::function<Neighbours(const std::string& trial)>;

  // `find` runs on another thread.
  explicit NeighbourSearch(Find find, QObject* parent = nullptr);

  // Looks for those of `trial`, behind what is still looked at; empty: for none. Nothing happens
  // while they are looked for already.
  void Start(const std::string& trial);
  bool IsBusy() const { return background_.IsBusy(); }

 signals:
  void Found(const app::Neighbours& neighbours);

 private:
  Background::Then Run(const std::string& trial, int request);
  void Tell(const std::string& trial, const Neighbours& neighbours);

  Find find_;
  std::string trial_;               // that is asked for
  std::atomic<int> request_ = 0;    // by the last of so many
  Background background_{nullptr};  // ends before what it runs
};

}  // namespace app
