#include "core/FileOpen.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <new>

#include "core/Application.h"
#include "core/ColorizeRun.h"
#include "core/Documents.h"
#include "core/Editing.h"
#include "core/FileSave.h"
#include "core/RecentFiles.h"
#include "core/TextServices.h"
#include "platform/DocumentWindow.h"
#include "platform/EditControl.h"
#include "platform/FileDialogs.h"
#include "platform/Frame.h"
#include "platform/MessageBoxes.h"

namespace tessarine {

const char* const kImportMacFilter =
    "All Files (*.*)|*.*|Mac HTML Files (*.htm, *.html, *.shtml)|*.htm;*.html;*.shtml|CGI Files "
    "(*.cgi, *.pl)|*.cgi;*.pl|Cascading Style Sheets (*.css)|*.css|JavaScript Files (*.js)|*.js|"
    "XML Files (*.dtd, *.xml, *.xsl)|*.dtd;*.xml;*.xsl|Text Files (*.txt)|*.txt";
const char* const kImportUnixFilter =
    "All Files (*.*)|*.*|UNIX HTML Files (*.htm, *.html, *.shtml)|*.htm;*.html;*.shtml|CGI Files "
    "(*.cgi, *.pl)|*.cgi;*.pl|Cascading Style Sheets (*.css)|*.css|JavaScript Files (*.js)|*.js|"
    "XML Files (*.dtd, *.xml, *.xsl)|*.dtd;*.xml;*.xsl|Text Files (*.txt)|*.txt";
const char* const kExportFilter =
    "All Files (*.*)|*.*|HTML Files (*.htm, *.html, *.shtml)|*.htm;*.html;*.shtml|CGI Files "
    "(*.cgi, *.pl)|*.cgi;*.pl|Cascading Style Sheets (*.css)|*.css|JavaScript Files (*.js)|*.js|"
    "XML Files (*.dtd, *.xml, *.xsl)|*.dtd;*.xml;*.xsl|Text Files (*.txt)|*.txt";
const char* const kInsertFileFilter =
    "All Files (*.*)|*.*|Text Files (*.txt)|*.txt|HTML Files (*.htm, *.html)|*.htm;*.html|ASP "
    "Files (*.asp)|*.asp|XML Files (*.dtd, *.xml, *.xsl)|*.dtd;*.xml;*.xsl";
const char* const kImportTextFilter = "All Files (*.*)|*.*|Text Files (*.txt)|*.txt";

namespace {

const char* const kAlreadyOpen = "Document is already open.";
const char* const kOpenError = "Error encountered while trying to open file.";

void Message(Application& app, const std::string& text, const std::string& title = "") {
  app.messages.Show(text, MsgButtons::OK, MsgIcon::None, title.empty() ? app.title : title);
}

// The number-to-string form: a leading blank where the sign would stand.
std::string Str(int n) {
  return (n < 0 ? "" : " ") + std::to_string(n);
}

int ReadErrorNumber(int e) {
  switch (e) {
    case ENOENT:
    case ENOTDIR:
    case ENAMETOOLONG:
    case ELOOP:
      return 53;
    case EACCES:
    case EPERM:
    case EISDIR:
      return 75;
    case ENOMEM:
      return 7;
    default:
      return 57;
  }
}

std::string Tail(const std::string& s, std::size_t n) {
  return s.size() >= n ? s.substr(s.size() - n) : s;
}

// A new window holding `text`, coloured as its caption asks; the window survives only if
// the pass's yields did not close it.
DocumentWindow* LoadIntoNewWindow(Application& app, const std::string& path, std::string text,
                                  bool byKind, bool changed) {
  DocumentWindow* window = NewDocumentWindow(app);
  const int slot = app.documents.SlotOf(window);
  if (!path.empty() && !IsTemplateName(path)) window->SetCaption(path);
  // Taken before the pass: its yields may close the window and reuse the slot.
  const auto serial = app.documents.Form(slot).serial;
  EditControl& edit = window->Edit();
  edit.SetText(text);
  text.clear();
  text.shrink_to_fit();
  if (app.settings.Flags.ColorTags) {
    if (byKind)
      ChooseColorizer(app, *window, true);
    else
      ColorizeTags(app, *window);
  }
  if (!app.documents.IsAlive(window, serial)) return nullptr;
  if (changed)
    app.documents.State(slot).Changed = true;
  else
    MarkDocumentUnchanged(app, slot);
  if (app.ActiveDocument() == window) {
    app.frame.SetSaveButtonEnabled(changed);
    app.frame.SetLengthPanel(edit.Length());
    UpdateLinePanel(app, *window);
  }
  edit.SetVisible(true);
  return window;
}

}  // namespace

bool IsTemplateName(const std::string& name) {
  std::string t = Tail(name, 3);
  for (char& c : t)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 32);
  return t == "TZT";
}

