// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace modAllPurpose {

// What became of a report command: its report was written, or its input was rejected and `Text`
// stands in place of a report.
class [[nodiscard]] ReportResult {
 public:
  static ReportResult Written() { return {false, {}}; }
  static ReportResult Rejected(std::string text) { return {true, std::move(text)}; }

  bool IsRejected() const { return rejected_; }
  // Empty for a report that was written.
  const std::string& Text() const { return text_; }

 private:
  ReportResult(bool rejected, std::string text) : rejected_(rejected), text_(std::move(text)) {}

  bool rejected_;
  std::string text_;
};

// Where a report writes: the output pane, the tool's standard output, or a text kept in memory.
class ReportOutput {
 public:
  ReportOutput() = default;
  ReportOutput(const ReportOutput&) = delete;
  ReportOutput& operator=(const ReportOutput&) = delete;
  virtual ~ReportOutput() = default;

  // Called once by a report whose input was accepted, before its first line. A report that rejects
  // its input never calls it.
  virtual void BeginReport() = 0;

  // Adds `text` (UTF-8) at the end of the output. With `continueLine` the line stays open and the
  // next piece continues it; without, it is ended after the text. `paneOnly` keeps the piece out of
  // the desktop copy.
  virtual void AppendOutput(std::string_view text, bool paneOnly, bool continueLine) = 0;

  // One whole line.
  void Line(std::string_view text) { AppendOutput(text, false, false); }

  // One whole line that stays out of the desktop copy.
  void PaneLine(std::string_view text) { AppendOutput(text, true, false); }

  // The start of a line that a later piece completes.
  void Piece(std::string_view text) { AppendOutput(text, false, true); }
};

// Collects a report in memory, lines ended by LF.
class TextReport : public ReportOutput {
 public:
  void BeginReport() override { begun_ = true; }
  void AppendOutput(std::string_view text, bool paneOnly, bool continueLine) override;

  bool Begun() const { return begun_; }
  const std::string& Text() const { return text_; }

 private:
  std::string text_;
  bool begun_ = false;
};

}  // namespace modAllPurpose
