#include "ui/panels/FileListPanel.h"

#include <algorithm>

#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileSystemModel>
#include <QInputDialog>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QSplitter>
#include <QStringListModel>
#include <QThread>
#include <QTreeView>
#include <QUrl>
#include <QVBoxLayout>

#include "conventions/SaveWarning.h"
#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "core/FileOpen.h"
#include "core/Preview.h"
#include "core/Startup.h"
#include "core/TextServices.h"
#include "panels/FileListFilters.h"
#include "panels/FileOperations.h"
#include "panels/FolderAccess.h"
#include "platform/Desktop.h"
#include "platform/DocumentWindow.h"
#include "platform/MessageBoxes.h"
#include "platform/SettingsStore.h"
#include "settings/Settings.h"
#include "ui/panels/DriveList.h"
#include "ui/panels/PictureViewerDialog.h"
#include "ui/sitetools/FolderChoiceDialog.h"

namespace tessarine {
namespace {

QString Q(const std::string& s) {
  return QString::fromUtf8(s.data(), static_cast<int>(s.size()));
}

std::string S(const QString& s) {
  return s.toUtf8().toStdString();
}

QString JoinName(const QString& folder, const QString& name) {
  return folder + (folder.endsWith('/') ? "" : "/") + name;
}

}  // namespace

// The names of one folder. A dragged name carries its file, so that a document it is
// dropped on can link to it; names are not edited in place.
class FileNamesModel : public QStringListModel {
 public:
  using QStringListModel::QStringListModel;
  void SetNames(const QString& folder, const QStringList& names) {
    folder_ = folder;
    setStringList(names);
  }
  Qt::ItemFlags flags(const QModelIndex& index) const override {
    if (!index.isValid()) return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled;
  }
  QStringList mimeTypes() const override { return {"text/uri-list"}; }
  QMimeData* mimeData(const QModelIndexList& indexes) const override {
    QList<QUrl> urls;
    for (const QModelIndex& index : indexes) {
      if (index.isValid()) urls << QUrl::fromLocalFile(JoinName(folder_, index.data().toString()));
    }
    if (urls.isEmpty()) return nullptr;
    auto* data = new QMimeData;
    data->setUrls(urls);
    return data;
  }
  // A copy only: a move would take the name out of the list.
  Qt::DropActions supportedDragActions() const override { return Qt::CopyAction; }

 private:
  QString folder_;
};

FileListPanel::FileListPanel(Application& app, QWidget* parent)
    : QWidget(parent),
      app_(app),
      folders_(new QFileSystemModel(this)),
      files_(new FileNamesModel(this)),
      drives_(new DriveList),
      folderTree_(new QTreeView),
      splitter_(new QSplitter(Qt::Vertical)),
      fileList_(new QListView),
      popup_(new QMenu(this)) {
  setObjectName("fileListPanel");
  folderTree_->setObjectName("folderTree");
  fileList_->setObjectName("fileList");
  popup_->setObjectName("fileListPopup");
  folders_->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Drives);
  folders_->setRootPath("/");
  folderTree_->setModel(folders_);
  folderTree_->setHeaderHidden(true);
  for (int column = 1; column < folders_->columnCount(); ++column) folderTree_->hideColumn(column);
  fileList_->setModel(files_);
  // Uniform rows laid out in batches keep a folder of many thousand files from holding the
  // window while it is listed.
  fileList_->setUniformItemSizes(true);
  fileList_->setLayoutMode(QListView::Batched);
  fileList_->setBatchSize(2000);
  fileList_->setContextMenuPolicy(Qt::CustomContextMenu);
  // A double click opens; it never edits the name.
  fileList_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  fileList_->setDragEnabled(true);
  fileList_->setDragDropMode(QAbstractItemView::DragOnly);
  fileList_->setDefaultDropAction(Qt::CopyAction);

  auto* driveAndFolders = new QWidget;
  auto* column = new QVBoxLayout(driveAndFolders);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(drives_);
  column->addWidget(folderTree_, 1);
  splitter_->setObjectName("fileListSplitter");
  splitter_->addWidget(driveAndFolders);
  splitter_->addWidget(fileList_);
  splitter_->setChildrenCollapsible(false);
  // A taller panel gives its room to the files: the split stays where it was put.
  splitter_->setStretchFactor(0, 0);
  splitter_->setStretchFactor(1, 1);
  splitter_->installEventFilter(this);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(splitter_);
  BuildPopup();

