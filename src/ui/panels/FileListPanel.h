#pragma once
// The side panel's file list: a folder tree over the files of the chosen folder. The folder
// is read and sorted on a worker thread and the list filled in one step, so that a folder
// of many thousand files never holds the window. Double click opens a page or drops a picture into
// the document; a file dragged onto a document becomes a link, an image or a style sheet link
// there; the popup menu copies, moves, renames, deletes and makes folders. A drive or folder
// that cannot be read is refused with its message.

#include <QWidget>
#include <functional>

#include <atomic>
#include <memory>

class QFileSystemModel;
class QListView;
class QMenu;
class QSplitter;
class QTreeView;

namespace tessarine {

class Application;
class DriveList;
class FileNamesModel;

class FileListPanel : public QWidget {
  Q_OBJECT
 public:
  FileListPanel(Application& app, QWidget* parent = nullptr);

  // A folder that cannot be read gives way to the nearest one above it that can; `report`
  // says so first.
  void SetFolder(const QString& folder, bool report = true);
  // Reads the folder again (after a file operation); a folder that has gone is reported.
  void Refresh();
  // Names shown, once the folder has been read.
  int FileCount() const;
  QString Folder() const { return folder_; }
  // The "FileList" setting's word: "both", "html", "image" or "all".
  void SetFilterWord(const std::string& word);
  std::string FilterWord() const { return filterWord_; }
  // Where the file list begins below the drive list and folder tree, in pixels: the split
  // the settings keep. -1 while the panel has no size yet.
  int SplitTop() const;
  // Applied now, or once the panel has its size.
  void SetSplitTop(int pixels);
  QString SelectedPath() const;
  bool SelectName(const QString& name);
  void Activate(const QString& path);  // the double click

  DriveList* Drives() const { return drives_; }
  QTreeView* FolderTree() const { return folderTree_; }
  QListView* FileList() const { return fileList_; }
  QMenu* Popup() const { return popup_; }

  // Opens the site manager on a page (the link check of a chosen file).
  std::function<void(const std::string& folder, const std::string& name)> verifyFile;

 private:
  void BuildPopup();
  void RunOperation(int operation);
  void DeleteSelected();
  void NewFolder();
  void ViewPicture();
  void Clicked(const QString& path);
  void FolderPicked(const QString& path);
  void FolderGone(const QString& folder, int error);
  void ShowDrive(const QString& root);
  void ShowError(const std::string& message);
  bool eventFilter(QObject* watched, QEvent* event) override;

  Application& app_;
  QFileSystemModel* folders_;
  FileNamesModel* files_;
  QStringList patterns_;
  std::string filterWord_ = "both";
  int pendingSplitTop_ = -1;
  std::shared_ptr<std::atomic<int>> generation_ = std::make_shared<std::atomic<int>>(0);
  DriveList* drives_;
  QTreeView* folderTree_;
  QSplitter* splitter_;
  QListView* fileList_;
  QMenu* popup_;
  QString folder_;
};

}  // namespace tessarine
