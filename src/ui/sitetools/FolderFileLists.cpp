#include "ui/sitetools/FolderFileLists.h"

#include <algorithm>

#include <QDir>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTreeView>
#include <QVBoxLayout>

#include "panels/FolderAccess.h"
#include "ui/panels/DriveList.h"

namespace tessarine {

FolderFileLists::FolderFileLists(Qt::Orientation orientation, QWidget* parent)
    : QWidget(parent),
      folders_(new QFileSystemModel(this)),
      drives_(new DriveList),
      folderTree_(new QTreeView),
      fileList_(new QListWidget),
      splitter_(new QSplitter(orientation)) {
  folders_->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Drives);
  folders_->setRootPath("/");
  folderTree_->setObjectName("folderTree");
  folderTree_->setModel(folders_);
  folderTree_->setHeaderHidden(true);
  for (int column = 1; column < folders_->columnCount(); ++column) folderTree_->hideColumn(column);
  fileList_->setObjectName("fileList");
  auto* driveAndFolders = new QWidget;
  auto* column = new QVBoxLayout(driveAndFolders);
  column->setObjectName("driveAndFolders");
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(drives_);
  column->addWidget(folderTree_, 1);
  splitter_->addWidget(driveAndFolders);
  splitter_->addWidget(fileList_);
  splitter_->setChildrenCollapsible(false);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(splitter_);

  connect(folderTree_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& index) {
            const QString path = folders_->filePath(index);
            if (path.isEmpty() || path == folder_) return;
            if (!ChooseFolder(path)) return;
            FillFiles();
            emit FolderChanged(folder_);
          });
  drives_->onError = [this](const std::string& message) { ShowError(message); };
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
  connect(drives_, &DriveList::DriveChosen, this, [this](const QString& root) {
    ShowDrive(root);
    SetFolder(root);
  });
  connect(fileList_, &QListWidget::itemClicked, this,
          [this](QListWidgetItem* item) { emit FileClicked(item->text()); });
  connect(fileList_, &QListWidget::itemActivated, this,
          [this](QListWidgetItem* item) { emit FileActivated(item->text()); });
}

void FolderFileLists::SetPattern(const QString& semicolonPatterns) {
  patterns_ = semicolonPatterns.split(';', Qt::SkipEmptyParts);
  FillFiles();
}

// The tree shows one drive, as a drive list's folder list does.
void FolderFileLists::ShowDrive(const QString& root) {
  folderTree_->setRootIndex(root == "/" ? QModelIndex() : folders_->index(root));
}

void FolderFileLists::SetErrorHandler(std::function<void(const std::string&)> show) {
  showError_ = std::move(show);
}

void FolderFileLists::ShowError(const std::string& message) {
  if (showError_)
    showError_(message);
  else
    QMessageBox::warning(this, window()->windowTitle(), QString::fromStdString(message));
}

// A folder picked in the tree: one that cannot be read is refused, and the tree goes back.
bool FolderFileLists::ChooseFolder(const QString& path) {
  const int error = FolderReadError(path.toStdString());
  if (error == 0) {
    folder_ = path;
    return true;
  }
  {
    QSignalBlocker block(folderTree_->selectionModel());
    folderTree_->setCurrentIndex(folders_->index(folder_));
  }
  ShowError(FolderErrorMessage(path.toStdString(), error));
  return false;
}

void FolderFileLists::SetFolder(const QString& folder) {
  QString path = QDir::cleanPath(folder);
  if (path.isEmpty()) path = QDir::homePath();
  path = QString::fromStdString(NearestReadableFolder(path.toStdString()));
  folder_ = path;
  drives_->ShowDriveOf(path);
  ShowDrive(drives_->Drive());
  const QModelIndex index = folders_->index(path);
  {
    QSignalBlocker block(folderTree_->selectionModel());
    folderTree_->setCurrentIndex(index);
  }
  folderTree_->scrollTo(index);
  folderTree_->expand(index);
  FillFiles();
  emit FolderChanged(folder_);
}

void FolderFileLists::ShowListCaptions() {
  auto* column = findChild<QVBoxLayout*>("driveAndFolders");
  if (!column || column->count() != 2) return;
  auto* drive = new QLabel("&Drive:");
  drive->setBuddy(drives_);
  auto* directory = new QLabel("Di&rectory:");
  directory->setBuddy(folderTree_);
  column->insertWidget(0, drive);
  column->insertWidget(2, directory);
}

int FolderFileLists::SplitTop() const {
  if (!splitter_->isVisible() || splitter_->height() <= 0) return -1;
  if (splitter_->orientation() != Qt::Vertical) return -1;
  return fileList_->mapTo(this, QPoint(0, 0)).y();
}

void FolderFileLists::SetSplitTop(int pixels) {
  const int total = splitter_->height() - splitter_->handleWidth();
  if (pixels < 0 || total <= 0 || splitter_->orientation() != Qt::Vertical) return;
  const int top = std::clamp(pixels - splitter_->handleWidth(), 0, total);
  splitter_->setSizes({top, total - top});
}

void FolderFileLists::SetMultiSelection(bool multi) {
  fileList_->setSelectionMode(multi ? QAbstractItemView::ExtendedSelection
                                    : QAbstractItemView::SingleSelection);
}

void FolderFileLists::Refresh() {
  FillFiles();
}

void FolderFileLists::FillFiles() {
  fileList_->clear();
  if (folder_.isEmpty()) return;
  const QStringList names =
      QDir(folder_).entryList(patterns_, QDir::Files | QDir::Hidden, QDir::Name | QDir::IgnoreCase);
  fileList_->addItems(names);
}

QStringList FolderFileLists::Names() const {
  QStringList names;
  for (int i = 0; i < fileList_->count(); ++i) names << fileList_->item(i)->text();
  return names;
}

QStringList FolderFileLists::SelectedPaths() const {
  QStringList paths;
  // In list order, not in the order of clicking.
  for (int i = 0; i < fileList_->count(); ++i) {
    if (fileList_->item(i)->isSelected()) paths << PathOf(fileList_->item(i)->text());
  }
  return paths;
}

QString FolderFileLists::CurrentName() const {
  QListWidgetItem* item = fileList_->currentItem();
  return item && item->isSelected() ? item->text() : QString();
}

QString FolderFileLists::PathOf(const QString& name) const {
  return folder_ == "/" ? "/" + name : folder_ + "/" + name;
}

bool FolderFileLists::SelectName(const QString& name) {
  const QList<QListWidgetItem*> found = fileList_->findItems(name, Qt::MatchExactly);
  if (found.isEmpty()) return false;
  fileList_->setCurrentItem(found.front());
  found.front()->setSelected(true);
  return true;
}

}  // namespace tessarine
