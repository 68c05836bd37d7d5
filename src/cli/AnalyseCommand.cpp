#include "cli/AnalyseCommand.h"

#include <unistd.h>

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
  ConsoleSiteView(std::size_t columns, bool showProgress)
      : columns_(columns), showProgress_(showProgress) {}

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
    std::fwrite(line.data(), 1, line.size(), stdout);
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
  std::size_t columns_;
  bool showProgress_;
  bool progressShown_ = false;
  std::chrono::steady_clock::time_point lastProgress_;
  std::map<SiteLabel, std::string> labels_;
};

// Fields joined by TABs, one line.
void PrintLine(std::initializer_list<std::string> fields) {
  std::string line;
  bool first = true;
  for (const std::string& field : fields) {
    if (!first) line += '\t';
    first = false;
    line += OneLine(field);
  }
  line += '\n';
  std::fwrite(line.data(), 1, line.size(), stdout);
}

}  // namespace

void PrintAnalyseUsage(bool toError) {
  std::fputs(
      "usage: tessarine-site analyse START_PAGE\n"
      "       tessarine-site analyse --page PAGE\n"
      "\n"
      "Checks the pages reachable from START_PAGE for broken links, anchors, images,\n"
      "script links and missing titles, and writes LinkReport.txt and BrokenLinks.txt\n"
      "in START_PAGE's folder. Prints one line per result (link, error kind, page, TAB\n"
      "separated), then the error count and the page count.\n"
      "With --page, analyses PAGE alone: one line per link (link, status, title,\n"
      "position), then its title, document weight, size and download time.\n"
      "Exit status: 0 after a run, 2 for a usage error or a page that cannot be read.\n",
      toError ? stderr : stdout);
}

int RunAnalyseCommand(int argc, char** argv) {
  bool pageMode = false;
  std::vector<std::string> operands;
  for (int i = 0; i < argc; ++i) {
    if (std::strcmp(argv[i], "--help") == 0 || std::strcmp(argv[i], "-h") == 0) {
      PrintAnalyseUsage(false);
      return 0;
    }
    if (std::strcmp(argv[i], "--page") == 0 && !pageMode) {
      pageMode = true;
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

  ConsoleSiteView view(pageMode ? 4 : 3, !pageMode && ::isatty(STDERR_FILENO) == 1);
  SiteAnalyser analyser(view);
  if (pageMode) {
    analyser.AnalysePage(folder, fileName);
    PrintLine({view.Label(SiteLabel::Label2), view.Label(SiteLabel::Label4)});
    PrintLine({view.Label(SiteLabel::Label5)});
    PrintLine({view.Label(SiteLabel::Label9)});
    PrintLine({view.Label(SiteLabel::Label12)});
  } else {
    analyser.AnalyseSite(folder, fileName);
    view.ClearProgress();
    PrintLine({view.Label(SiteLabel::Label4), view.Label(SiteLabel::Label5)});
  }
  std::fflush(stdout);
  return 0;
}

}  // namespace tessarine
