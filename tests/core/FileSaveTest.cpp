// Writing documents to disk: the replacing writer and its failures, and SaveFile's messages.

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>

#include "core/FileSave.h"
#include "core/Startup.h"
#include "core/TestApp.h"

namespace tessarine {
namespace {

namespace fs = std::filesystem;
using testing::ReadAll;
using testing::TempDir;
using testing::TestApp;
using testing::WriteAll;

std::vector<std::string> Names(const fs::path& dir) {
  std::vector<std::string> out;
  for (const auto& e : fs::directory_iterator(dir)) out.push_back(e.path().filename().string());
  std::sort(out.begin(), out.end());
  return out;
}

mode_t ModeOf(const std::string& path) {
  struct stat st {};
  ::stat(path.c_str(), &st);
  return st.st_mode & 07777;
}

TEST(WriteFileReplacing, ReplacesTheTextAndKeepsThePermissions) {
  TempDir dir;
  const std::string path = dir / "page.html";
  WriteAll(path, "a much longer old text than the new one");
  ::chmod(path.c_str(), 0640);
  EXPECT_EQ(WriteFileReplacing(path, "new", "\r\n"), 0);
  EXPECT_EQ(ReadAll(path), "new\r\n");
  EXPECT_EQ(ModeOf(path), 0640u);
  EXPECT_EQ(Names(dir.path()), std::vector<std::string>{"page.html"});

  // A new file gets the ordinary mode of a new file.
  const mode_t mask = ::umask(022);
  EXPECT_EQ(WriteFileReplacing(dir / "fresh.html", "", ""), 0);
  ::umask(mask);
  EXPECT_EQ(ModeOf(dir / "fresh.html"), 0644u);
  EXPECT_EQ(ReadAll(dir / "fresh.html"), "");
}

TEST(WriteFileReplacing, WritesThroughASymbolicLink) {
  TempDir dir;
  fs::create_directory(dir.path() / "real");
  WriteAll(dir / "real/target.html", "old");
  fs::create_symlink("real/target.html", dir.path() / "link.html");
  EXPECT_EQ(WriteFileReplacing(dir / "link.html", "via link", "\r\n"), 0);
  EXPECT_TRUE(fs::is_symlink(dir.path() / "link.html"));
  EXPECT_EQ(ReadAll(dir / "real/target.html"), "via link\r\n");
  EXPECT_EQ(Names(dir.path()), (std::vector<std::string>{"link.html", "real"}));
  EXPECT_EQ(Names(dir.path() / "real"), std::vector<std::string>{"target.html"});
}

TEST(WriteFileReplacing, FailuresMapToTheirErrorNumbers) {
  TempDir dir;
  EXPECT_EQ(WriteFileReplacing(dir / "no/such/dir.html", "x", ""), 53);
  EXPECT_EQ(WriteFileReplacing(dir.path().string(), "x", ""), 75);
  WriteAll(dir / "file", "f");
  EXPECT_EQ(WriteFileReplacing(dir / "file/below.html", "x", ""), 76);
  EXPECT_EQ(ReadAll(dir / "file"), "f");
  EXPECT_EQ(ErrorDescription(61), "Disk full");
  EXPECT_EQ(ErrorDescription(75), "Path/File access error");
}

TEST(WriteFileReplacing, ADiskFullLeavesTheOldFileIntact) {
  TempDir dir;
  const std::string path = dir / "page.html";
  WriteAll(path, "old text");
  const pid_t child = ::fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    // Past the size limit write fails with EFBIG instead of killing the process.
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{16, 16};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    ::_exit(WriteFileReplacing(path, std::string(4096, 'n'), "\r\n"));
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 61);
  EXPECT_EQ(ReadAll(path), "old text");
  EXPECT_EQ(Names(dir.path()), std::vector<std::string>{"page.html"});
}

TEST(WriteFileReplacing, AFullFileSystemIsDiskFullAndTheOldTextStays) {
  TempDir dir;
  const std::string mnt = dir / "small";
  fs::create_directory(mnt);
  if (::mount("tmpfs", mnt.c_str(), "tmpfs", 0, "size=64k") != 0)
    GTEST_SKIP() << "cannot mount a small file system here";
  struct Unmount {
    std::string path;
    ~Unmount() { ::umount(path.c_str()); }
  } unmount{mnt};
  const std::string path = mnt + "/page.html";
  WriteAll(path, "old text");
  EXPECT_EQ(WriteFileReplacing(path, std::string(256 * 1024, 'n'), "\r\n"), 61);
  EXPECT_EQ(ReadAll(path), "old text");
  EXPECT_EQ(Names(mnt), std::vector<std::string>{"page.html"});

  // SaveFile shows it and goes on as if the file were written; the file itself is whole.
  TestApp t;
  auto& w = t.NewWindow(std::string(256 * 1024, 'x'));
  w.Buffer().Type("y");
  SaveFile(t.app, w, path, SaveMode::Command);
  ASSERT_EQ(t.messages.shown().size(), 1u);
  EXPECT_EQ(t.messages.shown()[0].text, "Error# 61: Disk full");
  EXPECT_EQ(t.messages.shown()[0].icon, MsgIcon::Exclamation);
  EXPECT_EQ(w.Caption(), path);
  EXPECT_FALSE(t.Changed(w));
  EXPECT_EQ(ReadAll(path), "old text");
}

TEST(SaveFile, AReadOnlyFileIsReportedAndTheDocumentStaysChanged) {
  TempDir dir;
  const std::string path = dir / "ro.html";
  WriteAll(path, "read only");
  ::chmod(path.c_str(), 0444);
  ::chmod(dir.path().c_str(), 0777);
  // Root may write anything: the check runs as an ordinary user.
  const pid_t child = ::fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    if (::getuid() == 0 && (::setgid(65534) != 0 || ::setuid(65534) != 0)) ::_exit(100);
    TestApp t;
    auto& w = t.NewWindow();
    w.Buffer().Type("edited");
    SaveFile(t.app, w, path, SaveMode::Command);
    const bool ok = t.messages.shown().size() == 1 &&
                    t.messages.shown()[0].text ==
                        "Error# 75: Path/File access error\r\nRead-only file.  File not saved." &&
                    t.Changed(w) && w.Caption() == "Untitled:1" &&
                    !t.store.Has("Startup", "RecentFile1");
    ::_exit(ok ? 0 : 1);
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFEXITED(status));
  if (WEXITSTATUS(status) == 100) GTEST_SKIP() << "cannot give up root here";
  EXPECT_EQ(WEXITSTATUS(status), 0);
  EXPECT_EQ(ReadAll(path), "read only");
  EXPECT_EQ(Names(dir.path()), std::vector<std::string>{"ro.html"});
}

