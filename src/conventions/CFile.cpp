#include "conventions/CFile.h"

#include "platform/FileDialogs.h"

namespace tessarine {

const char* const CFile::kDefaultFilter =
    "All Files (*.*)|*.*|HTML files (*.html, *.htm)|*.html;*.htm|ASP Files (*.asp)|*.asp";

std::string CFile::OpenFile() {
  return Show(false);
}

std::string CFile::Save() {
  return Show(true);
}

std::string CFile::Show(bool save) {
  FileDialogRequest request;
  request.title = DialogTitle;
  request.filter = Filter;
  request.filterIndex = FilterIndex;
  request.initialFolder = InitDir;
  request.fileName = Filename;
  request.save = save;
  request.confirmOverwrite = save;
  const FileDialogAnswer answer = dialogs_.Show(request);
  FilterIndex = answer.filterIndex;
  PathAndFilename = answer.path;
  const std::size_t sep = PathAndFilename.rfind('/');
  if (PathAndFilename.empty()) {
    Path.clear();
    Filename.clear();
  } else if (sep == std::string::npos) {
    Path.clear();
    Filename = PathAndFilename;
  } else {
    Path = PathAndFilename.substr(0, sep + 1);
    Filename = PathAndFilename.substr(sep + 1);
  }
  return PathAndFilename;
}

}  // namespace tessarine
