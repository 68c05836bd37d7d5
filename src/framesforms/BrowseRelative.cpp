#include "framesforms/BrowseRelative.h"

#include "conventions/CFile.h"
#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "platform/DocumentWindow.h"

namespace tessarine {

namespace {
std::string Caption(Application& app) {
  DocumentWindow* w = app.ActiveDocument();
  return w ? w->Caption() : "";
}
}  // namespace

std::string BrowseForRelativeFile(Application& app, const std::string& filter) {
  CFile file(app.fileDialogs);
  if (!filter.empty()) file.Filter = filter;
  if (file.BrowseForFile().empty()) return "";
  return RelativePath(Caption(app), file.Path) + file.Filename;
}

std::string ResolveAgainstDocument(Application& app, const std::string& path) {
  if (path.empty() || path[0] == '/') return path;
  const std::string caption = Caption(app);
  const std::size_t slash = caption.rfind('/');
  if (caption.rfind("Untitled", 0) == 0 || slash == std::string::npos) return path;
  return caption.substr(0, slash + 1) + path;
}

}  // namespace tessarine