// Runs `chattr` on a path; false when the file system or the user cannot.
bool Chattr(const char* flag, const std::string& path) {
  const std::string command = std::string("chattr ") + flag + " '" + path + "' 2>/dev/null";
  return std::system(command.c_str()) == 0;
}

TEST(WriteFileReplacing, AnImmutableFileIsReportedReadOnlyAndKept) {
  TempDir dir;
  const std::string path = dir / "locked.html";
  WriteAll(path, "locked");
  if (!Chattr("+i", path)) GTEST_SKIP() << "cannot make a file immutable here";
  struct Unlock {
    std::string path;
    ~Unlock() { Chattr("-i", path); }
  } unlock{path};

  EXPECT_EQ(WriteFileReplacing(path, "new", "\r\n"), 75);
  EXPECT_EQ(ReadAll(path), "locked");
  EXPECT_EQ(Names(dir.path()), std::vector<std::string>{"locked.html"});

  // SaveFile shows it and leaves caption and flag as they were.
  TestApp t;
  auto& w = t.NewWindow();
  w.Buffer().Type("edited");
  const int focus = w.Buffer().FocusCount();
  SaveFile(t.app, w, path, SaveMode::Command);
  ASSERT_EQ(t.messages.shown().size(), 1u);
  EXPECT_EQ(t.messages.shown()[0].text,
            "Error# 75: Path/File access error\r\nRead-only file.  File not saved.");
  EXPECT_EQ(t.messages.shown()[0].title, "Tessarine");
  EXPECT_EQ(w.Caption(), "Untitled:1");
  EXPECT_TRUE(t.Changed(w));
  EXPECT_GT(w.Buffer().FocusCount(), focus);
  EXPECT_EQ(t.frame.mousePointer, MousePointer::Default);
}

TEST(SaveFile, OtherErrorsAreShownAndTheDocumentCountsAsSaved) {
  TestApp t;
  TempDir dir;
  auto& w = t.NewWindow();
  w.Buffer().Type("x");
  SaveFile(t.app, w, dir / "gone/a.html", SaveMode::Command);
  ASSERT_EQ(t.messages.shown().size(), 1u);
  EXPECT_EQ(t.messages.shown()[0].text, "Error# 53: File not found");
  EXPECT_EQ(w.Caption(), dir / "gone/a.html");
  EXPECT_FALSE(t.Changed(w));
}

TEST(SaveFile, AFileOpenedAndSavedKeepsItsBytes) {
  TestApp t;
  TempDir dir;
  const std::string path = dir / "a.html";
  const std::string bytes = "<P>a\r\n\r\n";
  WriteAll(path, bytes);
  ASSERT_TRUE(OpenFile(t.app, path));
  auto& w = *t.frame.Windows().back();
  SaveFile(t.app, w, w.Caption(), SaveMode::Command);
  SaveFile(t.app, w, w.Caption(), SaveMode::Command);
  EXPECT_EQ(ReadAll(path), bytes);
  EXPECT_TRUE(t.messages.shown().empty());

  w.Buffer().Type("x");
  SaveFile(t.app, w, "", SaveMode::Command);  // an empty name does nothing
  EXPECT_TRUE(t.Changed(w));
  EXPECT_EQ(ReadAll(path), bytes);
}

}  // namespace
}  // namespace tessarine
