#include "ui/panels/FileListPanel.h"

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
#include <QPixmap>
#include <QPointer>
#include <QScrollArea>
#include <QSplitter>
#include <QStringListModel>
#include <QThread>
#include <QTreeView>
#include <QVBoxLayout>

#include "conventions/SaveWarning.h"
#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "core/FileOpen.h"
#include "core/Preview.h"
#include "core/Startup.h"
#include "core/TextServices.h"
#include "panels/FileOperations.h"
#include "platform/Desktop.h"
#include "platform/DocumentWindow.h"
#include "platform/MessageBoxes.h"
#include "platform/SettingsStore.h"
#include "ui/sitetools/FolderChoiceDialog.h"

namespace tessarine {
namespace {

QString Q(const std::string& s) {
  return QString::fromUtf8(s.data(), static_cast<int>(s.size()));
}

std::string S(const QString& s) {
  return s.toUtf8().toStdString();
}

}  // namespace

FileListPanel::FileListPanel(Application& app, QWidget* parent)
    : QWidget(parent),
      app_(app),
      folders_(new QFileSystemModel(this)),
      files_(new QStringListModel(this)),
      folderTree_(new QTreeView),
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

  auto* splitter = new QSplitter(Qt::Vertical);
  splitter->addWidget(folderTree_);
  splitter->addWidget(fileList_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(splitter);
  BuildPopup();

  connect(folderTree_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& index) {
            const QString path = folders_->filePath(index);
            if (!path.isEmpty() && path != folder_) SetFolder(path);
          });
  auto pathAt = [this](const QModelIndex& index) {
    return folder_ + (folder_.endsWith('/') ? "" : "/") + index.data().toString();
  };
  connect(fileList_, &QListView::activated, this,
          [this, pathAt](const QModelIndex& index) { Activate(pathAt(index)); });
  connect(fileList_, &QListView::clicked, this,
          [this, pathAt](const QModelIndex& index) { Clicked(pathAt(index)); });
  app_.files.refreshFileList = [this] { Refresh(); };
  connect(fileList_, &QWidget::customContextMenuRequested, this,
          [this](const QPoint& at) { popup_->popup(fileList_->viewport()->mapToGlobal(at)); });
}

void FileListPanel::SetFolder(const QString& folder) {
  folder_ = folder;
  Refresh();
  const QModelIndex index = folders_->index(folder);
  if (index.isValid()) {
    QSignalBlocker block(folderTree_->selectionModel());
    folderTree_->setCurrentIndex(index);
    folderTree_->scrollTo(index);
  }
}

void FileListPanel::SetFilterWord(const std::string& word) {
  patterns_ = Q(FileListPattern(word)).split(';', Qt::SkipEmptyParts);
  Refresh();
}

void FileListPanel::Refresh() {
  // A later read wins: an earlier one that ends after it is dropped.
  const int generation = ++*generation_;
  const QString folder = folder_;
  const QStringList patterns = patterns_;
  QPointer<FileListPanel> self(this);
  auto current = generation_;
  QThread* reader = QThread::create([self, current, generation, folder, patterns] {
    QStringList names =
        QDir(folder).entryList(patterns, QDir::Files | QDir::Hidden, QDir::Name | QDir::IgnoreCase);
    if (*current != generation) return;
    QMetaObject::invokeMethod(
        qApp,
        [self, current, generation, names = std::move(names)] {
          if (!self || *current != generation) return;
          self->files_->setStringList(names);
        },
        Qt::QueuedConnection);
  });
  connect(reader, &QThread::finished, reader, &QObject::deleteLater);
  reader->start();
}

int FileListPanel::FileCount() const {
  return files_->rowCount();
}

QString FileListPanel::SelectedPath() const {
  const QModelIndex index = fileList_->currentIndex();
  if (!index.isValid() || !fileList_->selectionModel()->isSelected(index)) return {};
  return folder_ + (folder_.endsWith('/') ? "" : "/") + index.data().toString();
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
  add("mnuRightFileProps", "P&roperties", [this] {
    if (const QString path = SelectedPath(); !path.isEmpty()) ShowFileProperties(app_, S(path));
  });
}

void FileListPanel::Clicked(const QString& path) {
  if (!IsViewerPictureName(S(path))) return;
  if (app_.store.GetSetting("Miscellaneous", "PicViewerFirstTime", "1") != "1") return;
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
  bool ok = false;
  const QString name = QInputDialog::getText(this, "New Folder",
                                             "Name of the new folder:", QLineEdit::Normal, "", &ok);
  if (!ok) return;
  const std::string problem = CreateFolder(S(folder_), S(name));
  QModelIndex here = folders_->index(folder_);
  if (here.isValid()) folderTree_->expand(here);
  if (!problem.empty()) app_.messages.Show(problem, MsgButtons::OK, MsgIcon::None, app_.title);
}

void FileListPanel::ViewPicture() {
  const QString path = SelectedPath();
  if (path.isEmpty()) return;
  QDialog viewer(this);
  viewer.setObjectName("PictureViewer");
  viewer.setWindowTitle(QFileInfo(path).fileName());
  const QPixmap picture(path);
  auto* image = new QLabel;
  image->setObjectName("picture");
  image->setPixmap(picture);
  image->setAlignment(Qt::AlignCenter);
  auto* scroll = new QScrollArea;
  scroll->setWidget(image);
  scroll->setAlignment(Qt::AlignCenter);
  auto* size = new QLabel(QString("Width: %1 pixels         Height: %2 pixels")
                              .arg(picture.width())
                              .arg(picture.height()));
  size->setObjectName("pictureSize");
  auto* layout = new QVBoxLayout(&viewer);
  layout->addWidget(scroll, 1);
  layout->addWidget(size);
  viewer.resize(std::min(picture.width() + 60, 900), std::min(picture.height() + 90, 700));
  viewer.exec();
}

}  // namespace tessarine
