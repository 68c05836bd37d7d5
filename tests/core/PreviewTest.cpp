// Preview in a browser and the external programs, with a small script standing in for the
// browser: it writes the words of its command line to a file, one per line.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <thread>

#include "TestApp.h"
#include "core/Preview.h"
#include "platform/BufferEdit.h"

namespace tessarine {
namespace {

using testing::ReadAll;
using testing::TempDir;
using testing::WriteAll;

// Starts programs for real but keeps the desktop's viewer out of the tests.
class ViewerRecordingShell : public PosixShell {
 public:
  bool OpenInDefaultViewer(const std::string& path) override {
    opened.push_back(path);
    return true;
  }
};

struct PreviewTest : ::testing::Test {
  HeadlessPlatform platform;
  ViewerRecordingShell shell;
  Application app{Platform{platform.frame, platform.messages, platform.store, platform.fileDialogs,
                           platform.colorDialog, shell, platform.clipboard, platform.images,
                           platform.clock, platform.checkedQuestions, &platform.defaultBrowser},
                  "/opt/tessarine"};
  ScriptedMessageBoxes& messages = platform.messages;
  MemorySettingsStore& store = platform.store;
  TempDir dir;
  int preferencesOpened = 0;

  PreviewTest() {
    app.LoadSettings();
    app.programs.OpenPreferences = [this] { ++preferencesOpened; };
  }

  HeadlessDocumentWindow& Window(const std::string& caption, const std::string& text,
                                 bool changed = false) {
    auto* w = static_cast<HeadlessDocumentWindow*>(NewDocumentWindow(app));
    if (!caption.empty()) w->SetCaption(caption);
    w->Buffer().SetText(text);
    app.documents.State(app.documents.SlotOf(w)).Changed = changed;
    return *w;
  }

  std::string SavedPage(const std::string& name) {
    const std::string page = dir / name;
    WriteAll(page, "x");
    Window(page, "x");
    return page;
  }

