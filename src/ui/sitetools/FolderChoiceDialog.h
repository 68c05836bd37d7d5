#pragma once
// A folder chooser: the folder tree alone, returning the folder picked.

#include <QDialog>
#include <functional>
#include <string>

namespace tessarine {

class FolderFileLists;

class FolderChoiceDialog : public QDialog {
  Q_OBJECT
 public:
  FolderChoiceDialog(const QString& title, const QString& prompt, const QString& start,
                     QWidget* parent = nullptr);
  QString Folder() const;
  // Shows the refusal of a drive or folder that cannot be read.
  void SetErrorHandler(std::function<void(const std::string& message)> show);
  FolderFileLists* Lists() const { return lists_; }

 private:
  FolderFileLists* lists_;
};

}  // namespace tessarine
