#pragma once
// The drive list of the file lists: the filesystem root and the user's mounted volumes. A
// drive that cannot be read is refused with its message, and the list goes back to the
// last good drive.

#include <QComboBox>
#include <functional>
#include <string>

namespace tessarine {

class DriveList : public QComboBox {
  Q_OBJECT
 public:
  explicit DriveList(QWidget* parent = nullptr);

  // Replaces the drives offered (the mounted volumes are read again when the list opens).
  void SetDrives(const QStringList& roots);
  QStringList Drives() const;
  QString Drive() const { return lastGood_; }
  // Shows the drive that holds `folder`, without reading it.
  void ShowDriveOf(const QString& folder);

  // Shows a refusal; unset, a message box of its own.
  std::function<void(const std::string& message)> onError;

 signals:
  void DriveChosen(const QString& root);

 protected:
  void showPopup() override;

 private:
  void Choose(int index);
  void Select(const QString& root);

  QString lastGood_ = "/";
};

}  // namespace tessarine
