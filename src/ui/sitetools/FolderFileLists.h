#pragma once
// A folder tree beside a list of the files in the chosen folder that match a pattern such
// as "*.html;*.htm": the drive, folder and file lists of the site tools' windows. The
// folder tree starts at the filesystem root, which stands for the drives.

#include <QStringList>
#include <QWidget>
#include <functional>
#include <string>

class QFileSystemModel;
class QListWidget;
class QListWidgetItem;
class QSplitter;
class QTreeView;

namespace tessarine {

class DriveList;

class FolderFileLists : public QWidget {
  Q_OBJECT
 public:
  explicit FolderFileLists(Qt::Orientation orientation, QWidget* parent = nullptr);

  void SetPattern(const QString& semicolonPatterns);
  // A folder that cannot be read gives way to the nearest one above it that can.
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

  // Puts "Drive:" and "Directory:" over the two lists.
  void ShowListCaptions();
  // Where the file list begins, in pixels from the top; -1 while it has no size. Setting
  // it moves the split between the folders and the files.
  int SplitTop() const;
  void SetSplitTop(int pixels);
  // Shows the refusal of a drive or folder; unset, a message box of its own.
  void SetErrorHandler(std::function<void(const std::string& message)> show);

  DriveList* Drives() const { return drives_; }
  QTreeView* FolderTree() const { return folderTree_; }
  QListWidget* FileList() const { return fileList_; }
  QSplitter* Splitter() const { return splitter_; }

 signals:
  void FolderChanged(const QString& folder);
  void FileClicked(const QString& name);
  void FileActivated(const QString& name);

 private:
  void FillFiles();
  void ShowDrive(const QString& root);
  void ShowError(const std::string& message);
  bool ChooseFolder(const QString& path);

  QFileSystemModel* folders_;
  DriveList* drives_;
  QTreeView* folderTree_;
  QListWidget* fileList_;
  QSplitter* splitter_;
  QStringList patterns_;
  QString folder_;
  std::function<void(const std::string&)> showError_;
};

}  // namespace tessarine
