// Global find and replace over real temporary folders.
#include "sitetools/GlobalReplace.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/fs.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <random>
#include <set>

#include "sitetools/SiteTestSupport.h"

namespace tessarine {
namespace {

using sitetest::ReadAll;
using sitetest::TempSite;
namespace fs = std::filesystem;

class RecordingHost : public GlobalReplaceHost {
 public:
  bool IsOpenAsDocument(const std::string& path) override { return openPaths.count(path) != 0; }
  void ShowMessage(const std::string& text) override { messages.push_back(text); }
  bool AskYesNo(const std::string& question) override {
    questions.push_back(question);
    return answerYes;
  }
  void FileDone(std::int64_t done, std::int64_t total) override {
    progress.emplace_back(done, total);
    if (afterFile) afterFile(done);
  }
  bool CancelRequested() override { return cancelAfter >= 0 && done() >= cancelAfter; }
  std::int64_t done() const { return progress.empty() ? 0 : progress.back().first; }

  std::set<std::string> openPaths;
  std::vector<std::string> messages;
  std::vector<std::string> questions;
  std::vector<std::pair<std::int64_t, std::int64_t>> progress;
  std::function<void(std::int64_t)> afterFile;
  bool answerYes = true;
  std::int64_t cancelAfter = -1;
};

std::tm FixedTime() {
  std::tm t{};
  t.tm_year = 2026 - 1900;
  t.tm_mon = 10;
  t.tm_mday = 23;
  t.tm_hour = 14;
  t.tm_min = 5;
  t.tm_sec = 9;
  t.tm_wday = 1;
  return t;
}

GlobalReplaceInputs Inputs(std::string find, std::string with, bool matchCase = false) {
  return {std::move(find), std::move(with), matchCase};
}

TEST(GlobalReplaceText, CountsAndReplacesByTheScanRules) {
  struct Case {
    const char* name;
    std::string text;
    GlobalReplaceInputs inputs;
    std::int64_t count;
    std::string replaced;
  };
  const std::string binary(
      "a\0b\xff\xfe"
      "cat\0",
      9);
  const std::string binaryOut(
      "a\0b\xff\xfe"
      "dog\0",
      9);
  const Case cases[] = {
      {"empty find finds nothing", "abc", Inputs("", "x"), 0, "abc"},
      {"case folded, replacement as typed", "TABLE table Table", Inputs("table", "Grid"), 3,
       "Grid Grid Grid"},
      {"match case", "TABLE table Table", Inputs("table", "grid", true), 1, "TABLE grid Table"},
      {"replacement holding the find text is not found again", "aaa", Inputs("a", "aa"), 3,
       "aaaaaa"},
      {"hits do not overlap", "aaaa", Inputs("aa", "b"), 2, "bb"},
      {"an empty replacement skips the hit right after", "aaaa", Inputs("a", ""), 2, "aa"},
      {"an empty replacement, hits apart", "xaxa", Inputs("a", ""), 2, "xx"},
      {"NUL bytes and invalid UTF-8 kept byte for byte", binary, Inputs("CAT", "dog"), 1,
       binaryOut},
      {"only ASCII letters fold", "\xc3\xa9t\xc3\xa9 \xc3\x89T\xc3\x89",
       Inputs("\xc3\xa9t\xc3\xa9", "ete"), 1, "ete \xc3\x89T\xc3\x89"},
      {"no hit", "abc", Inputs("zz", "y"), 0, "abc"},
  };
  for (const Case& c : cases) {
    std::string out;
    EXPECT_EQ(SearchReplaceText(c.text, c.inputs, &out), c.count) << c.name;
    EXPECT_EQ(out, c.replaced) << c.name;
    EXPECT_EQ(SearchReplaceText(c.text, c.inputs, nullptr), c.count) << c.name << " (count only)";
  }
}

struct ReplaceFolder {
  TempSite site;
  RecordingHost host;
  std::string Path(const std::string& name) const { return site.Root() + name; }
  GlobalReplaceRun Run(GlobalMode mode, const std::vector<std::string>& names,
                       const GlobalReplaceInputs& inputs) {
    std::vector<std::string> paths;
    for (const std::string& name : names) paths.push_back(Path(name));
    return RunGlobal(mode, site.Root(), paths, inputs, host, FixedTime());
  }
  std::string Report() const { return ReadAll(Path(kGlobalReplaceReportName)); }
};

std::string ReportHead(const std::string& find, const std::string& with) {
  const std::string stars(82, '*');
  return "\r\n\r\n" + stars +
         "\r\nGLOBAL REPLACE REPORT FOR Monday, Nov 23 2026 at 02:05:09 PM\r\n" + stars +
         "\r\nREPLACE THIS TEXT: " + find + "\r\nWITH THIS TEXT: " + with + "\r\n\r\n";
}

TEST(GlobalReplaceRun, ReplaceRewritesHitFilesLogsEveryFileAndLeavesTheOthers) {
  ReplaceFolder f;
  f.site.Write("a.html", "<TABLE><table>");
  f.site.Write("b.htm", "no hit here");
  f.site.Write("c.js", "table");
  ::chmod(f.Path("c.js").c_str(), 0640);
  struct stat before {};
  ::stat(f.Path("b.htm").c_str(), &before);

  const GlobalReplaceRun run =
      f.Run(GlobalMode::Replace, {"a.html", "b.htm", "c.js"}, Inputs("table", "grid"));
  ASSERT_TRUE(run.ran);
  EXPECT_EQ(run.countHeading, "# of Instances Replaced");
  ASSERT_EQ(run.rows.size(), 3u);
  EXPECT_EQ(run.rows[0].countText, " 2");
  EXPECT_EQ(run.rows[1].countText, " 0");
  EXPECT_EQ(run.rows[2].countText, " 1");
  EXPECT_EQ(ReadAll(f.Path("a.html")), "<grid><grid>\r\n");
  EXPECT_EQ(ReadAll(f.Path("c.js")), "grid\r\n");
  struct stat after {};
  ::stat(f.Path("b.htm").c_str(), &after);
  EXPECT_EQ(after.st_ino, before.st_ino) << "a file without a hit is not rewritten";
  EXPECT_EQ(ReadAll(f.Path("b.htm")), "no hit here");
  ::stat(f.Path("c.js").c_str(), &after);
  EXPECT_EQ(after.st_mode & 0777, 0640u) << "permissions kept";

  EXPECT_EQ(f.Report(), ReportHead("table", "grid") + " 2   " + f.Path("a.html") + "\r\n" +
                            " 0   " + f.Path("b.htm") + "\r\n" + " 1   " + f.Path("c.js") + "\r\n");
  EXPECT_EQ(f.host.questions,
            std::vector<std::string>{
                "Are you sure you want to replace the specified text in all selected files?"});
  ASSERT_EQ(f.host.messages.size(), 1u);
  EXPECT_EQ(f.host.messages[0].rfind("Text has been replaced in all files.", 0), 0u);
  EXPECT_EQ(f.host.progress.back(), std::make_pair(std::int64_t{3}, std::int64_t{3}));

  // A second run appends: the report is never truncated, and each run adds a line break.
  f.Run(GlobalMode::Replace, {"a.html"}, Inputs("grid", "cell", true));
  EXPECT_EQ(f.Report().rfind(ReportHead("table", "grid"), 0), 0u);
  EXPECT_NE(f.Report().find(ReportHead("grid", "cell") + " 2   " + f.Path("a.html")),
            std::string::npos);
  EXPECT_EQ(ReadAll(f.Path("a.html")), "<cell><cell>\r\n\r\n");
}

TEST(GlobalReplaceRun, FindCountsOnlyAndWritesNothing) {
  ReplaceFolder f;
  f.site.Write("a.html", "aaaa");
  f.site.Write("empty.html", "");
  f.host.openPaths.insert(f.Path("a.html"));  // Find reads the disk even for an open file
  const GlobalReplaceRun run = f.Run(GlobalMode::Find, {"a.html", "empty.html"}, Inputs("a", ""));
  EXPECT_EQ(run.countHeading, "# of Instances Found");
  ASSERT_EQ(run.rows.size(), 2u);
  EXPECT_EQ(run.rows[0].countText, " 2");
  EXPECT_EQ(run.rows[1].countText, "File could not be opened");
  EXPECT_EQ(run.rows[1].outcome, GlobalReplaceRow::Outcome::Empty);
  EXPECT_EQ(ReadAll(f.Path("a.html")), "aaaa");
  EXPECT_FALSE(fs::exists(f.Path(kGlobalReplaceReportName)));
  EXPECT_TRUE(f.host.questions.empty());
  EXPECT_EQ(f.host.messages, std::vector<std::string>{
                                 "Search for text in all files is complete.\n\nYou can view the "
                                 "Find results by clicking on the 'Results' tab."});
}

TEST(GlobalReplaceRun, NothingHappensWithoutFilesOrWithoutTheYes) {
  ReplaceFolder f;
  f.site.Write("a.html", "x");
  EXPECT_FALSE(f.Run(GlobalMode::Replace, {}, Inputs("x", "y")).ran);
  EXPECT_EQ(f.host.messages, std::vector<std::string>{"Please select one or more files."});
  f.host.answerYes = false;
  EXPECT_FALSE(f.Run(GlobalMode::Replace, {"a.html"}, Inputs("x", "y")).ran);
  EXPECT_EQ(ReadAll(f.Path("a.html")), "x");
  EXPECT_FALSE(fs::exists(f.Path(kGlobalReplaceReportName)));
}

TEST(GlobalReplaceRun, OpenDocumentsMissingAndDeletedFilesAreSkippedNeverCreated) {
  ReplaceFolder f;
  f.site.Write("open.html", "x");
  f.site.Write("b.html", "x");
  f.site.Write("doomed.html", "x");
  f.site.Write("d.html", "x");
  f.host.openPaths.insert(f.Path("open.html"));
  // b.html is done when doomed.html disappears, as another program might remove it.
  f.host.afterFile = [&](std::int64_t done) {
    if (done == 2) fs::remove(f.Path("doomed.html"));
  };
  const GlobalReplaceRun run =
      f.Run(GlobalMode::Replace, {"open.html", "b.html", "doomed.html", "missing.html", "d.html"},
            Inputs("x", "y"));
  ASSERT_EQ(run.rows.size(), 5u);
  const char* expected[] = {"File could not be opened", " 1", "File could not be opened",
                            "File could not be opened", " 1"};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(run.rows[i].countText, expected[i]) << i;
  EXPECT_EQ(ReadAll(f.Path("open.html")), "x");
  EXPECT_EQ(ReadAll(f.Path("b.html")), "y\r\n");
  EXPECT_EQ(ReadAll(f.Path("d.html")), "y\r\n");
  EXPECT_FALSE(fs::exists(f.Path("doomed.html")));
  EXPECT_FALSE(fs::exists(f.Path("missing.html")));
  ASSERT_GE(f.host.messages.size(), 3u);
  EXPECT_EQ(f.host.messages[0],
            f.Path("open.html") +
                "  is already open in Tessarine.  Replace operation cannot be performed on this "
                "file.");
  EXPECT_EQ(f.host.messages[1], "Can't open file: " + f.Path("doomed.html"));
  EXPECT_EQ(f.host.messages[2], "Can't open file: " + f.Path("missing.html"));
  EXPECT_NE(f.Report().find(" 0   " + f.Path("open.html")), std::string::npos);
}

TEST(GlobalReplaceRun, CancelStopsBetweenFiles) {
  ReplaceFolder f;
  for (const char* name : {"1.html", "2.html", "3.html"}) f.site.Write(name, "x");
  f.host.cancelAfter = 2;
  const GlobalReplaceRun run =
      f.Run(GlobalMode::Replace, {"1.html", "2.html", "3.html"}, Inputs("x", "y"));
  EXPECT_TRUE(run.cancelled);
  EXPECT_EQ(run.rows.size(), 2u);
  EXPECT_EQ(ReadAll(f.Path("2.html")), "y\r\n");
  EXPECT_EQ(ReadAll(f.Path("3.html")), "x");
  EXPECT_EQ(f.host.messages.back(), "Stopped after 2 of 3 files.");
}

// Makes a file or folder unwritable even for root (the immutable flag), or by its mode
// for anyone else. False when neither is possible here.
bool MakeUnwritable(const std::string& path, bool on) {
  if (::geteuid() != 0) return ::chmod(path.c_str(), on ? 0555 : 0755) == 0;
  const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK);
  if (fd < 0) return false;
  int flags = 0;
  bool ok = ::ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0;
  if (ok) {
    flags = on ? (flags | FS_IMMUTABLE_FL) : (flags & ~FS_IMMUTABLE_FL);
    ok = ::ioctl(fd, FS_IOC_SETFLAGS, &flags) == 0;
  }
  ::close(fd);
  return ok;
}

TEST(GlobalReplaceRun, ReadOnlyFilesAndFoldersAreLeftWholeAndSaySo) {
  ReplaceFolder f;
  f.site.Write("locked.html", "x");
  f.site.Write("ro/page.html", "x");
  f.site.Write("free.html", "x");
  if (!MakeUnwritable(f.Path("locked.html"), true) || !MakeUnwritable(f.Path("ro"), true)) {
    GTEST_SKIP() << "cannot make a file unwritable here";
  }
  const GlobalReplaceRun run =
      f.Run(GlobalMode::Replace, {"locked.html", "ro/page.html", "free.html"}, Inputs("x", "y"));
  MakeUnwritable(f.Path("locked.html"), false);
  MakeUnwritable(f.Path("ro"), false);
  ASSERT_EQ(run.rows.size(), 3u);
  EXPECT_EQ(run.rows[0].countText, "File could not be saved");
  EXPECT_EQ(run.rows[1].countText, "File could not be saved");
  EXPECT_EQ(run.rows[2].countText, " 1");
  EXPECT_EQ(ReadAll(f.Path("locked.html")), "x");
  EXPECT_EQ(ReadAll(f.Path("ro/page.html")), "x");
  EXPECT_EQ(ReadAll(f.Path("free.html")), "y\r\n");
  EXPECT_EQ(f.host.messages[0], "Read only file.  Use Save As to save the file.");
  EXPECT_NE(f.Report().find("   File could not be saved: " + f.Path("locked.html")),
            std::string::npos);
  for (const auto& entry : fs::recursive_directory_iterator(f.site.Root())) {
    EXPECT_EQ(entry.path().filename().string().find(".tsrn"), std::string::npos)
        << "temporary left: " << entry.path();
  }
}

TEST(GlobalReplaceRun, AFullDiskLeavesTheFileAsItWas) {
  TempSite site;
  const std::string mountPoint = site.Root() + "small";
  fs::create_directories(mountPoint);
  if (::mount("tmpfs", mountPoint.c_str(), "tmpfs", 0, "size=64k") != 0) {
    GTEST_SKIP() << "cannot mount a small file system here";
  }
  const std::string page = mountPoint + "/page.html";
  const std::string text(40 * 1024, 'x');
  { std::ofstream(page, std::ios::binary) << text; }
  RecordingHost host;
  const GlobalReplaceRun run =
      RunGlobal(GlobalMode::Replace, site.Root(), {page}, Inputs("x", "yy"), host, FixedTime());
  const std::string after = ReadAll(page);
  ::umount(mountPoint.c_str());
  ASSERT_EQ(run.rows.size(), 1u);
  EXPECT_EQ(run.rows[0].countText, "File could not be saved");
  EXPECT_EQ(after, text);
  EXPECT_EQ(host.messages[0], "Disk full: " + page);
}

// A replace killed anywhere leaves every file either as it was or wholly rewritten.
TEST(GlobalReplaceRun, AKilledRunLeavesEachFileOldOrNew) {
  constexpr int kFiles = 40;
  const std::string oldText = [] {
    std::string s;
    for (int i = 0; i < 20000; ++i) s += "<p>needle " + std::to_string(i) + "</p>\r\n";
    return s;
  }();
  const std::string newText = [&] {
    std::string s;
    SearchReplaceText(oldText, Inputs("needle", "thread", true), &s);
    return s + "\r\n";
  }();
  std::mt19937 random(20261123);
  for (int round = 0; round < 6; ++round) {
    TempSite site;
    std::vector<std::string> paths;
    for (int i = 0; i < kFiles; ++i) {
      paths.push_back(site.Root() + "p" + std::to_string(i) + ".html");
      std::ofstream(paths.back(), std::ios::binary) << oldText;
    }
    int pipeFds[2];
    ASSERT_EQ(::pipe(pipeFds), 0);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      ::close(pipeFds[0]);
      struct PipeHost : RecordingHost {
        int fd = -1;
        void FileDone(std::int64_t, std::int64_t) override { (void)!::write(fd, "+", 1); }
      } host;
      host.fd = pipeFds[1];
      RunGlobal(GlobalMode::Replace, site.Root(), paths, Inputs("needle", "thread", true), host,
                FixedTime());
      ::_exit(0);
    }
    ::close(pipeFds[1]);
    // Let a random number of files finish, then kill it in the middle of the next ones.
    const int waitFor = std::uniform_int_distribution<int>(0, kFiles / 2)(random);
    char byte;
    for (int i = 0; i < waitFor && ::read(pipeFds[0], &byte, 1) == 1; ++i) {
    }
    for (int spin = std::uniform_int_distribution<int>(0, 200000)(random); spin > 0; --spin) {
      asm volatile("" ::: "memory");
    }
    ::kill(child, SIGKILL);
    int status = 0;
    ::waitpid(child, &status, 0);
    ::close(pipeFds[0]);
    int rewritten = 0;
    for (const std::string& path : paths) {
      const std::string now = ReadAll(path);
      ASSERT_TRUE(now == oldText || now == newText) << path << " is half written";
      rewritten += now == newText;
    }
    EXPECT_GE(rewritten, waitFor) << "round " << round;
  }
}

}  // namespace
}  // namespace tessarine