bool IsStyleSheetName(const std::string& name) {
  return LCase(Tail(name, 4)) == ".css";
}

bool FileExists(const std::string& path) {
  struct stat st {};
  return !path.empty() && ::stat(path.c_str(), &st) == 0 && S_ISREG(st.st_mode) &&
         ::access(path.c_str(), R_OK) == 0;
}

int ReadWholeFile(const std::string& path, std::string& bytes) {
  bytes.clear();
  // Non-blocking, so that a named pipe cannot hold the window up; it is refused below.
  const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (fd < 0) return ReadErrorNumber(errno);
  struct Closer {
    int fd;
    ~Closer() { ::close(fd); }
  } closer{fd};
  struct stat st {};
  if (::fstat(fd, &st) != 0) return ReadErrorNumber(errno);
  if (!S_ISREG(st.st_mode)) return 75;
  try {
    bytes.resize(static_cast<std::size_t>(st.st_size));
    std::size_t got = 0;
    for (;;) {
      if (got == bytes.size()) bytes.resize(bytes.size() + 65536);  // the file grew
      const ssize_t n = ::read(fd, bytes.data() + got, bytes.size() - got);
      if (n < 0) {
        if (errno == EINTR) continue;
        const int number = ReadErrorNumber(errno);
        bytes.clear();
        return number;
      }
      if (n == 0) break;
      got += static_cast<std::size_t>(n);
    }
    bytes.resize(got);
  } catch (const std::bad_alloc&) {
    bytes.clear();
    bytes.shrink_to_fit();
    return 7;
  }
  return 0;
}

bool IsDocumentOpen(Application& app, const std::string& path, bool activate) {
  for (int i = 1; i <= app.documents.UpperBound(); ++i) {
    const DocumentSlot& s = app.documents.Form(i);
    if (app.documents.State(i).Deleted || !s.form || s.form->Caption() != path) continue;
    if (activate) s.form->Activate();
    return true;
  }
  return false;
}

bool OpenFile(Application& app, const std::string& path) {
  if (!FileExists(path)) {
    // A file that is there but may not be read is not called missing.
    struct stat st {};
    const bool present = !path.empty() && ::stat(path.c_str(), &st) == 0 && S_ISREG(st.st_mode);
    Message(app, present ? "Document can't be read: " + path : "Document doesn't exist");
    return false;
  }
  if (IsDocumentOpen(app, path, false)) return false;
  std::string text;
  if (const int error = ReadWholeFile(path, text)) {
    Message(app, Str(error) + " Can't open file: " + path);
    return false;
  }
  // The save adds one CR LF; take it back so that open and save balance.
  if (text.size() >= 2 && text.compare(text.size() - 2, 2, "\r\n") == 0)
    text.resize(text.size() - 2);
  // Opened, even if a yield of the colouring pass has closed the window since.
  LoadIntoNewWindow(app, path, std::move(text), true, false);
  return true;
}

