#include "sitetools/SiteAnalyser.h"

#include <algorithm>

namespace tessarine {
namespace {

constexpr const char* kTitle = "<TITLE>";
constexpr const char* kTitleEnd = "</TITLE>";
constexpr const char* kQuote = "\"";
constexpr std::string_view kTenBlanks = "          ";
constexpr std::size_t kAnchorCacheBudget = 16 * 1024 * 1024;

struct LinkToken {
  const char* token;
  const char* heading;
  const char* status;
};

// In the order the crawl takes them.
constexpr LinkToken kLinkTokens[] = {
    {"FRAME SRC=\"", "   Frame Source Links:", "Extracting Frame source links..."},
    {"HREF=\"", "   Links:", "Extracting local links..."},
    {"BACKGROUND=\"", "   Background Image:", "Extracting background image filenames..."},
    {"IMG SRC=\"", "   Images:", "Extracting image filenames..."},
};

bool IsRemote(std::string_view link, bool withMail) {
  return StartsWithNoCase(link, "ftp://") || StartsWithNoCase(link, "http://") ||
         StartsWithNoCase(link, "https://") || (withMail && StartsWithNoCase(link, "mailto:"));
}

std::string WithClosingSlash(std::string folder) {
  if (folder.empty() || folder.back() != '/') folder += '/';
  return folder;
}

std::string FolderPart(const std::string& path) {
  std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

std::string TenBlanksAnd(std::string_view text) {
  std::string line(kTenBlanks);
  line += text;
  return line;
}

}  // namespace

void SiteAnalyser::SetPageText(std::string text) {
  text1_ = std::move(text);
  upper1_ = UpperAscii(text1_);
  text1Anchors_.reset();
}

void SiteAnalyser::ResetRun() {
  parsed_.clear();
  known_.clear();
  queuedFiles_.clear();
  anchorCache_.clear();
  anchorCacheBytes_ = 0;
}

std::optional<std::string> SiteAnalyser::ReadText(const std::string& path) {
  ++fileReads_;
  bool cut = false;
  std::optional<std::string> text = ReadFileText(path, kMaxPageTextBytes, &cut);
  if (text && cut) {
    // Said, so that a page half checked is never taken for a page checked whole.
    const std::string megabytes = std::to_string(kMaxPageTextBytes / (1024 * 1024));
    view_.ShowMessage(path + " is larger than " + megabytes + " MB: only its first " + megabytes +
                      " MB were checked.");
  }
  return text;
}

void SiteAnalyser::LoadPageText(const std::string& path) {
  std::optional<std::string> text = ReadText(path);
  if (!text) {
    view_.ShowMessage("Can't open file: " + path);
    return;
  }
  text1_ = std::move(*text);
  ScanFresh = true;
  Cursor = 0;
  StripComments();
  Cursor = 0;
}

void SiteAnalyser::StripComments() {
  // "<!--" and "-->" hold no letters: the original text serves for the upper-cased one.
  const std::string& text = text1_;
  std::string result;
  bool foundAny = false;
  ScanDone = false;
  while (!ScanDone) {
    const std::size_t open = text.find("<!--", static_cast<std::size_t>(SearchStart()));
    if (open == std::string::npos) {
      ScanDone = true;
      if (foundAny) result.append(text, std::min<std::size_t>(Cursor, text.size()));
      break;
    }
    const std::size_t close = text.find("-->", open + 4);
    const std::size_t from = std::min<std::size_t>(Cursor, open);
    result.append(text, from, open - from);
    foundAny = true;
    // Never closed: the cursor would fall back near the start and find it again forever.
    if (close == std::string::npos) break;
    Cursor = static_cast<std::int64_t>(close) + 3;
    ScanPos = Cursor;
    ScanFresh = false;
  }
  if (foundAny) {
    SetPageText(std::move(result));
  } else {
    SetPageText(std::move(text1_));
  }
  ScanPos = 0;
  ScanFresh = true;
}

std::int64_t SiteAnalyser::SearchStart() const {
  // The cursor steps one further when it still stands where the last match left it: a
  // search after a link starts at the third character behind its closing delimiter.
  return Cursor + ((ScanPos == Cursor && !ScanFresh) ? 1 : 0);
}

bool SiteAnalyser::CutNextLink(const std::string& token, const std::string& delimiter,
                               LinkMatch& match) {
  ScanDone = false;
  view_.ProcessEvents();
  const std::string upperToken = UpperAscii(token);
  const std::size_t at = upper1_.find(upperToken, static_cast<std::size_t>(SearchStart()));
  if (at == std::string::npos) {
    ScanDone = true;
    return false;
  }
  const std::size_t tokenEnd = at + upperToken.size();
  const std::size_t end = upper1_.find(delimiter, tokenEnd);
  match.closed = end != std::string::npos;
  if (match.closed) {
    LinkTarget.assign(text1_, tokenEnd, end - tokenEnd);
    match.delimiterPos = static_cast<std::int64_t>(end) + 1;
  } else {
    // No closing delimiter: LinkTarget keeps the previous match, which is handled again.
    match.delimiterPos = 0;
  }
  return true;
}

void SiteAnalyser::MoveCursorPast(const LinkMatch& match) {
  if (!match.closed) {
    // The cursor would go back to the start of the text and meet this token again
    // without end: the pass for this token ends here.
    ScanDone = true;
    return;
  }
  Cursor = match.delimiterPos + 1;
  ScanPos = Cursor;
  ScanFresh = false;
}

void SiteAnalyser::UpdateCountLabels() {
  view_.SetLabel(SiteLabel::ErrorCountOrTitle, NumberText(ErrorCount) + " Errors in Site");
  view_.SetLabel(
      SiteLabel::PageCountOrWeight,
      "Number of pages in site: " + NumberText(static_cast<std::int64_t>(parsed_.size())));
}

void SiteAnalyser::AddIndexPage() {
  if (!LinkTarget.empty() && (LinkTarget.back() == '\\' || LinkTarget.back() == '/')) {
    LinkTarget += "index.html";
  }
}

std::string SiteAnalyser::LinkPath(std::string_view link) const {
  return BasePath + NativeSeparators(std::string(link));
}

const AnchorIndex& SiteAnalyser::Text1Anchors() {
  if (!text1Anchors_) text1Anchors_.emplace(upper1_);
  return *text1Anchors_;
}

// The anchor test of a link cut at its "#": in the page text when nothing stands before the "#",
// else in the file it names, upper-cased. False when that file could not be read.
bool SiteAnalyser::LookUpAnchor(const std::string& anchor, bool& found) {
  const std::string upperAnchor = UpperAscii(anchor);
  if (LinkTarget.empty()) {
    found = Text1Anchors().HoldsAnchor(upperAnchor, upper1_);
    return true;
  }
  const bool needsText = AnchorIndex::NeedsText(upperAnchor);
  const std::string path = LinkPath(LinkTarget);
  auto cached = anchorCache_.find(path);
  if (cached != anchorCache_.end() && (!needsText || cached->second.keepsText)) {
    found = cached->second.index.HoldsAnchor(upperAnchor, cached->second.upperText);
    return true;
  }
  if (!FileExistsForRead(path)) {
    found = false;  // the content is the empty text
    return true;
  }
  std::optional<std::string> text = ReadText(path);
  if (!text) {
    view_.ShowMessage("Can't open file: " + path);
    return false;
  }
  std::string upper = UpperAscii(*text);
  text.reset();
  if (cached == anchorCache_.end()) {
    AnchorIndex index(upper);
    if (anchorCacheBytes_ + index.Bytes() > kAnchorCacheBudget) {
      anchorCache_.clear();
      anchorCacheBytes_ = 0;
    }
    anchorCacheBytes_ += index.Bytes() + path.size();
    cached = anchorCache_.emplace(path, CachedAnchors{std::move(index), {}, false}).first;
  }
  if (needsText) {
    anchorCacheBytes_ += upper.size();
    cached->second.upperText = std::move(upper);
    cached->second.keepsText = true;
    found = cached->second.index.HoldsAnchor(upperAnchor, cached->second.upperText);
  } else {
    found = cached->second.index.HoldsAnchor(upperAnchor);
  }
  return true;
}

void SiteAnalyser::ReportError(const std::string& rawLink, const char* kind, int icon) {
  report_.BrokenLine(TenBlanksAnd(rawLink));
  view_.AddRow(SiteRow{rawLink, {kind, CurrentPage}, icon});
  ++ErrorCount;
}

void SiteAnalyser::TakePageTitle(bool crawl) {
  PageTitle = LinkTarget;
  const bool blank = TrimBlanks(PageTitle).empty();
  if (!blank && LowerAscii(PageTitle) != "document title should be typed here") return;
  if (blank) PageTitle = "None";
  if (crawl) {
    view_.AddRow(SiteRow{"Missing Title", {"Web page is missing title", CurrentPage}, 7});
    ++ErrorCount;
  } else {
    view_.AddRow(SiteRow{"Missing Title", {"Web page is missing title"}, 7});
  }
}

void SiteAnalyser::ExtractNextLink(const std::string& token, const std::string& delimiter) {
  LinkMatch match;
  if (!CutNextLink(token, delimiter, match)) {
    UpdateCountLabels();
    return;
  }
  const std::string rawLink = LinkTarget;
  report_.LinkLine(TenBlanksAnd(rawLink));
  if (standardResolution && token != kTitle) {
    CheckStandardLink(rawLink);
    MoveCursorPast(match);
    UpdateCountLabels();
    return;
  }
  if (token != kTitle && !IsRemote(LinkTarget, false)) NormalizeLinkPath();
  AddIndexPage();

  if (std::size_t hash = LinkTarget.find('#'); hash != std::string::npos) {
    const std::string anchor = LinkTarget.substr(hash + 1);
    LinkTarget.resize(hash);
    bool found = false;
    // A file that could not be read ends the call; the cursor still moves on, or the
    // same link would come back without end.
    if (LookUpAnchor(anchor, found) && !found) ReportError(rawLink, "Broken Anchor", 2);
    MoveCursorPast(match);
    return;
  }
  if (!IsRemote(LinkTarget, true)) {
    if (delimiter == kTitleEnd) {
      TakePageTitle(true);
    } else {
      CheckCrawlLink(rawLink);
    }
  }
  MoveCursorPast(match);
  UpdateCountLabels();
}

void SiteAnalyser::CheckCrawlLink(const std::string& rawLink) {
  const std::string& link = LinkTarget;
  for (std::string_view script : {".cgi", ".pl"}) {
    if (std::size_t at = link.find(script); at != std::string::npos) {
      if (!FileExistsForRead(LinkPath(std::string_view(link).substr(0, at + script.size())))) {
        ReportError(rawLink, "Broken CGI link", 7);
      }
      return;
    }
  }
  const std::string path = LinkPath(link);
  if (EndsWithNoCase(link, "gif") || EndsWithNoCase(link, "jpg") || EndsWithNoCase(link, "jpeg")) {
    if (!FileExistsForRead(path)) ReportError(rawLink, "Missing Image", 4);
    return;
  }
  if (EndsWithNoCase(link, "pdf") || EndsWithNoCase(link, "zip") || EndsWithNoCase(link, "exe")) {
    if (!FileExistsForRead(path)) ReportError(rawLink, "Broken Link", 4);
    return;
  }
  std::optional<FileId> id = ReadableFileId(path);
  if (!id) {
    ReportError(rawLink, "Broken Link", 2);
    return;
  }
  QueuePage(path, id);
}

void SiteAnalyser::QueuePage(const std::string& path, std::optional<FileId> id) {
  if (known_.count(path)) return;
  if (id && !queuedFiles_.insert(*id).second) return;
  // A deque keeps its strings in place, so the set can look at them.
  parsed_.push_back(path);
  known_.insert(parsed_.back());
}

void SiteAnalyser::NormalizeLinkPath() {
  std::string& link = LinkTarget;
  std::replace(link.begin(), link.end(), '\\', '/');
  if (!link.empty() && link.front() == '/') {
    if (link.size() > 1) {
      BasePath = SiteRoot;
      link.erase(0, 1);
    } else {
      BasePath = SiteRoot.substr(0, SiteRoot.empty() ? 0 : SiteRoot.size() - 1);
    }
  }
  // Count ".." as the search finds them, overlapping ones too.
  std::int64_t count = 0;
  std::size_t from = 0;
  if (link.starts_with("..")) {
    count = 1;
    from = 1;
  }
  for (std::size_t at = link.find("..", from); at != std::string::npos;
       at = link.find("..", at + 1)) {
    ++count;
  }
  if (count == 0) return;
  // Three characters per "..", whatever stood there.
  const std::size_t cut = static_cast<std::size_t>(
      std::min<std::int64_t>(count * 3, static_cast<std::int64_t>(link.size())));
  link.erase(0, cut);
  std::int64_t passed = 0;
  for (std::int64_t i = static_cast<std::int64_t>(BasePath.size()) - 2; i >= 0; --i) {
    if (BasePath[static_cast<std::size_t>(i)] == '/' && ++passed == count) {
      BasePath.resize(static_cast<std::size_t>(i) + 1);
      return;
    }
  }
  BasePath = "/";  // climbed past the start: the root
}

void SiteAnalyser::ParseTokens(bool firstPage) {
  bool firstToken = true;
  for (const LinkToken& t : kLinkTokens) {
    Cursor = 0;
    ScanDone = false;
    if (!firstPage) {
      // Every heading but the first has an empty line above it.
      if (!firstToken) report_.LinkLine("");
      report_.LinkLine(t.heading);
    }
    firstToken = false;
    do {
      if (!firstPage) {
        view_.SetStatusText(t.status);
        BasePath = FolderPart(CurrentPage);
      }
      ExtractNextLink(t.token, kQuote);
    } while (!ScanDone);
  }
}

void SiteAnalyser::AnalyseSite(const std::string& folder, const std::string& fileName) {
  if (EndsWithNoCase(fileName, "gif") || EndsWithNoCase(fileName, "jpg") ||
      EndsWithNoCase(fileName, "jpeg")) {
    return;
  }
  ErrorCount = 0;
  view_.SetMode("Site");
  view_.StartAnimation();
  view_.SetLabel(SiteLabel::PageCountOrWeight, "Number of pages in site:");
  view_.SetLabel(SiteLabel::ResultsHeading, "Results:");
  view_.SetCaption("Site Tolmer - " + PageTitle);
  ResetRun();
  view_.ClearRows();
  view_.SetColumnHeading("Web page containing the error");

  BasePath = WithClosingSlash(folder);
  SiteRoot = BasePath;
  CurrentPage = BasePath + fileName;
  LoadPageText(CurrentPage);
  QueuePage(CurrentPage, ReadableFileId(CurrentPage));
  report_.Create(SiteRoot, CurrentPage);
  BasePath = FolderPart(CurrentPage);

  // The start page: one title call, and BasePath is left as its links change it.
  ExtractNextLink(kTitle, kTitleEnd);
  ParseTokens(true);
  report_.Flush();
  view_.CrawlProgress(1, static_cast<std::int64_t>(parsed_.size()));

  Cursor = 0;
  ScanDone = false;
  for (std::size_t i = 1; i < parsed_.size() && !parsed_[i].empty() && !view_.CancelRequested();
       ++i) {
    CurrentPage = parsed_[i];
    view_.SetLabel(SiteLabel::CurrentPage, CurrentPage);
    view_.SetStatusText("Opening file for parsing...");
    LoadPageText(CurrentPage);
    for (int k = 0; k < 2; ++k) {
      report_.LinkLine("");
      report_.BrokenLine("");
    }
    report_.LinkLine(CurrentPage);
    report_.BrokenLine(CurrentPage);

    Cursor = 0;
    ScanDone = false;
    do {
      view_.SetStatusText("Searching for page title...");
      BasePath = FolderPart(CurrentPage);
      ExtractNextLink(kTitle, kTitleEnd);
    } while (!ScanDone);
    ParseTokens(false);
    report_.Flush();
    view_.CrawlProgress(static_cast<std::int64_t>(i) + 1,
                        static_cast<std::int64_t>(parsed_.size()));
  }
  report_.Close();

  view_.SetLabel(SiteLabel::CurrentPage, "");
  view_.SetStatusText("Done!");
  view_.SetLabel(SiteLabel::ErrorCountOrTitle, NumberText(ErrorCount) + " Errors in Site");
  view_.SetLabel(
      SiteLabel::PageCountOrWeight,
      "Number of page in site: " + NumberText(static_cast<std::int64_t>(parsed_.size())));
  view_.StopAnimation();
  if (!report_.Failure().empty()) {
    view_.ShowMessage(
        "Web site analysis is complete, but its reports could not be written in the Web "
        "site's main folder (" +
        SiteRoot + "):\n" + report_.Failure());
    return;
  }
  view_.ShowMessage(
      "Web site analysis is complete.  Refer to the following files\n"
      " in the Web site's main folder (" +
      SiteRoot +
      ")\n"
      "for more information:\n\n"
      "-   BrokenLinks.txt\n"
      "-   LinkReport.txt");
}

}  // namespace tessarine
