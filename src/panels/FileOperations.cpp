#include "panels/FileOperations.h"

#include <filesystem>
#include <system_error>

#include "sitetools/SiteText.h"

namespace tessarine {
namespace fs = std::filesystem;

FileListAction ActionForName(const std::string& name) {
  for (const char* ending :
       {".htm", "html", "cgi", ".pl", ".js", ".asp", ".txt", ".xsl", ".xml", ".dtd", ".css"}) {
    if (EndsWithNoCase(name, ending)) return FileListAction::OpenAsDocument;
  }
  if (EndsWithNoCase(name, ".gif") || EndsWithNoCase(name, ".jpg")) {
    return FileListAction::InsertImage;
  }
  return FileListAction::Nothing;
}

std::string ImageTagText(const std::string& relativePath, int width, int height, bool upper) {
  return std::string(upper ? "<IMG SRC=" : "<img src=") + "\"" + relativePath + "\"" +
         (upper ? " WIDTH=" : " width=") + std::to_string(width) +
         (upper ? " HEIGHT=" : " height=") + std::to_string(height) + ">";
}

std::string JoinFolder(const std::string& folder, const std::string& name) {
  if (!folder.empty() && folder.back() == '/') return folder + name;
  return folder + "/" + name;
}

FileOperationTexts TextsFor(FileOperation operation) {
  switch (operation) {
    case FileOperation::Rename:
      return {"Rename File", "Rename:   "};
    case FileOperation::Copy:
      return {"Copy File", "Copy File to the specified directory below:"};
    case FileOperation::Move:
      break;
  }
  return {"Move File", "Move File to the specified directory below:"};
}

std::string RunFileOperation(FileOperation operation, const std::string& source,
                             const std::string& targetFolder, const std::string& newName) {
  std::error_code error;
  const fs::path from(source);
  if (operation == FileOperation::Rename) {
    if (newName.empty()) return "No new name.";
    const fs::path to = from.parent_path() / newName;
    if (fs::exists(to, error)) return "A file of that name exists.";
    fs::rename(from, to, error);
    return error ? error.message() : "";
  }
  const fs::path to = fs::path(JoinFolder(targetFolder, from.filename().string()));
  // copy_options::none refuses an existing target, the source itself included.
  const bool copied = fs::copy_file(from, to, fs::copy_options::none, error);
  if (operation == FileOperation::Copy) return copied ? "" : error.message();
  if (!copied) {
    return "The file could not be moved: " +
           (error ? error.message() : std::string("the copy failed")) + ".\n" + source +
           " is where it was.";
  }
  if (!fs::remove(from, error)) {
    return "The file was copied to " + to.string() + " but could not be removed from " + source +
           ": " + error.message() + ".";
  }
  return "";
}

bool DeleteFile(const std::string& path) {
  std::error_code error;
  return fs::remove(path, error);
}

std::string CreateFolder(const std::string& parent, const std::string& name) {
  if (name.empty()) return "Please enter the name of the folder you wish to create.";
  std::error_code error;
  fs::create_directory(JoinFolder(parent, name), error);
  return error ? error.message() : "";
}

bool IsViewerPictureName(const std::string& name) {
  return EndsWithNoCase(name, "gif") || EndsWithNoCase(name, "jpg") || EndsWithNoCase(name, "bmp");
}

}  // namespace tessarine