  connect(folderTree_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& index) {
            const QString path = folders_->filePath(index);
            if (path.isEmpty() || path == folder_) return;
            // The tree moves on by itself when the shown folder is removed: say so, as a
            // refresh would.
            if (!folder_.isEmpty() && !path.startsWith(folder_)) {
              if (const int error = FolderReadError(S(folder_)); error != 0)
                ShowError(FolderErrorMessage(S(folder_), error));
            }
            FolderPicked(path);
          });
  drives_->onError = [this](const std::string& message) { ShowError(message); };
  connect(drives_, &DriveList::DriveChosen, this, [this](const QString& root) {
    ShowDrive(root);
    FolderPicked(root);
  });
  // The tree learns its folders in the background: the current one is shown once its
  // parents are known.
  connect(folders_, &QFileSystemModel::directoryLoaded, this, [this](const QString& loaded) {
    if (!folder_.startsWith(loaded)) return;
    const QModelIndex index = folders_->index(folder_);
    if (!index.isValid()) return;
    QSignalBlocker block(folderTree_->selectionModel());
    folderTree_->setCurrentIndex(index);
    folderTree_->scrollTo(index);
  });
  auto pathAt = [this](const QModelIndex& index) {
    return JoinName(folder_, index.data().toString());
  };
  connect(fileList_, &QListView::activated, this,
          [this, pathAt](const QModelIndex& index) { Activate(pathAt(index)); });
  connect(fileList_, &QListView::clicked, this,
          [this, pathAt](const QModelIndex& index) { Clicked(pathAt(index)); });
  app_.files.refreshFileList = [this] { Refresh(); };
  connect(fileList_, &QWidget::customContextMenuRequested, this,
          [this](const QPoint& at) { popup_->popup(fileList_->viewport()->mapToGlobal(at)); });
}

void FileListPanel::ShowError(const std::string& message) {
  app_.messages.Show(message, MsgButtons::OK, MsgIcon::Exclamation, app_.title);
}

void FileListPanel::ShowDrive(const QString& root) {
  folderTree_->setRootIndex(root == "/" ? QModelIndex() : folders_->index(root));
}

// The folder tree's change: the files follow, with the filter read again, and the folder
// becomes the one the next file dialog starts in. A folder that cannot be read is refused
// and the tree goes back.
void FileListPanel::FolderPicked(const QString& path) {
  if (const int error = FolderReadError(S(path)); error != 0) {
    {
      QSignalBlocker block(folderTree_->selectionModel());
      folderTree_->setCurrentIndex(folders_->index(folder_));
    }
    ShowError(FolderErrorMessage(S(path), error));
    return;
  }
  filterWord_ = FileListWord(app_.store.GetSetting("Miscellaneous", "FileList", "both"));
  patterns_.clear();
  for (const std::string& p : NamePatterns(FileListPattern(filterWord_))) patterns_ << Q(p);
  SetFolder(path, false);
  app_.files.SaveDirectory = S(folder_);
}

void FileListPanel::SetFolder(const QString& folder, bool report) {
  QString path = folder;
  if (const int error = FolderReadError(S(path)); error != 0) {
    if (report) ShowError(FolderErrorMessage(S(path), error));
    path = Q(NearestReadableFolder(S(path)));
  }
  folder_ = path;
  drives_->ShowDriveOf(path);
  ShowDrive(drives_->Drive());
  Refresh();
  const QModelIndex index = folders_->index(path);
  if (index.isValid()) {
    QSignalBlocker block(folderTree_->selectionModel());
    folderTree_->setCurrentIndex(index);
    folderTree_->scrollTo(index);
  }
}

void FileListPanel::SetFilterWord(const std::string& word) {
  filterWord_ = FileListWord(word);
  patterns_.clear();
  for (const std::string& p : NamePatterns(FileListPattern(filterWord_))) patterns_ << Q(p);
  Refresh();
}

int FileListPanel::SplitTop() const {
  if (splitter_->height() <= 0 || !splitter_->isVisible()) return pendingSplitTop_;
  return fileList_->mapTo(this, QPoint(0, 0)).y();
}

