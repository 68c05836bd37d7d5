#include "wizards/LinkBrowse.h"

#include "conventions/CFile.h"
#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "platform/DocumentWindow.h"

namespace tessarine {

std::vector<std::string> UrlChoices(const Application& app) {
  std::vector<std::string> list{"http://"};
  for (int i = 1; i <= 20; ++i)
    list.push_back(app.settings.FavoriteURLs[static_cast<std::size_t>(i)]);
  return list;
}

std::string LinkFromDocument(Application& app, const std::string& folder, const std::string& name) {
  DocumentWindow* doc = app.ActiveDocument();
  return RelativePath(doc ? doc->Caption() : std::string("Untitled"), folder) + name;
}

BrowsedFile BrowseForLink(Application& app, const std::string& filter) {
  CFile file(app.fileDialogs);
  if (!filter.empty()) file.Filter = filter;
  BrowsedFile chosen;
  if (file.BrowseForFile().empty()) return chosen;
  chosen.fullPath = file.PathAndFilename;
  chosen.folder = file.Path;
  chosen.link = LinkFromDocument(app, file.Path, file.Filename);
  return chosen;
}

std::string BrowseRelativeFile(Application& app, const std::string& filter) {
  return BrowseForLink(app, filter).link;
}

}  // namespace tessarine
