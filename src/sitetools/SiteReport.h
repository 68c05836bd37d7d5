#pragma once
// The two report files of a site run, LinkReport.txt and BrokenLinks.txt. Both stay open
// for the run and are flushed after each page, so a run that dies leaves what it wrote.
// The crawl goes on whatever happens to them, but the first failure is kept, so that the
// end of the run can say that the reports are missing or incomplete, and why.

#include <cstdio>
#include <string>
#include <string_view>

namespace tessarine {

class SiteReport {
 public:
  SiteReport() = default;
  SiteReport(const SiteReport&) = delete;
  SiteReport& operator=(const SiteReport&) = delete;
  ~SiteReport() { Close(); }

  // Creates both files in `folder` (closing "/" included), overwriting old ones; each gets
  // `firstLine` as its first line. A name taken by something other than a regular file (a
  // FIFO, a device) is refused rather than waited on or written into.
  void Create(const std::string& folder, const std::string& firstLine);
  void LinkLine(std::string_view text) { Line(link_, text); }
  void BrokenLine(std::string_view text) { Line(broken_, text); }
  void Flush();
  void Close();

  // Empty while every open and write succeeded; else the first failure, as
  // "LinkReport.txt: No space left on device".
  const std::string& Failure() const { return failure_; }

  static constexpr const char* kLinkReportName = "LinkReport.txt";
  static constexpr const char* kBrokenLinksName = "BrokenLinks.txt";

 private:
  struct File {
    std::FILE* stream = nullptr;
    const char* name = nullptr;
  };
  void Open(File& file, const std::string& folder, const char* name);
  void Line(File& file, std::string_view text);
  void Fail(const File& file, const std::string& why);
  void FailErrno(const File& file);

  File link_;
  File broken_;
  std::string failure_;
};

}  // namespace tessarine
