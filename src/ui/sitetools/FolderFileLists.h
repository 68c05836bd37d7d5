#pragma once
// A folder tree beside a list of the files in the chosen folder that match a pattern such
// as "*.html;*.htm": the drive, folder and file lists of the site tools' windows. The
// folder tree starts at the filesystem root, which stands for the drives.

#include <QStringList>
#include <QWidget>

class QFileSystemModel;
class QListWidget;
class QListWidgetItem;
class QSplitter;
class QTreeView;

namespace tessarine {

class FolderFileLists : public QWidget {
  Q_OBJECT
 public:
  explicit FolderFileLists(Qt::Orientation orientation, QWidget* parent = nullptr);

  void SetPattern(const QString& semicolonPatterns);
  void SetFolder(const QString& folder);
  QString Folder() const { return folder_; }
  void SetMultiSelection(bool multi);
  // Reads the folder again (after a file operation).
  void Refresh();

  // Names in list order; full paths of the selected ones; the current one ("" if none).
  QStringList Names() const;
  QStringList SelectedPaths() const;
  QString CurrentName() const;
  QString PathOf(const QString& name) const;
  bool SelectName(const QString& name);

  QTreeView* FolderTree() const { return folderTree_; }
  QListWidget* FileList() const { return fileList_; }
  QSplitter* Splitter() const { return splitter_; }

 signals:
  void FolderChanged(const QString& folder);
  void FileClicked(const QString& name);
  void FileActivated(const QString& name);

 private:
  void FillFiles();

  QFileSystemModel* folders_;
  QTreeView* folderTree_;
  QListWidget* fileList_;
  QSplitter* splitter_;
  QStringList patterns_;
  QString folder_;
};

}  // namespace tessarine
