#pragma once
// The two report files of a site run, LinkReport.txt and BrokenLinks.txt. Both stay open
// for the run and are flushed after each page, so a run that dies leaves what it wrote.
// Writes that fail are ignored, as the whole crawl ignores its errors.

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
  // `firstLine` as its first line.
  void Create(const std::string& folder, const std::string& firstLine);
  void LinkLine(std::string_view text) { Line(link_, text); }
  void BrokenLine(std::string_view text) { Line(broken_, text); }
  void Flush();
  void Close();

  static constexpr const char* kLinkReportName = "LinkReport.txt";
  static constexpr const char* kBrokenLinksName = "BrokenLinks.txt";

 private:
  static void Line(std::FILE* file, std::string_view text);
  std::FILE* link_ = nullptr;
  std::FILE* broken_ = nullptr;
};

}  // namespace tessarine
