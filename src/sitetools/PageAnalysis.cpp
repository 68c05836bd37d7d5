// The site analyser on one page: its links, images, title and document weight.
#include <string_view>

#include "sitetools/SiteAnalyser.h"

namespace tessarine {
namespace {

constexpr const char* kTitle = "<TITLE>";
constexpr const char* kTitleEnd = "</TITLE>";
constexpr const char* kQuote = "\"";
constexpr const char* kFrameSrc = "FRAME SRC=\"";
constexpr const char* kHref = "HREF=\"";
constexpr const char* kBackground = "BACKGROUND=\"";
constexpr const char* kImgSrc = "IMG SRC=\"";

bool IsRemoteOrMail(std::string_view link) {
  return StartsWithNoCase(link, "mailto:") || StartsWithNoCase(link, "ftp://") ||
         StartsWithNoCase(link, "http://") || StartsWithNoCase(link, "https://");
}

}  // namespace

void SiteAnalyser::AnalysePage(const std::string& folder, const std::string& fileName) {
  DocumentWeight = 0;
  view_.SetMode("Page");
  dir1_ = folder.empty() || folder.back() != '/' ? folder + "/" : folder;
  BasePath = dir1_;
  CurrentPage = dir1_ + fileName;
  view_.SetColumnHeading("Title");
  view_.StartAnimation();
  view_.SetStatusText("Opening File for analysis...");
  anchorCache_.clear();
  anchorCacheBytes_ = 0;
  LoadPageText(CurrentPage);
  view_.ClearRows();

  view_.SetStatusText("Verifying Web page title...");
  ExtractPageLink(kTitle, kTitleEnd);
  view_.SetStatusText("Verifying Links...");
  for (const char* token : {kFrameSrc, kHref, kBackground, kImgSrc}) {
    if (token == kBackground) view_.SetStatusText("Verifying Images...");
    Cursor = 0;
    ScanDone = false;
    do {
      ExtractPageLink(token, kQuote);
    } while (!ScanDone);
  }

  const std::int64_t pageSize = FileLength(CurrentPage);
  const std::int64_t weight = pageSize + DocumentWeight;
  view_.SetLabel(SiteLabel::ResultsHeading, "File Title:");
  view_.SetLabel(SiteLabel::ErrorCountOrTitle, PageTitle);
  view_.SetLabel(
      SiteLabel::PageCountOrWeight,
      "Document weight (file size including images, etc.): " + NumberText(weight) + " bytes");
  view_.SetLabel(SiteLabel::PageSize, NumberText(pageSize) + " bytes");
  if (std::string date = FileDateText(CurrentPage); !date.empty()) {
    view_.SetLabel(SiteLabel::FileDate, date);
  }
  SplitDownloadTime(weight / 1800);
  view_.SetLabel(SiteLabel::DownloadTime, NumberText(DownloadMinutes) + " minutes " +
                                              NumberText(DownloadSeconds) + " seconds");
  view_.StopAnimation();
  view_.SetStatusText("Done!");
}

void SiteAnalyser::ExtractPageLink(const std::string& token, const std::string& delimiter) {
  LinkMatch match;
  if (!CutNextLink(token, delimiter, match)) {
    UpdateCountLabels();
    return;
  }
  if (match.closed) LinkTarget = TrimBlanks(LinkTarget);
  LinkPosition = match.delimiterPos;
  ClassifyPageLink(token, delimiter);
  MoveCursorPast(match);
  UpdateCountLabels();
}

void SiteAnalyser::ClassifyPageLink(const std::string& token, const std::string& delimiter) {
  if (standardResolution && delimiter != kTitleEnd) {
    ClassifyStandardPageLink(token);
    return;
  }
  BasePath = dir1_;
  if (!LinkTarget.empty() && (LinkTarget.front() == '\\' || LinkTarget.front() == '/')) {
    // Taken from the page's own folder, not from a site root.
    LinkTarget.front() = '/';
    BasePath = dir1_.substr(0, dir1_.empty() ? 0 : dir1_.size() - 1);
  }
  AddIndexPage();

  if (std::size_t hash = LinkTarget.find('#'); hash != std::string::npos) {
    const std::string anchor = LinkTarget.substr(hash + 1);
    LinkTarget.resize(hash);
    bool found = false;
    if (!LookUpAnchor(anchor, found)) return;
    view_.AddRow(
        SiteRow{LinkTarget + "#" + anchor, {found ? "OK" : "Broken Anchor"}, found ? 1 : 2});
    return;
  }

  const bool pageLink = token == kHref || token == kFrameSrc;
  const bool imageLink = token == kImgSrc || token == kBackground;
  const std::string position = NumberText(LinkPosition);
  const std::string path = LinkPath(LinkTarget);
  if (FileExistsForRead(path)) {
    if (pageLink) {
      ReadLinkedPageTitle();
      if (LinkTarget.ends_with("jpg") || LinkTarget.ends_with("gif")) {
        view_.AddRow(SiteRow{LinkTarget, {"OK", "Image", position}, 3});
      } else {
        view_.AddRow(SiteRow{LinkTarget, {"OK", LinkedTitle, position}, 1});
      }
    } else if (imageLink) {
      const std::int64_t size = FileLength(path);
      if (size > 0) DocumentWeight += size;
      view_.AddRow(SiteRow{LinkTarget, {"OK", "Image", position}, 3});
    }
    return;
  }

  if (IsRemoteOrMail(LinkTarget)) {
    view_.AddRow(SiteRow{LinkTarget, {"Unverified remote link"}, 5});
    return;
  }
  if (delimiter == kTitleEnd) {
    TakePageTitle(false);
    return;
  }
  for (std::string_view script : {".cgi", ".pl"}) {
    if (std::size_t at = LinkTarget.find(script); at != std::string::npos) {
      if (FileExistsForRead(LinkPath(std::string_view(LinkTarget).substr(0, at + script.size())))) {
        view_.AddRow(SiteRow{LinkTarget, {"Unverified CGI script"}, 5});
      } else {
        view_.AddRow(SiteRow{LinkTarget, {"Broken CGI link"}, 7});
      }
      return;
    }
  }
  if (pageLink) {
    view_.AddRow(SiteRow{LinkTarget, {"Broken Link"}, 2});
  } else if (imageLink) {
    view_.AddRow(SiteRow{LinkTarget, {"Missing Image"}, 4});
  } else {
    view_.Beep();
  }
}

void SiteAnalyser::ReadLinkedPageTitle() {
  LinkedTitle.clear();
  if (!LinkTarget.ends_with("htm") && !LinkTarget.ends_with("html")) return;
  std::optional<std::string> text = ReadText(LinkPath(LinkTarget));
  if (!text) {
    view_.ShowMessage(BasePath + LinkTarget + "Can't open file: ");
    return;
  }
  const std::string upper = UpperAscii(*text);
  const std::size_t start = upper.find(kTitle);
  if (start == std::string::npos) return;
  const std::size_t from = start + 7;
  const std::size_t end = upper.find(kTitleEnd);
  // A closing tag missing or before the opening one leaves the title empty.
  if (end == std::string::npos || end < from) return;
  LinkedTitle = TrimBlanks(std::string_view(*text).substr(from, end - from));
}

void SiteAnalyser::SplitDownloadTime(std::int64_t units) {
  // Seconds are units / 2, rounded half to even before the integer division and the
  // remainder, as those operations round their operands.
  std::int64_t seconds = units / 2;
  if (units % 2 != 0 && seconds % 2 != 0) seconds += units > 0 ? 1 : -1;
  DownloadMinutes = seconds / 60;
  DownloadSeconds = seconds % 60;
}

}  // namespace tessarine
