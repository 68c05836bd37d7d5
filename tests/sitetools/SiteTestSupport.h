#pragma once
// Real folders for the site analyser's tests: a fresh tree under the temporary folder,
// removed again at the end of the test.

#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <string>

#include "sitetools/RecordingSiteView.h"
#include "sitetools/SiteAnalyser.h"

namespace tessarine::sitetest {

namespace fs = std::filesystem;

class TempSite {
 public:
  TempSite() {
    static std::atomic<int> counter{0};
    base_ = fs::temp_directory_path() /
            ("tessarine-site-" + std::to_string(::getpid()) + "-" + std::to_string(++counter));
    fs::remove_all(base_);
    fs::create_directories(base_ / "site");
    // The analyser works on the path as given: make it the one the tests expect.
    base_ = fs::canonical(base_);
  }
  ~TempSite() {
    std::error_code ignored;
    fs::remove_all(base_, ignored);
  }
  TempSite(const TempSite&) = delete;
  TempSite& operator=(const TempSite&) = delete;

  // The folder above the site root, and the root with its closing "/".
  std::string Base() const { return base_.string() + "/"; }
  std::string Root() const { return (base_ / "site").string() + "/"; }

  // Writes `text` to the file at `relative` (to the site root), making its folders.
  void Write(const std::string& relative, const std::string& text) const {
    fs::path path = base_ / "site" / relative;
    fs::create_directories(path.parent_path());
    std::ofstream out(path, std::ios::binary);
    out << text;
  }
  void Mkdir(const std::string& relative) const {
    fs::create_directories(base_ / "site" / relative);
  }

 private:
  fs::path base_;
};

inline std::string ReadAll(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// Lines as the report files write them: each one closed by CR LF.
// The message a finished crawl shows, without the command line's final line end.
inline std::string CompletionMessage(const std::string& root) {
  return "Web site analysis is complete.  Refer to the following files\n"
         " in the Web site's main folder (" +
         root +
         ")\n"
         "for more information:\n\n"
         "-   BrokenLinks.txt\n"
         "-   LinkReport.txt";
}

inline std::string CrLfLines(std::initializer_list<std::string> lines) {
  std::string out;
  for (const std::string& line : lines) out += line + "\r\n";
  return out;
}

// The start page's lines of LinkReport.txt after a crawl from a site made of one page.
struct OnePageCrawl {
  explicit OnePageCrawl(const std::string& page) {
    site.Write("start.html", page);
    analyser.AnalyseSite(site.Root(), "start.html");
    linkReport = ReadAll(site.Root() + "LinkReport.txt");
    brokenLinks = ReadAll(site.Root() + "BrokenLinks.txt");
  }
  TempSite site;
  RecordingSiteView view;
  SiteAnalyser analyser{view};
  std::string linkReport;
  std::string brokenLinks;
};

}  // namespace tessarine::sitetest
