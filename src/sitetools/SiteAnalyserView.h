#pragma once
// What the site analyser shows: the results list, the labels of the "Information" frame,
// the status bar, the animation and its messages. The site manager window implements it;
// RecordingSiteView keeps everything for headless runs.

#include <cstdint>
#include <string>
#include <vector>

namespace tessarine {

// The labels of the site manager's information frame that the analyser writes. Two of them
// say one thing after a site check and another after a page analysis.
enum class SiteLabel {
  ResultsHeading,     // "Results:" or "File Title:"
  CurrentPage,        // the page being parsed during a site check
  ErrorCountOrTitle,  // " 3 Errors in Site", or the page's title
  PageCountOrWeight,  // the number of pages, or the document weight
  PageSize,           // the page's own size
  FileDate,           // the page's date and time
  DownloadTime,       // minutes and seconds on a 28.8 modem
};

// One row of ListView1: the item text, its sub-items in column order, the small icon.
struct SiteRow {
  std::string text;
  std::vector<std::string> subItems;
  int icon = 0;

  bool operator==(const SiteRow&) const = default;
};

class SiteAnalyserView {
 public:
  virtual ~SiteAnalyserView() = default;

  virtual void SetMode(const std::string& word) = 0;           // "Site" or "Page"
  virtual void SetCaption(const std::string& caption) = 0;     // the window title
  virtual void SetColumnHeading(const std::string& text) = 0;  // column after the kind
  virtual void SetLabel(SiteLabel label, const std::string& text) = 0;
  virtual void SetStatusText(const std::string& text) = 0;
  virtual void StartAnimation() = 0;
  virtual void StopAnimation() = 0;
  virtual void ClearRows() = 0;
  virtual void AddRow(const SiteRow& row) = 0;
  virtual void ShowMessage(const std::string& text) = 0;
  virtual void Beep() = 0;
  // The yield of each link: lets the window handle its events in the middle of a crawl.
  virtual void ProcessEvents() = 0;
  // After each page of a crawl: pages parsed so far, pages known (ParsedFilesList).
  virtual void CrawlProgress(std::int64_t parsed, std::int64_t known) {
    (void)parsed;
    (void)known;
  }
  // Asked between two pages of a crawl: true stops it there.
  virtual bool CancelRequested() { return false; }
};

}  // namespace tessarine
