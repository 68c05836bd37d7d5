#include "ui/panels/DriveList.h"

#include <QMessageBox>
#include <QSignalBlocker>
#include <QStorageInfo>

#include "panels/FolderAccess.h"

namespace tessarine {
namespace {

std::vector<std::string> StdList(const QStringList& list) {
  std::vector<std::string> out;
  for (const QString& s : list) out.push_back(s.toStdString());
  return out;
}

QStringList MountedDrives() {
  std::vector<std::string> mounts;
  for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
    if (volume.isValid()) mounts.push_back(volume.rootPath().toStdString());
  }
  QStringList drives;
  for (const std::string& d : UserDrives(mounts)) drives << QString::fromStdString(d);
  return drives;
}

}  // namespace

DriveList::DriveList(QWidget* parent) : QComboBox(parent) {
  setObjectName("driveList");
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(8);
  SetDrives(MountedDrives());
  connect(this, &QComboBox::currentIndexChanged, this, &DriveList::Choose);
}

void DriveList::SetDrives(const QStringList& roots) {
  QSignalBlocker block(this);
  clear();
  addItems(roots);
  Select(lastGood_);
}

QStringList DriveList::Drives() const {
  QStringList roots;
  for (int i = 0; i < count(); ++i) roots << itemText(i);
  return roots;
}

void DriveList::ShowDriveOf(const QString& folder) {
  lastGood_ = QString::fromStdString(DriveOf(folder.toStdString(), StdList(Drives())));
  QSignalBlocker block(this);
  Select(lastGood_);
}

void DriveList::showPopup() {
  // Media come and go while the window is open.
  SetDrives(MountedDrives());
  QComboBox::showPopup();
}

void DriveList::Select(const QString& root) {
  int index = findText(root);
  if (index < 0) index = findText("/");
  setCurrentIndex(index);
}

void DriveList::Choose(int index) {
  if (index < 0) return;
  const QString root = itemText(index);
  if (root == lastGood_) return;
  if (const int error = FolderReadError(root.toStdString()); error != 0) {
    {
      QSignalBlocker block(this);
      Select(lastGood_);
    }
    const std::string message = DriveErrorMessage(error);
    if (onError)
      onError(message);
    else
      QMessageBox::warning(this, window()->windowTitle(), QString::fromStdString(message));
    return;
  }
  lastGood_ = root;
  emit DriveChosen(root);
}

}  // namespace tessarine
