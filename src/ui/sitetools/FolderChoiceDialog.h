#pragma once
// A folder chooser: the folder tree alone, returning the folder picked.

#include <QDialog>

namespace tessarine {

class FolderFileLists;

class FolderChoiceDialog : public QDialog {
  Q_OBJECT
 public:
  FolderChoiceDialog(const QString& title, const QString& prompt, const QString& start,
                     QWidget* parent = nullptr);
  QString Folder() const;

 private:
  FolderFileLists* lists_;
};

}  // namespace tessarine
