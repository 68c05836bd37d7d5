#pragma once
// The browse buttons of the frame and media dialogs: a file chosen on disk becomes a path
// relative to the active document.

#include <string>

namespace tessarine {

class Application;

// The chosen file as RelativePath gives it followed by its name; "" after a Cancel.
std::string BrowseForRelativeFile(Application& app, const std::string& filter);
// A path typed or browsed in a dialog, made absolute against the document's folder so
// that it can be played or shown. Absolute paths, and untitled documents, leave it as it is.
std::string ResolveAgainstDocument(Application& app, const std::string& path);

}  // namespace tessarine