std::vector<std::string> SplitDialogSelection(const std::string& answer) {
  std::vector<std::string> parts;
  std::size_t start = 0;
  for (;;) {
    const std::size_t nul = answer.find('\0', start);
    parts.push_back(answer.substr(start, nul - start));
    if (nul == std::string::npos) break;
    start = nul + 1;
  }
  if (parts.size() == 1) return parts;
  const std::string folder = parts[0];
  std::vector<std::string> paths;
  for (std::size_t i = 1; i < parts.size(); ++i) {
    if (parts[i].empty()) continue;
    paths.push_back(folder + (!folder.empty() && folder.back() == '/' ? "" : "/") + parts[i]);
  }
  return paths;
}

std::string PathLessFileTitle(const std::string& path) {
  const auto slash = path.find_last_of('/');
  return slash == std::string::npos ? "" : path.substr(0, slash + 1);
}

void GiveWayIfUntouchedFirstWindow(Application& app) {
  DocumentWindow* w = app.ActiveDocument();
  if (!w) return;
  const int slot = app.documents.SlotOf(w);
  if (slot == 0 || DocumentNeedsSaving(app, slot)) return;
  if (LCase(w->Caption()) == "untitled:1") w->RequestClose();
}

void ApplyStyleSheetRow(Application& app) {
  DocumentWindow* w = app.ActiveDocument();
  if (!w || !IsStyleSheetName(w->Caption())) return;
  if (app.files.enableStyleInserts) app.files.enableStyleInserts(false);
  if (app.files.showStyleManager) app.files.showStyleManager(*w);
}

namespace {

void ApplyMenuSystem(Application& app) {
  if (app.files.applyMenuSystem) app.files.applyMenuSystem();
}

void FocusActiveEdit(Application& app) {
  if (EditControl* e = app.ActiveEdit()) e->SetFocus();
}

}  // namespace

void OpenFileDialog(Application& app) {
  FileDialogRequest r;
  r.title = "Open";
  r.filter = kOpenSaveFilter;
  r.filterIndex = app.files.LastFilterIndex != 0 ? app.files.LastFilterIndex : 2;
  r.initialFolder = app.settings.WorkingDirectory;
  r.multiSelect = true;
  const FileDialogAnswer a = app.fileDialogs.Show(r);
  if (a.path.empty()) {
    ApplyMenuSystem(app);
    return;
  }
  app.files.LastFilterIndex = static_cast<std::int16_t>(a.filterIndex);
  for (const std::string& path : SplitDialogSelection(a.path)) {
    if (IsDocumentOpen(app, path)) {
      Message(app, kAlreadyOpen);
      continue;
    }
    GiveWayIfUntouchedFirstWindow(app);
    OpenFile(app, path);
    UpdateRecentFiles(app, path);
    app.settings.WorkingDirectory = PathLessFileTitle(path);
    if (DocumentWindow* w = app.ActiveDocument()) {
      if (LCase(w->Caption()).compare(0, 9, "untitled:") != 0)
        app.frame.SetSaveButtonEnabled(false);
      w->Edit().SetFocus();
    }
  }
  ApplyStyleSheetRow(app);
}

void ImportForeignFile(Application& app, const std::string& kind) {
  FileDialogRequest r;
  r.title = "Import";
  r.filter = kind == "Mac" ? kImportMacFilter : kImportUnixFilter;
  r.filterIndex = 2;
  r.initialFolder = app.settings.WorkingDirectory;
  const FileDialogAnswer a = app.fileDialogs.Show(r);
  if (a.path.empty()) {
    ApplyMenuSystem(app);
    return;
  }
  const std::string path = a.path;
  app.files.OpenFileName = path;
  if (IsDocumentOpen(app, path)) {
    Message(app, kAlreadyOpen);
  } else {
    OpenWithLineEnd(app, path, kind == "Mac" ? '\r' : '\n');
    UpdateRecentFiles(app, path);
    app.settings.WorkingDirectory = PathLessFileTitle(path);
  }
  FocusActiveEdit(app);
  ApplyMenuSystem(app);
}

