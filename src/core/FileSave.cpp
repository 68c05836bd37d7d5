#include "core/FileSave.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <filesystem>

#include "core/Application.h"
#include "core/Documents.h"
#include "core/RecentFiles.h"
#include "platform/DocumentWindow.h"
#include "platform/EditControl.h"
#include "platform/FileDialogs.h"
#include "platform/Frame.h"
#include "platform/MessageBoxes.h"

namespace tessarine {

const char* const kOpenSaveFilter =
    "All Files (*.*)|*.*|Web page files (*.html, *.htm, *.shtml, *.asp)|*.html;*.htm;*.shtml;"
    "*.asp|HTML Files (*.htm, *.html, *.shtml)|*.htm;*.html;*.shtml|ASP Files (*.asp)|*.asp|CGI "
    "Files (*.cgi, *.pl)|*.cgi;*.pl|Cascading Style Sheets (*.css)|*.css|Cold Fusion Files "
    "(*.cfm)|*.cfm|JavaScript Files (*.js)|*.js|XML Files (*.dtd, *.xml, *.xsl)|*.dtd;*.xml;*."
    "xsl|Tessarine Template (*.tzt)|*.tzt|Text Files (*.txt)|*.txt";

std::string SaveAsDialog(Application& app) {
  FileDialogRequest r;
  r.title = "Save As";
  r.filter = kOpenSaveFilter;
  r.filterIndex = 2;
  r.initialFolder =
      app.files.SaveDirectory.empty() ? app.settings.WorkingDirectory : app.files.SaveDirectory;
  r.save = true;
  r.confirmOverwrite = true;
  const FileDialogAnswer a = app.fileDialogs.Show(r);
  if (a.path.empty()) return "";
  const auto slash = a.path.find_last_of('/');
  app.files.SaveDirectory = slash == std::string::npos ? "" : a.path.substr(0, slash + 1);
  return a.path;
}

namespace {

int ErrnoToNumber(int e) {
  switch (e) {
    case EACCES:
    case EROFS:
    case EPERM:
    case EISDIR:
      return 75;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return 61;
    case ENOENT:
      return 53;
    case ENOTDIR:
      return 76;
    default:
      return 57;
  }
}

bool WriteAll(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t n = ::write(fd, bytes.data(), bytes.size());
    if (n < 0) {
      if (errno == EINTR) continue;
      return false;
    }
    bytes.remove_prefix(static_cast<size_t>(n));
  }
  return true;
}

}  // namespace

std::string ErrorDescription(int number) {
  switch (number) {
    case 53:
      return "File not found";
    case 57:
      return "Device I/O error";
    case 61:
      return "Disk full";
    case 71:
      return "Disk not ready";
    case 75:
      return "Path/File access error";
    case 76:
      return "Path not found";
    default:
      return "Application-defined or object-defined error";
  }
}

namespace {

// The file a symbolic link names, followed link by link, also when that file doesn't exist
// yet: saving through a dangling link creates its target rather than replacing the link.
// Too many links (a loop) leave the path as it is, for the write to fail on it.
std::string LinkTarget(const std::string& path) {
  std::string current = path;
  for (int depth = 0; depth < 40; ++depth) {
    struct stat st {};
    if (::lstat(current.c_str(), &st) != 0 || !S_ISLNK(st.st_mode)) return current;
    char buffer[PATH_MAX];
    const ssize_t n = ::readlink(current.c_str(), buffer, sizeof buffer - 1);
    if (n <= 0) return current;
    const std::string link(buffer, static_cast<size_t>(n));
    const auto slash = current.find_last_of('/');
    current = link.front() == '/' || slash == std::string::npos
                  ? link
                  : current.substr(0, slash + 1) + link;
  }
  return path;
}

}  // namespace

int WriteFileReplacing(const std::string& path, std::string_view first, std::string_view second) {
  const std::string target = LinkTarget(path);
  struct stat st {};
  const bool exists = ::stat(target.c_str(), &st) == 0;
  if (exists && S_ISDIR(st.st_mode)) return 75;
  // A file that may not be written fails here, as opening it for output would.
  if (exists && ::access(target.c_str(), W_OK) != 0) return ErrnoToNumber(errno);

  const auto slash = target.find_last_of('/');
  const std::string dir = slash == std::string::npos ? "./" : target.substr(0, slash + 1);
  std::string temp = dir + ".tsrn-save-XXXXXX";
  const int fd = ::mkstemp(temp.data());
  if (fd < 0) return ErrnoToNumber(errno);
  int error = 0;
  // No fsync: the rename replaces the file whole, and the common file systems put the data
  // out before such a rename; forcing it would double the time of saving a large page.
  // Claiming the room first finds a full disk before anything is written.
  const off_t total = static_cast<off_t>(first.size() + second.size());
  if (total > 0) {
    // A file system that cannot reserve room just skips this.
    if (::fallocate(fd, 0, 0, total) != 0 && (errno == ENOSPC || errno == EDQUOT || errno == EFBIG))
      error = ErrnoToNumber(errno);
  }
  if (!error && (!WriteAll(fd, first) || !WriteAll(fd, second))) error = ErrnoToNumber(errno);
  const mode_t mode = exists ? (st.st_mode & 07777) : [] {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return static_cast<mode_t>(0666 & ~mask);
  }();
  if (!error && ::fchmod(fd, mode) != 0) error = ErrnoToNumber(errno);
  if (exists && !error) (void)::fchown(fd, st.st_uid, st.st_gid);  // best effort
  if (::close(fd) != 0 && !error) error = ErrnoToNumber(errno);
  if (!error && ::rename(temp.c_str(), target.c_str()) != 0) error = ErrnoToNumber(errno);
  if (error) ::unlink(temp.c_str());
  return error;
}

bool SaveFile(Application& app, DocumentWindow& window, const std::string& path, SaveMode mode) {
  if (path.empty()) return false;
  EditControl& edit = window.Edit();
  app.frame.SetMousePointer(MousePointer::Hourglass);
  const int error = WriteFileReplacing(path, edit.View(), "\r\n");
  app.frame.SetMousePointer(MousePointer::Default);
  if (error) {
    std::string message = "Error# " + std::to_string(error) + ": " + ErrorDescription(error);
    if (error == 75) message += "\r\nRead-only file.  File not saved.";
    app.messages.Show(message, MsgButtons::OK, MsgIcon::Exclamation, app.title);
    if (error == 75) {
      edit.SetFocus();
      return false;
    }
  }
  // The other errors go on with the recent list and the file list, but a text that was
  // not written keeps its caption and stays changed, so closing still asks about it.
  if (!error) {
    window.SetCaption(path);
    const int slot = app.documents.SlotOf(&window);
    if (slot != 0) MarkDocumentUnchanged(app, slot);
  }
  UpdateRecentFiles(app, path);
  if (app.files.refreshFileList) app.files.refreshFileList();
  if (mode == SaveMode::Prompt || error) edit.SetFocus();
  return !error;
}

void FileSaveCommand(Application& app, bool saveAs) {
  DocumentWindow* w = app.ActiveDocument();
  if (!w) return;
  const std::string name =
      saveAs || CaptionIsUntitledForPrompt(w->Caption()) ? SaveAsDialog(app) : w->Caption();
  if (name.empty()) return;
  if (SaveFile(app, *w, name, SaveMode::Command)) app.frame.SetSaveButtonEnabled(false);
}

}  // namespace tessarine
