#include "ui/panels/PictureViewerDialog.h"

#include <QEvent>
#include <QFileInfo>
#include <QImageReader>
#include <QLabel>
#include <QPixmap>
#include <QScrollArea>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QVBoxLayout>

#include "core/Application.h"
#include "panels/StoredGeometry.h"

namespace tessarine {

PictureViewerDialog::PictureViewerDialog(Application& app, const QString& path, QWidget* parent)
    : QDialog(parent), app_(app), picture_(new QLabel), size_(new QLabel), status_(new QStatusBar) {
  setObjectName("PictureViewer");
  setWindowTitle(QFileInfo(path).fileName());
  picture_->setObjectName("picture");
  size_->setObjectName("pictureSize");
  status_->setObjectName("statusLine");
  status_->setSizeGripEnabled(false);

  QImageReader reader(path);
  const QImage image = reader.read();
  hasPicture_ = !image.isNull();
  const int width = hasPicture_ ? image.width() : 0;
  const int height = hasPicture_ ? image.height() : 0;
  if (hasPicture_) {
    picture_->setPixmap(QPixmap::fromImage(image));
  } else {
    picture_->setText("This file cannot be shown as a picture:\n" + path);
  }
  picture_->setAlignment(Qt::AlignCenter);
  size_->setText(QString("Width: %1 pixels         Height: %2 pixels").arg(width).arg(height));
  picture_->setStatusTip(QString("Width=%1 pixels    Height=%2 pixels").arg(width).arg(height));

  auto* scroll = new QScrollArea;
  scroll->setWidget(picture_);
  scroll->setWidgetResizable(true);
  scroll->setAlignment(Qt::AlignCenter);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(scroll, 1);
  layout->addWidget(size_);
  layout->addWidget(status_);

  const StoredGeometry g = ReadStoredGeometry(app_.store, kPictureViewerGeometry);
  if (g.sized) resize(g.width, g.height);
  // Nothing stored: the window stands where the desktop puts it.
  if (g.left > 0 || g.top > 0) move(g.left, g.top);
}

bool PictureViewerDialog::event(QEvent* event) {
  // The mouse over the picture puts its size into the status line.
  if (event->type() == QEvent::StatusTip) {
    status_->showMessage(static_cast<QStatusTipEvent*>(event)->tip());
    return true;
  }
  return QDialog::event(event);
}

void PictureViewerDialog::done(int result) {
  StoredGeometry g;
  g.left = pos().x();
  g.top = pos().y();
  g.width = width();
  g.height = height();
  WriteStoredGeometry(app_.store, kPictureViewerGeometry, g, isMinimized());
  QDialog::done(result);
}

}  // namespace tessarine
