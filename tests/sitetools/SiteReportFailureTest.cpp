// Report files that cannot be written, pages beyond the read cap, names that would break
// the report's lines, and anchors too long for the index: a crawl ends, and says what
// it could not do.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

#include "sitetools/SiteFiles.h"
#include "sitetools/SiteTestSupport.h"

namespace tessarine {
namespace {

using sitetest::CompletionMessage;
using sitetest::CrLfLines;
using sitetest::ReadAll;
using sitetest::TempSite;
namespace fs = std::filesystem;

std::string NotWritten(const std::string& root, const std::string& why) {
  return "Web site analysis is complete, but its reports could not be written in the Web "
         "site's main folder (" +
         root + "):\n" + why;
}

// The site folder on a small file system of its own; only root may mount one.
struct SiteOnSmallDisk {
  explicit SiteOnSmallDisk(const TempSite& site) : root(site.Root()) {
    mounted = ::mount("tmpfs", root.c_str(), "tmpfs", 0, "size=64k") == 0;
  }
  ~SiteOnSmallDisk() {
    if (mounted) ::umount(root.c_str());
  }
  bool MakeReadOnly() const {
    return ::mount(nullptr, root.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) == 0;
  }
  // Takes every byte left.
  void Fill() const {
    const int fd = ::open((root + "filler").c_str(), O_WRONLY | O_CREAT, 0644);
    const std::string block(4096, 'f');
    while (::write(fd, block.data(), block.size()) > 0) {
    }
    while (::write(fd, block.data(), 1) > 0) {
    }
    ::close(fd);
  }
  std::string root;
  bool mounted = false;
};

TEST(SiteReportFailure, FifosNamedLikeTheReportsAreRefusedNotWaitedOn) {
  TempSite site;
  site.Write("start.html", "<A HREF=\"gone.html\">");
  ASSERT_EQ(::mkfifo((site.Root() + "LinkReport.txt").c_str(), 0644), 0);
  RecordingSiteView view;
  SiteAnalyser analyser(view);
  analyser.AnalyseSite(site.Root(), "start.html");
  EXPECT_EQ(analyser.ReportFailure(), "LinkReport.txt: not a regular file");
  EXPECT_EQ(view.messages, std::vector<std::string>{
                               NotWritten(site.Root(), "LinkReport.txt: not a regular file")});
  // The other report is written all the same, and the results are whole.
  EXPECT_EQ(ReadAll(site.Root() + "BrokenLinks.txt"),
            CrLfLines({site.Root() + "start.html", "          gone.html"}));
  EXPECT_EQ(view.rows.size(), 1u);
  struct stat info {};
  ASSERT_EQ(::lstat((site.Root() + "LinkReport.txt").c_str(), &info), 0);
  EXPECT_TRUE(S_ISFIFO(info.st_mode));
}

TEST(SiteReportFailure, AReadOnlySiteFolderAndAFullDiskAreSaidWithTheirReason) {
  TempSite site;
  SiteOnSmallDisk disk(site);
  if (!disk.mounted) GTEST_SKIP() << "cannot mount a small file system here";
  site.Write("start.html", "<TITLE>Home</TITLE><A HREF=\"a.html\"> <A HREF=\"gone.html\">");
  site.Write("a.html", "<IMG SRC=\"none.gif\">");

  disk.Fill();
  RecordingSiteView full;
  SiteAnalyser onFullDisk(full);
  onFullDisk.AnalyseSite(site.Root(), "start.html");
  EXPECT_EQ(full.messages, std::vector<std::string>{
                               NotWritten(site.Root(), "LinkReport.txt: No space left on device")});
  EXPECT_EQ(full.rows.size(), 2u);

  fs::remove(site.Root() + "filler");
  ASSERT_TRUE(disk.MakeReadOnly());
  RecordingSiteView readOnly;
  SiteAnalyser inReadOnlyFolder(readOnly);
  inReadOnlyFolder.AnalyseSite(site.Root(), "start.html");
  EXPECT_EQ(readOnly.messages, std::vector<std::string>{NotWritten(
                                   site.Root(), "LinkReport.txt: Read-only file system")});
  EXPECT_EQ(readOnly.rows, full.rows);
}

TEST(SiteReportFailure, LineBreaksAndTabsInNamesAndTitlesAreWrittenAsBlanks) {
  TempSite site;
  site.Write("start.html", "<A HREF=\"two\nlines.html\"> <A HREF=\"gone\tpage.html\">");
  site.Write("two\nlines.html", "<TITLE>A\tB\r\nC</TITLE>");
  RecordingSiteView view;
  SiteAnalyser analyser(view);
  analyser.AnalyseSite(site.Root(), "start.html");
  const std::string second = site.Root() + "two lines.html";
  EXPECT_EQ(
      ReadAll(site.Root() + "LinkReport.txt"),
      CrLfLines({site.Root() + "start.html", "          two lines.html", "          gone page.html",
                 "", "", second, "          A B  C", "   Frame Source Links:", "", "   Links:", "",
                 "   Background Image:", "", "   Images:"}));
  EXPECT_EQ(ReadAll(site.Root() + "BrokenLinks.txt"),
            CrLfLines({site.Root() + "start.html", "          gone page.html", "", "", second}));
  // The results list keeps the names as they are.
  ASSERT_EQ(view.rows.size(), 1u);
  EXPECT_EQ(view.rows[0].text, "gone\tpage.html");
}

// Long anchors once read the whole target file for every link.
TEST(SiteReportFailure, LongAnchorsReadTheirPageOnce) {
  TempSite site;
  const std::string head(200, 'x');
  std::string start, target;
  for (int i = 0; i < 2000; ++i) {
    start += "<A HREF=\"big.html#" + head + std::to_string(i) + "\">\r\n";
    if (i % 2 == 0) target += "<A NAME=\"" + head + std::to_string(i) + "\">\r\n";
  }
  site.Write("start.html", start);
  site.Write("big.html", target);
  RecordingSiteView view;
  SiteAnalyser analyser(view);
  analyser.AnalyseSite(site.Root(), "start.html");
  EXPECT_EQ(analyser.FileReads(), 2);  // the start page and big.html
  ASSERT_EQ(view.rows.size(), 1000u);
  EXPECT_EQ(view.rows[0].text, "big.html#" + head + "1");
  EXPECT_EQ(view.rows[0].subItems[0], "Broken Anchor");
  EXPECT_EQ(view.rows[999].text, "big.html#" + head + "1999");
}

TEST(SiteReportFailure, APageBeyondTheReadCapIsReportedAsCut) {
  TempSite site;
  site.Write("start.html", "<A HREF=\"huge.html\"> <A HREF=\"just.html\">");
  for (const auto& [name, size] :
       {std::pair{"huge.html", kMaxPageTextBytes + 1}, std::pair{"just.html", kMaxPageTextBytes}}) {
    site.Write(name, "");
    ASSERT_EQ(::truncate((site.Root() + name).c_str(), size), 0);
  }
  RecordingSiteView view;
  SiteAnalyser analyser(view);
  analyser.AnalyseSite(site.Root(), "start.html");
  EXPECT_EQ(view.messages, (std::vector<std::string>{
                               site.Root() + "huge.html is larger than 32 MB: only its first 32 MB "
                                             "were checked.",
                               CompletionMessage(site.Root())}));
}

}  // namespace
}  // namespace tessarine
