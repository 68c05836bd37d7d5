#include "ui/sitetools/FolderFileLists.h"

#include <QDir>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QListWidget>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTreeView>
#include <QVBoxLayout>

namespace tessarine {

FolderFileLists::FolderFileLists(Qt::Orientation orientation, QWidget* parent)
    : QWidget(parent),
      folders_(new QFileSystemModel(this)),
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
  splitter_->addWidget(folderTree_);
  splitter_->addWidget(fileList_);
  splitter_->setChildrenCollapsible(false);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(splitter_);

  connect(folderTree_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& index) {
            const QString path = folders_->filePath(index);
            if (path.isEmpty() || path == folder_) return;
            folder_ = path;
            FillFiles();
            emit FolderChanged(folder_);
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

void FolderFileLists::SetFolder(const QString& folder) {
  QString path = QDir::cleanPath(folder);
  if (path.isEmpty() || !QDir(path).exists()) path = QDir::homePath();
  folder_ = path;
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
