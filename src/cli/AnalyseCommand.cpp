#include "cli/AnalyseCommand.h"

#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <initializer_list>
#include <map>
#include <string>
#include <vector>

#include "sitetools/SiteAnalyser.h"
#include "sitetools/SiteAnalyserView.h"
#include "sitetools/SiteFiles.h"

namespace tessarine {
namespace {

// Standard output, keeping its first failed write: a full disk or a closed pipe makes the
// run a failure instead of a silently short listing.
class StandardOutput {
 public:
  void Write(const std::string& text) {
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size()) Fail();
  }
  // `status`, or 1 with the reason on standard error when something did not go out.
  int Finish(int status) {
    if (std::fflush(stdout) != 0) Fail();
    if (error_ == 0) return status;
    std::fprintf(stderr, "tessarine-site: cannot write standard output: %s\n",
                 std::strerror(error_));
    return 1;
  }

 private:
  void Fail() {
    if (error_ == 0) error_ = errno != 0 ? errno : EIO;
  }
  int error_ = 0;
};

// A row's texts on one line: a TAB or a line break inside a link would break the line.
std::string OneLine(std::string text) {
  for (char& c : text) {
    if (c == '\t' || c == '\r' || c == '\n') c = ' ';
  }
  return text;
}

// Rows go to standard output as they come, message boxes to standard error, and the
// progress of a crawl to standard error when a person watches it.
class ConsoleSiteView : public SiteAnalyserView {
 public:
  ConsoleSiteView(StandardOutput& out, std::size_t columns, bool showProgress)
      : out_(out), columns_(columns), showProgress_(showProgress) {}

  void SetMode(const std::string&) override {}
  void SetCaption(const std::string&) override {}
  void SetColumnHeading(const std::string&) override {}
  void SetLabel(SiteLabel label, const std::string& text) override { labels_[label] = text; }
  void SetStatusText(const std::string&) override {}
  void StartAnimation() override {}
  void StopAnimation() override {}
  void ClearRows() override {}
  void AddRow(const SiteRow& row) override {
    std::string line = OneLine(row.text);
    for (std::size_t i = 0; i + 1 < columns_; ++i) {
      line += '\t';
      if (i < row.subItems.size()) line += OneLine(row.subItems[i]);
    }
    line += '\n';
    out_.Write(line);
  }
  void ShowMessage(const std::string& text) override {
    ClearProgress();
    std::fprintf(stderr, "%s\n", text.c_str());
  }
  void Beep() override {}
  void ProcessEvents() override {}
  void CrawlProgress(std::int64_t parsed, std::int64_t known) override {
    if (!showProgress_) return;
    const auto now = std::chrono::steady_clock::now();
    if (progressShown_ && now - lastProgress_ < std::chrono::milliseconds(100)) return;
    lastProgress_ = now;
    progressShown_ = true;
    std::fprintf(stderr, "\r%lld pages parsed, %lld in queue\033[K", static_cast<long long>(parsed),
                 static_cast<long long>(known - parsed));
    std::fflush(stderr);
  }
  void ClearProgress() {
    if (!progressShown_) return;
    std::fputs("\r\033[K", stderr);
    progressShown_ = false;
  }

  std::string Label(SiteLabel label) const {
    auto it = labels_.find(label);
    return it == labels_.end() ? std::string() : it->second;
  }

 private:
  StandardOutput& out_;
  std::size_t columns_;
  bool showProgress_;
  bool progressShown_ = false;
  std::chrono::steady_clock::time_point lastProgress_;
  std::map<SiteLabel, std::string> labels_;
};

// Fields joined by TABs, one line.
void PrintLine(StandardOutput& out, std::initializer_list<std::string> fields) {
  std::string line;
  bool first = true;
  for (const std::string& field : fields) {
    if (!first) line += '\t';
    first = false;
    line += OneLine(field);
  }
  line += '\n';
  out.Write(line);
}

}  // namespace

void PrintAnalyseUsage(bool toError) {
  std::fputs(
      "usage: tessarine-site analyse [--standard] START_PAGE\n"
      "       tessarine-site analyse [--standard] --page PAGE\n"
      "\n"
      "Checks the pages reachable from START_PAGE for broken links, anchors, images,\n"
      "script links and missing titles, and writes LinkReport.txt and BrokenLinks.txt\n"
      "in START_PAGE's folder. Prints one line per result (link, error kind, page, TAB\n"
      "separated), then the error count and the page count.\n"
      "With --page, analyses PAGE alone: one line per link (link, status, title,\n"
      "position), then its title, document weight, size and download time.\n"
      "With --standard, every link is resolved against its own page's folder as a\n"
      "browser does (query and fragment split off, %-escapes decoded), ID= and NAME=\n"
      "both count as anchors, and links of other schemes are listed, never fetched.\n"
      "Exit status: 0 after a run; 1 when the reports or standard output could not be\n"
      "written (the reason on standard error); 2 for a usage error or a page that cannot\n"
      "be read.\n",
      toError ? stderr : stdout);
}

int RunAnalyseCommand(int argc, char** argv) {
  bool pageMode = false;
  bool standard = false;
  std::vector<std::string> operands;
  for (int i = 0; i < argc; ++i) {
    if (std::strcmp(argv[i], "--help") == 0 || std::strcmp(argv[i], "-h") == 0) {
      PrintAnalyseUsage(false);
      return 0;
    }
    if (std::strcmp(argv[i], "--page") == 0 && !pageMode) {
      pageMode = true;
    } else if (std::strcmp(argv[i], "--standard") == 0) {
      standard = true;
    } else {
      operands.emplace_back(argv[i]);
    }
  }
  if (operands.size() != 1 || operands[0].empty()) {
    PrintAnalyseUsage(true);
    return 2;
  }

  std::error_code error;
  std::filesystem::path page = std::filesystem::absolute(operands[0], error);
  if (error || !page.has_filename()) {
    std::fprintf(stderr, "tessarine-site: cannot read '%s'\n", operands[0].c_str());
    return 2;
  }
  page = page.lexically_normal();
  if (!FileExistsForRead(page.string())) {
    std::fprintf(stderr, "tessarine-site: cannot read '%s'\n", operands[0].c_str());
    return 2;
  }
  const std::string folder = page.parent_path().string();
  const std::string fileName = page.filename().string();

  StandardOutput out;
  ConsoleSiteView view(out, pageMode ? 4 : 3, !pageMode && ::isatty(STDERR_FILENO) == 1);
  SiteAnalyser analyser(view);
  analyser.standardResolution = standard;
  if (pageMode) {
    analyser.AnalysePage(folder, fileName);
    PrintLine(out,
              {view.Label(SiteLabel::ResultsHeading), view.Label(SiteLabel::ErrorCountOrTitle)});
    PrintLine(out, {view.Label(SiteLabel::PageCountOrWeight)});
    PrintLine(out, {view.Label(SiteLabel::PageSize)});
    PrintLine(out, {view.Label(SiteLabel::DownloadTime)});
  } else {
    analyser.AnalyseSite(folder, fileName);
    view.ClearProgress();
    PrintLine(out,
              {view.Label(SiteLabel::ErrorCountOrTitle), view.Label(SiteLabel::PageCountOrWeight)});
    // The reason has gone to standard error with the closing message.
    if (!analyser.ReportFailure().empty()) return out.Finish(1);
  }
  return out.Finish(0);
}

}  // namespace tessarine
