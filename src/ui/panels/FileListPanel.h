#pragma once
// The side panel's file list: a folder tree over the files of the chosen folder. The folder
// is read and sorted on a worker thread and the list filled in one step, so that a folder
// of many thousand files never holds the window. Double click opens a page or drops a picture into
// the document; the popup menu copies, moves, renames, deletes and makes folders.

#include <QWidget>
#include <functional>

#include <atomic>
#include <memory>

class QFileSystemModel;
class QListView;
class QStringListModel;
class QMenu;
class QTreeView;

namespace tessarine {

class Application;

class FileListPanel : public QWidget {
  Q_OBJECT
 public:
  FileListPanel(Application& app, QWidget* parent = nullptr);

  void SetFolder(const QString& folder);
  // Reads the folder again (after a file operation).
  void Refresh();
  // Names shown, once the folder has been read.
  int FileCount() const;
  QString Folder() const { return folder_; }
  // The "FileList" setting's word: "both", "html", "image" or "all".
  void SetFilterWord(const std::string& word);
  QString SelectedPath() const;
  bool SelectName(const QString& name);
  void Activate(const QString& path);  // the double click

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

  Application& app_;
  QFileSystemModel* folders_;
  QStringListModel* files_;
  QStringList patterns_;
  std::shared_ptr<std::atomic<int>> generation_ = std::make_shared<std::atomic<int>>(0);
  QTreeView* folderTree_;
  QListView* fileList_;
  QMenu* popup_;
  QString folder_;
};

}  // namespace tessarine
