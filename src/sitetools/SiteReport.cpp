#include "sitetools/SiteReport.h"

namespace tessarine {

void SiteReport::Create(const std::string& folder, const std::string& firstLine) {
  Close();
  link_ = std::fopen((folder + kLinkReportName).c_str(), "wb");
  broken_ = std::fopen((folder + kBrokenLinksName).c_str(), "wb");
  LinkLine(firstLine);
  BrokenLine(firstLine);
}

void SiteReport::Line(std::FILE* file, std::string_view text) {
  if (!file) return;
  std::fwrite(text.data(), 1, text.size(), file);
  std::fwrite("\r\n", 1, 2, file);
}

void SiteReport::Flush() {
  if (link_) std::fflush(link_);
  if (broken_) std::fflush(broken_);
}

void SiteReport::Close() {
  if (link_) std::fclose(link_);
  if (broken_) std::fclose(broken_);
  link_ = nullptr;
  broken_ = nullptr;
}

}  // namespace tessarine