void FileListPanel::SetSplitTop(int pixels) {
  if (pixels < 0) return;
  const int total = splitter_->height();
  if (total <= 0 || !splitter_->isVisible()) {
    pendingSplitTop_ = pixels;
    return;
  }
  pendingSplitTop_ = -1;
  const int top = std::clamp(pixels - splitter_->handleWidth(), 0, total);
  splitter_->setSizes({top, std::max(0, total - splitter_->handleWidth() - top)});
}

bool FileListPanel::eventFilter(QObject* watched, QEvent* event) {
  // The stored split waits for the panel's first real size.
  if (watched == splitter_ && pendingSplitTop_ >= 0 &&
      (event->type() == QEvent::Resize || event->type() == QEvent::Show)) {
    const int pending = pendingSplitTop_;
    QMetaObject::invokeMethod(
        this,
        [this, pending] {
          if (pendingSplitTop_ == pending) SetSplitTop(pending);
        },
        Qt::QueuedConnection);
  }
  return QWidget::eventFilter(watched, event);
}

void FileListPanel::Refresh() {
  if (folder_.isEmpty()) return;
  // A later read wins: an earlier one that ends after it is dropped.
  const int generation = ++*generation_;
  const QString folder = folder_;
  const QStringList patterns = patterns_;
  QPointer<FileListPanel> self(this);
  auto current = generation_;
  QThread* reader = QThread::create([self, current, generation, folder, patterns] {
    const int error = FolderReadError(S(folder));
    QStringList names;
    if (error == 0) {
      names = QDir(folder).entryList(patterns, QDir::Files | QDir::Hidden,
                                     QDir::Name | QDir::IgnoreCase);
    }
    if (*current != generation) return;
    QMetaObject::invokeMethod(
        qApp,
        [self, current, generation, folder, error, names = std::move(names)] {
          if (!self || *current != generation) return;
          if (error != 0) {
            self->FolderGone(folder, error);
            return;
          }
          self->files_->SetNames(folder, names);
        },
        Qt::QueuedConnection);
  });
  connect(reader, &QThread::finished, reader, &QObject::deleteLater);
  reader->start();
}

// The folder went (or became unreadable) since it was shown: say so and show the nearest
// one left.
void FileListPanel::FolderGone(const QString& folder, int error) {
  files_->SetNames(folder, {});
  ShowError(FolderErrorMessage(S(folder), error));
  const QString nearer = Q(NearestReadableFolder(S(folder)));
  if (nearer != folder) SetFolder(nearer, false);
}

int FileListPanel::FileCount() const {
  return files_->rowCount();
}

QString FileListPanel::SelectedPath() const {
  const QModelIndex index = fileList_->currentIndex();
  if (!index.isValid() || !fileList_->selectionModel()->isSelected(index)) return {};
  return JoinName(folder_, index.data().toString());
}

bool FileListPanel::SelectName(const QString& name) {
  const int row = files_->stringList().indexOf(name);
  if (row < 0) return false;
  fileList_->setCurrentIndex(files_->index(row));
  return true;
}

void FileListPanel::BuildPopup() {
  auto add = [this](const char* name, const char* caption, auto slot) {
    QAction* a = popup_->addAction(caption);
    a->setObjectName(name);
    connect(a, &QAction::triggered, this, slot);
  };
  add("mnuRightFileOpen", "&Open", [this] {
    if (const QString path = SelectedPath(); !path.isEmpty()) Activate(path);
  });
  add("mnuRightFileView", "&View in Browser", [this] {
    if (const QString path = SelectedPath(); !path.isEmpty()) OpenInDefaultViewer(app_, S(path));
  });
  add("mnuPicViewer", "View with &Image Viewer", [this] { ViewPicture(); });
  add("mnuVerify", "Verify &Links", [this] {
    const QString path = SelectedPath();
    if (path.isEmpty() || !verifyFile) return;
    verifyFile(S(folder_), S(QFileInfo(path).fileName()));
  });
  popup_->addSeparator();
  add("mnuFileCopy", "&Copy...", [this] { RunOperation(static_cast<int>(FileOperation::Copy)); });
  add("mnuFileMove", "&Move...", [this] { RunOperation(static_cast<int>(FileOperation::Move)); });
  add("mnuRename", "&Rename...", [this] { RunOperation(static_cast<int>(FileOperation::Rename)); });
  add("mnuFileDelete", "&Delete", [this] { DeleteSelected(); });
  add("mnuRightFileMenu2NewFolder", "&New Folder...", [this] { NewFolder(); });
  popup_->addSeparator();
  add("mnuRightFileProps", "Proper&ties", [this] {
    if (const QString path = SelectedPath(); !path.isEmpty()) ShowFileProperties(app_, S(path));
  });
}

