#pragma once
// What the link and image dialogs share: the address list they offer, and browsing for a
// file to link to from the active document.

#include <string>
#include <vector>

namespace tessarine {

class Application;

// "http://", then the 20 remembered URLs in order, empty ones included.
std::vector<std::string> UrlChoices(const Application& app);

struct BrowsedFile {
  std::string fullPath;  // empty after a Cancel
  std::string folder;    // with its closing "/"
  std::string link;      // the path from the active document: the bare name when untitled
};
// Lets the user choose a file. An empty filter is the file dialog's default.
BrowsedFile BrowseForLink(Application& app, const std::string& filter = "");
// The link to a file in `folder` from the active document.
std::string LinkFromDocument(Application& app, const std::string& folder, const std::string& name);
// Just the link, or "" after a Cancel.
std::string BrowseRelativeFile(Application& app, const std::string& filter = "");

}  // namespace tessarine