bool OpenWithLineEnd(Application& app, const std::string& path, char lineEnd) {
  std::string bytes;
  if (ReadWholeFile(path, bytes) != 0) {
    Message(app, "Can't open file: " + path);
    return false;
  }
  if (IsDocumentOpen(app, path, false)) return false;
  std::string text;
  try {
    std::size_t count = 0;
    for (char c : bytes) count += c == lineEnd;
    text.reserve(bytes.size() + count);
    for (char c : bytes) {
      if (c == lineEnd)
        text += "\r\n";
      else
        text += c;
    }
  } catch (const std::bad_alloc&) {
    Message(app, "Can't open file: " + path);
    return false;
  }
  bytes.clear();
  bytes.shrink_to_fit();
  if (DocumentWindow* w = LoadIntoNewWindow(app, path, std::move(text), true, false))
    w->SetMaximized(true);
  return true;
}

void ExportForeignFile(Application& app, const std::string& kind) {
  DocumentWindow* w = app.ActiveDocument();
  if (!w) return;
  const bool mac = kind == "Mac";
  FileDialogRequest r;
  r.title = mac ? "Save Mac File As..." : "Save UNIX File As...";
  r.filter = kExportFilter;
  r.filterIndex = app.files.exportFilterIndex;
  r.save = true;
  r.confirmOverwrite = true;
  const FileDialogAnswer a = app.fileDialogs.Show(r);
  if (a.path.empty()) return;
  app.files.exportFilterIndex = a.filterIndex;
  app.frame.SetMousePointer(MousePointer::Hourglass);
  std::string text = w->Edit().Text();
  const char drop = mac ? '\n' : '\r';
  std::erase(text, drop);
  const int error = WriteFileReplacing(a.path, text, "\r\n");
  app.frame.SetMousePointer(MousePointer::Default);
  if (error) Message(app, kOpenError, "Open Error");
}

std::string TextFileAsHtml(std::string text) {
  std::string out;
  out.reserve(text.size() + text.size() / 8);
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '>')
      out += "&gt;";
    else if (c == '<')
      out += "&lt;";
    else if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
      out += "<BR>\r\n";
      ++i;
    } else
      out += c;
  }
  return out;
}

void ImportTextFileCommand(Application& app) {
  FileDialogRequest r;
  r.title = "Open";
  r.filter = kImportTextFilter;
  r.filterIndex = 2;
  r.initialFolder = app.settings.WorkingDirectory;
  const FileDialogAnswer a = app.fileDialogs.Show(r);
  if (!a.path.empty()) ImportTextFile(app, a.path);
}

bool ImportTextFile(Application& app, const std::string& path) {
  std::string bytes;
  if (ReadWholeFile(path, bytes) != 0) {
    Message(app, "Can't open file: " + path);
    return false;
  }
  std::string text;
  try {
    text = TextFileAsHtml(std::move(bytes));
  } catch (const std::bad_alloc&) {
    Message(app, "Can't open file: " + path);
    return false;
  }
  if (DocumentWindow* w = LoadIntoNewWindow(app, "", std::move(text), false, true))
    w->SetMaximized(true);
  app.settings.WorkingDirectory = PathLessFileTitle(path);
  return true;
}

void InsertFile(Application& app) {
  EditControl* edit = app.ActiveEdit();
  if (!edit) return;
  FileDialogRequest r;
  r.title = "Insert File...";
  r.filter = kInsertFileFilter;
  r.filterIndex = 2;
  r.initialFolder = app.settings.WorkingDirectory;
  const FileDialogAnswer a = app.fileDialogs.Show(r);
  if (a.path.empty()) return;
  std::string bytes;
  if (ReadWholeFile(a.path, bytes) != 0) {
    Message(app,
            "Error encountered while trying to open file.  File could be too large or not a text "
            "file.",
            "Open Error");
    return;
  }
  edit->ReplaceSel(bytes);
}

}  // namespace tessarine