  // A program at `name` in the scratch folder that records its words in `name`.args.
  std::string Recorder(const std::string& name) {
    const std::string path = dir / name;
    const std::string log = path + ".args";
    WriteAll(path, "#!/bin/sh\nfor a in \"$@\"; do printf '%s\\n' \"$a\"; done > '" + log +
                       ".part'\nmv '" + log + ".part' '" + log + "'\n");
    ::chmod(path.c_str(), 0755);
    return path;
  }
  // The recorded words, once the detached program has written them.
  static std::vector<std::string> WordsOf(const std::string& program) {
    const std::string log = program + ".args";
    for (int i = 0; i < 1000 && ::access(log.c_str(), F_OK) != 0; ++i)
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    std::vector<std::string> words;
    std::istringstream in(ReadAll(log));
    for (std::string w; std::getline(in, w);) words.push_back(w);
    return words;
  }
  std::vector<std::string> Texts() const {
    std::vector<std::string> t;
    for (const auto& m : messages.shown()) t.push_back(m.text);
    return t;
  }
};

TEST_F(PreviewTest, UnchangedPageGoesByItsOwnPathChangedPageByTheSideFileBesideIt) {
  const std::string browser = Recorder("browser2");
  store.SaveSetting("Apps", "Browser2", browser);
  const std::string page = dir / "page.html";
  WriteAll(page, "<P>saved</P>\r\n");
  Window(page, "<P>saved</P>");
  ViewInBrowser(app, "Browser2");
  EXPECT_EQ(WordsOf(browser), std::vector<std::string>{page});
  EXPECT_FALSE(std::filesystem::exists(dir / "tsrntemp.htm"));

  ::unlink((browser + ".args").c_str());
  Window(page, "<P>saved</P>x", true);
  ViewInBrowser(app, "Browser2");
  const std::string side = dir / "tsrntemp.htm";
  EXPECT_EQ(WordsOf(browser), std::vector<std::string>{side});
  EXPECT_EQ(ReadAll(side), "<P>saved</P>x\r\n");
  EXPECT_EQ(ReadAll(page), "<P>saved</P>\r\n");  // the saved file is left alone
  EXPECT_TRUE(messages.shown().empty());
}

TEST_F(PreviewTest, UntitledPageIsSavedFirstAndACancelStopsQuietly) {
  const std::string browser = Recorder("browser2");
  store.SaveSetting("Apps", "Browser2", browser);
  auto& w = Window("", "<B>new</B>", true);
  const int focused = w.Buffer().FocusCount();
  ViewInBrowser(app, "Browser2");  // Save As cancelled
  EXPECT_EQ(Texts(),
            std::vector<std::string>{"Save the document in order to view it using a browser."});
  EXPECT_EQ(w.Buffer().FocusCount(), focused + 1);
  EXPECT_TRUE(shell.started.empty());

  const std::string page = dir / "new.html";
  platform.fileDialogs.Queue(page);
  ViewInBrowser(app, "Browser2");
  EXPECT_EQ(WordsOf(browser), std::vector<std::string>{page});
  EXPECT_EQ(ReadAll(page), "<B>new</B>\r\n");
  EXPECT_EQ(w.Caption(), page);
  EXPECT_EQ(messages.shown().size(), 2u);
}

TEST_F(PreviewTest, AnEmptyDocumentNeverReachesABrowser) {
  store.SaveSetting("Apps", "Browser2", Recorder("browser2"));
  const std::string page = dir / "empty.html";
  WriteAll(page, "\r\n");
  Window(page, "");
  ViewInBrowser(app, "Browser2");
  Window("", "");
  ViewInBrowser(app, "Browser");
  EXPECT_EQ(Texts(), (std::vector<std::string>{"Open a document in order to link to browser.",
                                               "Open a document in order to link to browser."}));
  EXPECT_TRUE(shell.started.empty());
  EXPECT_TRUE(shell.opened.empty());
}

TEST_F(PreviewTest, BrowserOneIsTheDesktopsViewerUnlessOverrideSaysOtherwise) {
  const std::string browser = Recorder("mybrowser");
  platform.defaultBrowser.command = "\"" + browser + "\" --new-window";
  const std::string page = SavedPage("page.html");

  // First run: the desktop's browser is stored without its arguments, then not used.
  ViewInBrowser(app, "Browser");
  EXPECT_EQ(store.GetSetting("Apps", "Browser", ""), browser);
  EXPECT_EQ(shell.opened, std::vector<std::string>{page});
  EXPECT_TRUE(shell.started.empty());

  store.SaveSetting("Apps", "Override", "1");
  ViewInBrowser(app, "Browser");
  EXPECT_EQ(WordsOf(browser), std::vector<std::string>{page});
  EXPECT_EQ(platform.defaultBrowser.asked, 1);  // the stored path is used from now on
  EXPECT_EQ(shell.opened.size(), 1u);

  // Only "0" means the desktop's viewer: an empty Override doesn't.
  ::unlink((browser + ".args").c_str());
  store.SaveSetting("Apps", "Override", "");
  ViewInBrowser(app, "Browser");
  EXPECT_EQ(WordsOf(browser), std::vector<std::string>{page});
  EXPECT_EQ(shell.opened.size(), 1u);
}

TEST_F(PreviewTest, BrowserTwoNotChosenComesFromTheDesktopElseFromTheUser) {
  const std::string page = SavedPage("a.htm");
  const std::string desktops = Recorder("desktops");
  platform.defaultBrowser.command = desktops + " --private-window";
  store.SaveSetting("Apps", "Browser2", "C:\\");  // "not chosen yet" in any case
  ViewInBrowser(app, "Browser2");
  EXPECT_EQ(store.GetSetting("Apps", "Browser2", ""), desktops);
  EXPECT_EQ(WordsOf(desktops), std::vector<std::string>{page});
  EXPECT_TRUE(shell.opened.empty());

  const std::string picked = Recorder("picked");
  platform.defaultBrowser.command = "";
  platform.fileDialogs.Queue(picked);
  store.SaveSetting("Apps", "Browser2", "");
  ViewInBrowser(app, "Browser2");
  EXPECT_EQ(Texts(), std::vector<std::string>{
                         "Browser statement not found in Windows Registry.\r\nSelect the "
                         "file/path of the browser you wish to use."});
  EXPECT_EQ(store.GetSetting("Apps", "Browser2", ""), picked);
  EXPECT_EQ(WordsOf(picked), std::vector<std::string>{page});
}

TEST_F(PreviewTest, OnlyInternetExplorerGetsItsTargetQuotedAsOneWord) {
  const std::string page = SavedPage("my page.html");
  for (const char* name : {"IEXPLORE.EXE", "netscape.exe", "lynx"}) {
    SCOPED_TRACE(name);
    const std::string browser = Recorder(name);
    store.SaveSetting("Apps", "Browser2", browser);
    ViewInBrowser(app, "Browser2");
    const auto words = WordsOf(browser);
    const auto expected = std::string(name) == "IEXPLORE.EXE"
                              ? std::vector<std::string>{page}
                              : std::vector<std::string>{dir / "my", "page.html"};
    EXPECT_EQ(words, expected);
  }
}

TEST_F(PreviewTest, ABrowserThatCannotStartOffersThePreferences) {
  store.SaveSetting("Apps", "Browser2", dir / "no-such-browser");
  const std::string page = SavedPage("a.htm");
  messages.Queue(MsgAnswer::No);
  ViewInBrowser(app, "Browser2");
  messages.Queue(MsgAnswer::Yes);
  ViewInBrowser(app, "Browser2");
  ASSERT_EQ(messages.shown().size(), 2u);
  EXPECT_EQ(messages.shown()[0].text,
            "Could not locate browser using the specified path/filename found in the Windows "
            "Registry.  Check your Preference settings.  Would you like to view your settings "
            "now?");
  EXPECT_EQ(messages.shown()[0].title, "Incorrect Browser path/filename");
  EXPECT_EQ(messages.shown()[0].buttons, MsgButtons::YesNo);
  EXPECT_EQ(preferencesOpened, 1);

  // A side file that cannot be written ends the same way, before any browser is asked.
  store.SaveSetting("Apps", "Browser2", Recorder("browser2"));
  Window(dir / "gone/page.html", "x", true);
  ViewInBrowser(app, "Browser2");
  EXPECT_EQ(messages.shown().back().title, "Incorrect Browser path/filename");
  EXPECT_EQ(shell.started.size(), 2u);
}

TEST_F(PreviewTest, ExternalProgramsAreAskedForOnceThenStarted) {
  const std::string ftp = Recorder("ftpclient");
  platform.fileDialogs.Queue(ftp);
  OpenExternalProgram(app, "ftp");
  ASSERT_EQ(platform.fileDialogs.requests().size(), 1u);
  const FileDialogRequest& r = platform.fileDialogs.requests()[0];
  EXPECT_EQ(r.title, "Select FTP Client...");
  EXPECT_EQ(r.filter, "All Files (*.*)|*.*|EXE Files (*.exe)|*.exe|BAT Files (*.bat)|*.bat");
  EXPECT_EQ(r.filterIndex, 2);
  EXPECT_EQ(Texts(), std::vector<std::string>{
                         "FTP Client statement not found in Windows Registry.\r\nSelect the "
                         "file/path of the FTP Client you wish to use."});
  EXPECT_EQ(store.GetSetting("Apps", "FTPClient", ""), ftp);
  EXPECT_TRUE(WordsOf(ftp).empty());
  EXPECT_TRUE(std::filesystem::exists(ftp + ".args"));

  // Stored: started straight away, no question.
  ::unlink((ftp + ".args").c_str());
  OpenExternalProgram(app, "FTP");
  EXPECT_TRUE(WordsOf(ftp).empty());
  EXPECT_TRUE(std::filesystem::exists(ftp + ".args"));
  EXPECT_EQ(platform.fileDialogs.requests().size(), 1u);
  EXPECT_EQ(messages.shown().size(), 1u);

  // The graphics program, cancelled: the failure message and nothing stored.
  messages.Queue(MsgAnswer::Yes);
  OpenExternalProgram(app, "Graphics");
  EXPECT_EQ(platform.fileDialogs.requests().back().title, "Select Grphics program...");
  ASSERT_EQ(messages.shown().size(), 3u);
  EXPECT_EQ(messages.shown()[1].text,
            "Graphics program statement not found in Windows Registry.\r\nSelect the file/path "
            "of the Graphics program you wish to use.");
  EXPECT_EQ(messages.shown()[2].text,
            "Could not locate external program using the specified path/filename found in the "
            "Windows Registry.  Check your Preferences settings.  Would you like to view your "
            "settings now?");
  EXPECT_EQ(messages.shown()[2].title, "Incorrect path/filename");
  EXPECT_EQ(store.GetSetting("Apps", "ImageMapper", "unset"), "unset");
  EXPECT_EQ(preferencesOpened, 1);

  // An empty stored path is a choice, and one that cannot start.
  store.SaveSetting("Apps", "ImageMapper", "");
  OpenExternalProgram(app, "Graphics");
  EXPECT_EQ(messages.shown().back().title, "Incorrect path/filename");
  EXPECT_EQ(platform.fileDialogs.requests().size(), 2u);
}

TEST_F(PreviewTest, PrintAsksFirst) {
  EXPECT_FALSE(ConfirmPrint(app));  // no document, no question
  EXPECT_TRUE(messages.shown().empty());
  Window("", "x");
  messages.Queue(MsgAnswer::No);
  EXPECT_FALSE(ConfirmPrint(app));
  messages.Queue(MsgAnswer::Yes);
  EXPECT_TRUE(ConfirmPrint(app));
  EXPECT_EQ(messages.shown().back().text, "Do you want to print this entire HTML document?");
  EXPECT_EQ(messages.shown().back().buttons, MsgButtons::YesNo);
}

TEST(BrowserCommand, TheStoredPathIsTheProgramAloneWithoutQuotes) {
  struct Case {
    const char* command;
    const char* path;
  };
  for (const Case& c : {
           Case{"\"C:\\Program Files\\Internet Explorer\\IEXPLORE.EXE\" -nohome",
                "C:\\Program Files\\Internet Explorer\\IEXPLORE.EXE"},
           Case{"C:\\NETSCAPE.EXE -h \"%1\"", "C:\\NETSCAPE.EXE"},
           Case{"\"/opt/my browser/firefox\" --new-window", "/opt/my browser/firefox"},
           Case{"/usr/bin/firefox", "/usr/bin/firefox"},
           Case{"  /usr/bin/chromium --incognito", "/usr/bin/chromium"},
           Case{"/usr/bin/wine \"C:\\a b\\x.exe\"", "/usr/bin/wine"},
           Case{"\"/opt/unclosed quote", "/opt/unclosed quote"},
           Case{"   ", ""},
       }) {
    EXPECT_EQ(BrowserPathOfCommand(c.command), c.path) << c.command;
  }
}

TEST(BrowserCommand, CommandLinesSplitOnBlanksOutsideQuotes) {
  using V = std::vector<std::string>;
  EXPECT_EQ(SplitCommandLine("/a b/c.html"), (V{"/a", "b/c.html"}));
  EXPECT_EQ(SplitCommandLine("\"/a b/c.html\""), (V{"/a b/c.html"}));
  EXPECT_EQ(SplitCommandLine("  x   y "), (V{"x", "y"}));
  EXPECT_EQ(SplitCommandLine("\"\" z"), (V{"", "z"}));
  EXPECT_EQ(SplitCommandLine(""), V{});
}

}  // namespace
}  // namespace tessarine
