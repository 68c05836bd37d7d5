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

// A small file system of its own, mounted for the test and unmounted after it; only root
// may mount, elsewhere the rows that need one are skipped.
struct SmallMount {
  SmallMount(const std::string& where, const char* options, unsigned long flags = 0) : path(where) {
    fs::create_directory(path);
    mounted = ::mount("tmpfs", path.c_str(), "tmpfs", flags, options) == 0;
  }
  ~SmallMount() {
    if (mounted) ::umount(path.c_str());
  }
  std::string path;
  bool mounted = false;
};

// Every row of the error table on a real file system: the message with its number, and
// then the document is not taken for saved. It keeps its caption and its changed flag,
// the Save button stays, and closing it asks again; a failed save there keeps the window.
TEST(SaveFile, AFailedSaveIsShownAndNeverTakenForASavedFile) {
  TempDir dir;
  SmallMount full(dir / "full", "size=64k");
  if (full.mounted) WriteAll(full.path + "/page.html", "old text");
  SmallMount readOnly(dir / "readonly", "size=64k", MS_RDONLY);
  fs::create_directory(dir / "gone");
  fs::remove(dir / "gone");
  WriteAll(dir / "file", "f");
  fs::create_symlink("loop", dir / "loop");

  struct Row {
    const char* what;
    std::string path;
    std::string message;
    bool needsMount;
  };
  const std::string extra = "\r\nRead-only file.  File not saved.";
  for (const Row& row : {
           Row{"full disk", full.path + "/page.html", "Error# 61: Disk full", true},
           Row{"vanished folder", dir / "gone/a.html", "Error# 53: File not found", false},
           Row{"read-only file system", readOnly.path + "/a.html",
               "Error# 75: Path/File access error" + extra, true},
           Row{"a file for a folder", dir / "file/a.html", "Error# 76: Path not found", false},
           Row{"a name too long", dir / std::string(300, 'n'), "Error# 57: Device I/O error",
               false},
           Row{"a link loop", dir / "loop/a.html", "Error# 57: Device I/O error", false},
       }) {
    if (row.needsMount && !(full.mounted && readOnly.mounted)) {
      std::printf("skipped (cannot mount here): %s\n", row.what);
      continue;
    }
    TestApp t;
    auto& w = t.NewWindow(std::string(128 * 1024, 'x'));
    w.Buffer().Type("edited");
    t.frame.SetSaveButtonEnabled(true);
    t.dialogs.Queue(row.path);
    FileSaveCommand(t.app, false);
    ASSERT_EQ(t.messages.shown().size(), 1u) << row.what;
    EXPECT_EQ(t.messages.shown()[0].text, row.message) << row.what;
    EXPECT_EQ(t.messages.shown()[0].icon, MsgIcon::Exclamation) << row.what;
    EXPECT_EQ(w.Caption(), "Untitled:1") << row.what;
    EXPECT_TRUE(t.Changed(w)) << row.what;
    EXPECT_TRUE(t.frame.saveButtonEnabled) << row.what;
    EXPECT_EQ(t.frame.mousePointer, MousePointer::Default) << row.what;

    // Closing asks; Yes tries the same name again, fails again, and the window stays.
    w.SetCaption(row.path);
    t.messages.Queue(MsgAnswer::Yes);
    EXPECT_FALSE(w.RequestClose()) << row.what;
    ASSERT_EQ(t.messages.shown().size(), 3u) << row.what;
    EXPECT_EQ(t.messages.shown()[2].text, row.message) << row.what;
    ASSERT_EQ(t.frame.Windows().size(), 1u) << row.what;
    EXPECT_TRUE(t.Changed(w)) << row.what;
  }
  if (full.mounted) {
    EXPECT_EQ(ReadAll(full.path + "/page.html"), "old text");
  }
  EXPECT_FALSE(fs::exists(dir / "gone"));
}

TEST(SaveFile, ASavedFileIsTakenForSavedAndClosesWithoutAsking) {
  TestApp t;
  TempDir dir;
  auto& w = t.NewWindow("text");
  w.Buffer().Type("!");
  t.frame.SetSaveButtonEnabled(true);
  t.dialogs.Queue(dir / "a.html");
  FileSaveCommand(t.app, false);
  EXPECT_TRUE(t.messages.shown().empty());
  EXPECT_EQ(w.Caption(), dir / "a.html");
  EXPECT_FALSE(t.Changed(w));
  EXPECT_FALSE(t.frame.saveButtonEnabled);
  EXPECT_TRUE(w.RequestClose());
  EXPECT_TRUE(t.messages.shown().empty());
}

TEST(WriteFileReplacing, ADanglingLinkIsWrittenToTheFileItNames) {
  TempDir dir;
  fs::create_directory(dir.path() / "real");
  fs::create_symlink("real/new.html", dir.path() / "link.html");
  fs::create_symlink(dir / "link.html", dir.path() / "second.html");
  EXPECT_EQ(WriteFileReplacing(dir / "second.html", "through two links", "\r\n"), 0);
  EXPECT_TRUE(fs::is_symlink(dir.path() / "link.html"));
  EXPECT_TRUE(fs::is_symlink(dir.path() / "second.html"));
  EXPECT_EQ(ReadAll(dir / "real/new.html"), "through two links\r\n");
  // A link into a folder that doesn't exist is a vanished folder, and stays a link.
  fs::create_symlink("nowhere/x.html", dir.path() / "lost.html");
  EXPECT_EQ(WriteFileReplacing(dir / "lost.html", "x", ""), 53);
  EXPECT_TRUE(fs::is_symlink(dir.path() / "lost.html"));
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
