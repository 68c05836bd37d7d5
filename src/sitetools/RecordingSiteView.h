#pragma once
// The site analyser's view without a window: keeps every row, message and label.

#include <map>

#include "sitetools/SiteAnalyserView.h"

namespace tessarine {

class RecordingSiteView : public SiteAnalyserView {
 public:
  void SetMode(const std::string& word) override { mode = word; }
  void SetCaption(const std::string& text) override { caption = text; }
  void SetColumnHeading(const std::string& text) override { columnHeading = text; }
  void SetLabel(SiteLabel label, const std::string& text) override { labels[label] = text; }
  void SetStatusText(const std::string& text) override;
  void StartAnimation() override { animating = true; }
  void StopAnimation() override { animating = false; }
  void ClearRows() override { rows.clear(); }
  void AddRow(const SiteRow& row) override { rows.push_back(row); }
  void ShowMessage(const std::string& text) override { messages.push_back(text); }
  void Beep() override { ++beeps; }
  void ProcessEvents() override { ++yields; }

  // Text of a label, empty when never set.
  std::string Label(SiteLabel label) const;

  std::string mode;
  std::string caption;
  std::string columnHeading;
  std::map<SiteLabel, std::string> labels;
  std::string status;
  std::vector<std::string> statusHistory;  // each change of the status text
  bool animating = false;
  std::vector<SiteRow> rows;
  std::vector<std::string> messages;
  int beeps = 0;
  std::int64_t yields = 0;
};

}  // namespace tessarine
