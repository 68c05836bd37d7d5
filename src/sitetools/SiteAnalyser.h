#pragma once
// The site analyser: walks a site on the local disk from one start page by plain text
// search for five tokens, and reports broken links, anchors, images, titles and script
// links in ListView1 and in LinkReport.txt and BrokenLinks.txt; or analyses one page and
// its document weight. The window that hosts it implements SiteAnalyserView.

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "sitetools/SiteAnalyserView.h"
#include "sitetools/SiteFiles.h"
#include "sitetools/SiteReport.h"
#include "sitetools/SiteText.h"

namespace tessarine {

class SiteAnalyser {
 public:
  explicit SiteAnalyser(SiteAnalyserView& view) : view_(view) {}

  // "&Check Site": the site reached from the page `fileName` in `folder`.
  void AnalyseSite(const std::string& folder, const std::string& fileName);
  // One page chosen in the file list.
  void AnalysePage(const std::string& folder, const std::string& fileName);

  void LoadPageText(const std::string& path);
  void StripComments();
  void ExtractNextLink(const std::string& token, const std::string& delimiter);
  void NormalizeLinkPath();
  void ExtractPageLink(const std::string& token, const std::string& delimiter);
  void ClassifyPageLink(const std::string& token, const std::string& delimiter);
  void ReadLinkedPageTitle();
  void SplitDownloadTime(std::int64_t units);

  // The current page's text (comments stripped once loaded).
  const std::string& PageText() const { return text1_; }
  void SetPageText(std::string text);
  const std::deque<std::string>& ParsedFilesList() const { return parsed_; }
  // Why the last site run's report files are missing or incomplete; empty when written.
  const std::string& ReportFailure() const { return report_.Failure(); }
  // How many times a file was read as text since this analyser was made.
  std::int64_t FileReads() const { return fileReads_; }

  // Links resolved as a browser does (each against its own page's folder, %-escapes
  // decoded, ID= and NAME= both anchors) instead of by the analyser's own rules.
  bool standardResolution = false;

  // Working state of a run, named as the window's code names it.
  std::string LinkTarget;
  std::string BasePath;
  std::string SiteRoot;
  std::string CurrentPage;
  std::string PageTitle;
  std::string LinkedTitle;
  std::int64_t ErrorCount = 0;
  bool ScanDone = false;
  std::int64_t Cursor = 0;  // the caret in the page text, zero-based
  std::int64_t ScanPos = 0;
  bool ScanFresh = true;
  std::int64_t DocumentWeight = 0;
  std::int64_t LinkPosition = 0;
  std::int64_t DownloadMinutes = 0;
  std::int64_t DownloadSeconds = 0;

 private:
  struct LinkMatch {
    bool closed = false;            // the delimiter was found
    std::int64_t delimiterPos = 0;  // one-based, 0 when not found
  };

  std::int64_t SearchStart() const;
  bool CutNextLink(const std::string& token, const std::string& delimiter, LinkMatch& match);
  void MoveCursorPast(const LinkMatch& match);
  void UpdateCountLabels();
  void AddIndexPage();
  std::string LinkPath(std::string_view link) const;
  bool LookUpAnchor(const std::string& anchor, bool& found);
  const AnchorIndex& Text1Anchors();
  void ReportError(const std::string& rawLink, const char* kind, int icon);
  // Standard mode (StandardLinks.cpp).
  void CheckStandardLink(const std::string& rawLink);
  void ClassifyStandardPageLink(const std::string& token);
  bool StandardAnchorFound(const std::string& path, const std::string& anchor);
  void TakePageTitle(bool crawl);
  void CheckCrawlLink(const std::string& rawLink);
  void QueuePage(const std::string& path, std::optional<FileId> id);
  std::optional<std::string> ReadText(const std::string& path);
  void ParseTokens(bool firstPage);
  void ResetRun();

  SiteAnalyserView& view_;
  SiteReport report_;
  std::string text1_;
  std::string upper1_;  // The page text upper-cased once per page, not once per search
  std::optional<AnchorIndex> text1Anchors_;
  std::string dir1_;  // the folder of the page analysed alone, closing "/" included

  // ParsedFilesList is the queue and the set of known pages: the set answers the exact
  // duplicate test without a walk through the list. A file is queued once, whatever
  // spelling reaches it ("a.html", "./a.html", "loop/a.html"): what keeps a crawl through
  // symbolic link loops and "./" chains finite and each page counted once.
  std::deque<std::string> parsed_;
  std::unordered_set<std::string_view> known_;
  std::unordered_set<FileId, FileIdHash> queuedFiles_;

  // Anchors of linked pages, so that a page's file is read once per run, not once per
  // link. The text itself is kept too once an anchor too long for the index is asked.
  struct CachedAnchors {
    AnchorIndex index;
    std::string upperText;
    bool keepsText = false;
  };
  std::unordered_map<std::string, CachedAnchors> anchorCache_;
  std::size_t anchorCacheBytes_ = 0;
  std::int64_t fileReads_ = 0;
};

}  // namespace tessarine
