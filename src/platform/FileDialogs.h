#pragma once
// The common file dialog: title, filter (the "description|patterns|..." form), filter
// index (1-based), initial folder, flags; the answer is a path, or "" for Cancel.

#include <deque>
#include <string>
#include <vector>

namespace tessarine {

struct FileDialogRequest {
  std::string title;
  std::string filter;
  int filterIndex = 1;
  std::string initialFolder;
  std::string fileName;
  bool save = false;
  bool confirmOverwrite = false;
  // Several files may be chosen: the answer is then the folder and the names, each
  // separated by a NUL character.
  bool multiSelect = false;
};

struct FileDialogAnswer {
  std::string path;  // "" when cancelled
  int filterIndex = 1;
};

class FileDialogs {
 public:
  virtual ~FileDialogs() = default;
  virtual FileDialogAnswer Show(const FileDialogRequest& request) = 0;
};

// Headless: answers from a script (Cancel when it runs dry), records every request.
class ScriptedFileDialogs : public FileDialogs {
 public:
  void Queue(std::string path, int filterIndex = 1) {
    answers_.push_back({std::move(path), filterIndex});
  }
  const std::vector<FileDialogRequest>& requests() const { return requests_; }
  FileDialogAnswer Show(const FileDialogRequest& request) override {
    requests_.push_back(request);
    if (answers_.empty()) return {"", request.filterIndex};
    FileDialogAnswer a = answers_.front();
    answers_.pop_front();
    return a;
  }

 private:
  std::deque<FileDialogAnswer> answers_;
  std::vector<FileDialogRequest> requests_;
};

}  // namespace tessarine
