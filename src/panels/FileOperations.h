#pragma once
// The file list's decisions and file operations: what a double click does with a name,
// the image tag it drops into a page, and rename, copy, move, delete and new folder. A move
// whose copy failed leaves the source where it was and says why.

#include <string>

namespace tessarine {

enum class FileListAction { OpenAsDocument, InsertImage, Nothing };
FileListAction ActionForName(const std::string& name);

// The IMG tag of a double-clicked picture, in the tag case.
std::string ImageTagText(const std::string& relativePath, int width, int height, bool upper);

// Folder and name joined: no second "/" after the root.
std::string JoinFolder(const std::string& folder, const std::string& name);

enum class FileOperation { Rename, Copy, Move };

struct FileOperationTexts {
  const char* title;
  const char* prompt;
};
FileOperationTexts TextsFor(FileOperation operation);

// Runs the operation on `source`: Rename gives it `newName` in its folder, Copy and Move
// put it into `targetFolder`. Returns "" on success, else what went wrong; only a move says
// it (rename, copy and delete fail quietly). An existing target is never overwritten.
std::string RunFileOperation(FileOperation operation, const std::string& source,
                             const std::string& targetFolder, const std::string& newName);

bool DeleteFile(const std::string& path);
// "" when made, else the message; an empty name asks for one.
std::string CreateFolder(const std::string& parent, const std::string& name);

inline constexpr const char* kPictureViewerHint =
    "Tessarine lets you preview your images with the Image viewer.\n\nTo use the Image viewer, "
    "right-click on an image filename in the File List and select 'View with Image Viewer'.";
// A click on a picture: the hint is shown the first time only.
bool IsViewerPictureName(const std::string& name);

}  // namespace tessarine