void FileListPanel::Clicked(const QString& path) {
  if (!IsViewerPictureName(S(path))) return;
  if (Val(app_.store.GetSetting("Miscellaneous", "PicViewerFirstTime", "1")) != 1) return;
  app_.messages.Show(kPictureViewerHint, MsgButtons::OK, MsgIcon::Information, "Image Viewer");
  app_.store.SaveSetting("Miscellaneous", "PicViewerFirstTime", "0");
}

void FileListPanel::Activate(const QString& path) {
  const std::string file = S(path);
  switch (ActionForName(file)) {
    case FileListAction::OpenAsDocument:
      GiveWayIfUntouchedFirstWindow(app_);
      OpenFile(app_, file);
      return;
    case FileListAction::InsertImage: {
      DocumentWindow* window = app_.ActiveDocument();
      if (!window) return;
      CheckSaveWarning(app_);
      const std::string folder = S(QFileInfo(path).absolutePath());
      const std::string relative =
          RelativePath(window->Caption(), folder) + S(QFileInfo(path).fileName());
      int width = 0, height = 0;
      app_.images.Size(file, width, height);
      InsertAtCaret(app_, ImageTagText(relative, width, height, app_.settings.TagCaseUpper), true);
      return;
    }
    case FileListAction::Nothing:
      return;
  }
}

void FileListPanel::RunOperation(int operation) {
  const QString path = SelectedPath();
  if (path.isEmpty()) return;
  const auto op = static_cast<FileOperation>(operation);
  const FileOperationTexts texts = TextsFor(op);
  QString folder;
  QString newName;
  if (op == FileOperation::Rename) {
    bool ok = false;
    newName = QInputDialog::getText(this, texts.title,
                                    QString(texts.prompt) + QFileInfo(path).fileName() + "\nTo:",
                                    QLineEdit::Normal, QFileInfo(path).fileName(), &ok);
    if (!ok) return;
  } else {
    FolderChoiceDialog chooser(texts.title, texts.prompt, folder_, this);
    chooser.SetErrorHandler([this](const std::string& message) { ShowError(message); });
    if (chooser.exec() != QDialog::Accepted) return;
    folder = chooser.Folder();
  }
  const std::string problem = RunFileOperation(op, S(path), S(folder), S(newName));
  Refresh();
  // Only a failed move says so: its file stays where it was.
  if (!problem.empty() && op == FileOperation::Move) {
    app_.messages.Show(problem, MsgButtons::OK, MsgIcon::Exclamation, texts.title);
  }
}

void FileListPanel::DeleteSelected() {
  const QString path = SelectedPath();
  if (path.isEmpty()) {
    app_.messages.Show("Nothing is selected", MsgButtons::OK, MsgIcon::None, app_.title);
    return;
  }
  if (app_.messages.Show("Are you sure you want to delete " + S(path), MsgButtons::YesNo,
                         MsgIcon::Question, "Delete File") != MsgAnswer::Yes) {
    return;
  }
  DeleteFile(S(path));
  Refresh();
}

void FileListPanel::NewFolder() {
  QString name;
  // An empty name asks again, after saying what is wanted.
  for (;;) {
    bool ok = false;
    name = QInputDialog::getText(this, "New Folder", "Name of the new folder:", QLineEdit::Normal,
                                 name, &ok);
    if (!ok) return;
    if (!name.isEmpty()) break;
    app_.messages.Show(CreateFolder(S(folder_), ""), MsgButtons::OK, MsgIcon::None, app_.title);
  }
  const std::string problem = CreateFolder(S(folder_), S(name));
  QModelIndex here = folders_->index(folder_);
  if (here.isValid()) folderTree_->expand(here);
  if (!problem.empty()) app_.messages.Show(problem, MsgButtons::OK, MsgIcon::None, app_.title);
}

void FileListPanel::ViewPicture() {
  const QString path = SelectedPath();
  if (path.isEmpty()) return;
  PictureViewerDialog viewer(app_, path, this);
  viewer.exec();
}

}  // namespace tessarine
