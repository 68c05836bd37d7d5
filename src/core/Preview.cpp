#include "core/Preview.h"

#include "core/Application.h"
#include "core/Documents.h"
#include "core/FileSave.h"
#include "core/TextServices.h"
#include "platform/DefaultBrowser.h"
#include "platform/Desktop.h"
#include "platform/DocumentWindow.h"
#include "platform/EditControl.h"
#include "platform/FileDialogs.h"
#include "platform/Frame.h"
#include "platform/MessageBoxes.h"
#include "platform/SettingsStore.h"

namespace tessarine {

namespace {

const char* const kNotChosen = "c:\\";

std::string Right(const std::string& s, size_t n) {
  return s.size() <= n ? s : s.substr(s.size() - n);
}

// The pointer goes back however the write ends.
class Hourglass {
 public:
  explicit Hourglass(Frame& frame) : frame_(frame) {
    frame_.SetMousePointer(MousePointer::Hourglass);
  }
  ~Hourglass() { frame_.SetMousePointer(MousePointer::Default); }

 private:
  Frame& frame_;
};

void OfferPreferences(Application& app, const std::string& text, const std::string& title) {
  if (app.messages.Show(text, MsgButtons::YesNo, MsgIcon::Exclamation, title) == MsgAnswer::Yes &&
      app.programs.OpenPreferences)
    app.programs.OpenPreferences();
}

void BrowserFailed(Application& app) {
  OfferPreferences(app,
                   "Could not locate browser using the specified path/filename found in the "
                   "Windows Registry.  Check your Preference settings.  Would you like to view "
                   "your settings now?",
                   "Incorrect Browser path/filename");
}

void ProgramFailed(Application& app) {
  OfferPreferences(app,
                   "Could not locate external program using the specified path/filename found "
                   "in the Windows Registry.  Check your Preferences settings.  Would you like to "
                   "view your settings now?",
                   "Incorrect path/filename");
}

// Step 2: the file the browser is handed.
enum class TargetResult { Ready, Stopped, Failed };

TargetResult TakeTarget(Application& app, DocumentWindow& window, std::string& target) {
  EditControl& edit = window.Edit();
  const std::string caption = window.Caption();
  const int slot = app.documents.SlotOf(&window);
  const bool changed = DocumentNeedsSaving(app, slot);
  if (LCase(caption.substr(0, 8)) != "untitled") {
    if (!changed) {
      target = caption;
      return TargetResult::Ready;
    }
    // The saved file is out of date: the text goes beside it, so relative links resolve.
    const auto slash = caption.find_last_of('/');
    target = (slash == std::string::npos ? std::string() : caption.substr(0, slash + 1)) +
             "tsrntemp.htm";
    Hourglass busy(app.frame);
    return WriteFileReplacing(target, edit.Text(), "\r\n") == 0 ? TargetResult::Ready
                                                                : TargetResult::Failed;
  }
  app.messages.Show("Save the document in order to view it using a browser.", MsgButtons::OK,
                    MsgIcon::None, app.title);
  const std::string name = SaveAsDialog(app);
  if (name.empty()) {
    edit.SetFocus();
    return TargetResult::Stopped;
  }
  if (!SaveFile(app, window, name, SaveMode::Command)) return TargetResult::Stopped;
  target = name;
  return TargetResult::Ready;
}

// Step 3: the stored browser, looked up and stored when not chosen yet.
// False when the user gave none.
bool TakeBrowser(Application& app, const std::string& key, std::string& browser) {
  browser = app.store.GetSetting("Apps", key, kNotChosen);
  const std::string lower = LCase(browser);
  if (lower != kNotChosen && !lower.empty()) return true;
  const std::string command = ReadDefaultBrowserCommand(app);
  if (command.empty()) {
    app.messages.Show(
        "Browser statement not found in Windows Registry.\r\nSelect the file/path of the browser "
        "you wish to use.",
        MsgButtons::OK, MsgIcon::None, app.title);
    FileDialogRequest r;
    r.title = "Select Browser...";
    r.filter = "All Files (*.*)|*.*";
    const FileDialogAnswer a = app.fileDialogs.Show(r);
    if (a.path.empty()) return false;
    browser = a.path;
  } else {
    browser = BrowserPathOfCommand(command);
  }
  app.store.SaveSetting("Apps", key, browser);
  return true;
}

}  // namespace

std::string BrowserPathOfCommand(const std::string& command) {
  // A command line names its program first, quoted when the path holds blanks; what
  // follows are arguments, which the stored path doesn't keep.
  std::string path;
  const size_t start = command.find_first_not_of(' ');
  if (start != std::string::npos) {
    const bool quoted = command[start] == '"';
    const size_t end = command.find(quoted ? '"' : ' ', start + 1);
    path = command.substr(start, end == std::string::npos ? std::string::npos : end - start);
  }
  std::string bare;
  for (char c : path)
    if (c != '"') bare += c;
  return bare;
}

std::vector<std::string> SplitCommandLine(const std::string& line) {
  std::vector<std::string> words;
  std::string word;
  bool inWord = false, quoted = false;
  for (char c : line) {
    if (c == '"') {
      quoted = !quoted;
      inWord = true;
    } else if (c == ' ' && !quoted) {
      if (inWord) words.push_back(word);
      word.clear();
      inWord = false;
    } else {
      word += c;
      inWord = true;
    }
  }
  if (inWord) words.push_back(word);
  return words;
}

std::string ReadDefaultBrowserCommand(Application& app) {
  if (app.defaultBrowser) return app.defaultBrowser->Command();
  XdgDefaultBrowser desktop;
  return desktop.Command();
}

void OpenInDefaultViewer(Application& app, const std::string& path) {
  app.shell.OpenInDefaultViewer(path);
}

void ShowFileProperties(Application& app, const std::string& path) {
  app.shell.ShowProperties(path);
}

void ViewInBrowser(Application& app, const std::string& key) {
  DocumentWindow* window = app.ActiveDocument();
  if (!window) return;
  if (window->Edit().Text().empty()) {
    app.messages.Show("Open a document in order to link to browser.", MsgButtons::OK, MsgIcon::None,
                      app.title);
    return;
  }
  std::string target;
  switch (TakeTarget(app, *window, target)) {
    case TargetResult::Stopped:
      return;
    case TargetResult::Failed:
      BrowserFailed(app);
      return;
    case TargetResult::Ready:
      break;
  }
  std::string browser;
  if (!TakeBrowser(app, key, browser)) {
    BrowserFailed(app);
    return;
  }
  // Browser 1 is the desktop's own viewer unless Override says the stored path wins.
  if (key == "Browser" && LCase(app.store.GetSetting("Apps", "Override", "0")) == "0") {
    OpenInDefaultViewer(app, target);
    return;
  }
  app.frame.ProcessEvents();
  // Internet Explorer is handed its target quoted, as one word; Netscape and any other
  // browser get it bare, so blanks in it part it into several words.
  const std::string tail =
      Right(LCase(browser), 12) == "iexplore.exe" ? "\"" + target + "\"" : target;
  if (!app.shell.StartProgram(browser, SplitCommandLine(tail))) BrowserFailed(app);
}

void OpenExternalProgram(Application& app, const std::string& which) {
  const bool ftp = LCase(which) == "ftp";
  const char* key = ftp ? "FTPClient" : "ImageMapper";
  std::string program = app.store.GetSetting("Apps", key, kNotChosen);
  if (LCase(program) == kNotChosen) {
    app.messages.Show(ftp ? "FTP Client statement not found in Windows Registry.\r\nSelect the "
                            "file/path of the FTP Client you wish to use."
                          : "Graphics program statement not found in Windows Registry.\r\nSelect "
                            "the file/path of the Graphics program you wish to use.",
                      MsgButtons::OK, MsgIcon::None, app.title);
    FileDialogRequest r;
    r.title = ftp ? "Select FTP Client..." : "Select Grphics program...";
    r.filter = "All Files (*.*)|*.*|EXE Files (*.exe)|*.exe|BAT Files (*.bat)|*.bat";
    r.filterIndex = 2;
    const FileDialogAnswer a = app.fileDialogs.Show(r);
    if (a.path.empty()) {  // Cancel counts as a failure
      ProgramFailed(app);
      return;
    }
    program = a.path;
    app.store.SaveSetting("Apps", key, program);
  }
  if (!app.shell.StartProgram(program, {})) ProgramFailed(app);
}

bool ConfirmPrint(Application& app) {
  if (!app.ActiveDocument()) return false;
  return app.messages.Show("Do you want to print this entire HTML document?", MsgButtons::YesNo,
                           MsgIcon::Question, app.title) == MsgAnswer::Yes;
}

}  // namespace tessarine
