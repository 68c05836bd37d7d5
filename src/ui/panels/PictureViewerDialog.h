#pragma once
// The image viewer of the file list: a picture at its own size, centred, with its size in
// pixels below it. The window keeps its place and size between uses.

#include <QDialog>

class QLabel;
class QStatusBar;

namespace tessarine {

class Application;

class PictureViewerDialog : public QDialog {
  Q_OBJECT
 public:
  PictureViewerDialog(Application& app, const QString& path, QWidget* parent = nullptr);

  bool HasPicture() const { return hasPicture_; }
  QLabel* Picture() const { return picture_; }
  QLabel* SizeText() const { return size_; }
  QStatusBar* StatusLine() const { return status_; }

  void done(int result) override;

 protected:
  bool event(QEvent* event) override;

 private:
  Application& app_;
  QLabel* picture_;
  QLabel* size_;
  QStatusBar* status_;
  bool hasPicture_ = false;
};

}  // namespace tessarine
