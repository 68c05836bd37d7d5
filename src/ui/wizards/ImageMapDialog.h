#pragma once
// The Image Map Wizard: choose a picture and a map name, then click circles, rectangles
// and polygons on the picture shown at its real size; each shape asks for its link.

#include <QImage>
#include <QWidget>
#include <functional>
#include <string>

#include "ui/wizards/WizardDialog.h"
#include "wizards/ImageMap.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QScrollArea;
class QStackedWidget;

namespace tessarine::ui {

// The picture at its real size, the finished areas, the shape in progress and a rubber
// band from its last point to the mouse. Widget coordinates are picture pixels.
class MapCanvas : public QWidget {
 public:
  explicit MapCanvas(const ImageMap& map);
  void SetPicture(const QImage& picture);
  std::function<void(MapPoint)> clicked;

 protected:
  void paintEvent(QPaintEvent*) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent*) override;

 private:
  const ImageMap& map_;
  QImage picture_;
  QPoint mouse_;
  bool mouseInside_ = false;
};

class ImageMapDialog : public WizardDialog {
 public:
  ImageMapDialog(Application& app, QWidget* parent);

  const ImageMap& Map() const { return map_; }
  MapCanvas* Canvas() const { return canvas_; }
  // Next on the first page: checks, loads the picture and turns to the second page.
  bool Next();

 private:
  // Shows a problem with the picture; false when it can't be used.
  bool LoadPicture();
  void ChooseShape(MapShape shape);
  void ClickAt(MapPoint at);
  void RefreshAreas();

  ImageMap map_;
  QImage picture_;
  QStackedWidget* steps_;
  QLineEdit* imageFile_;
  QLineEdit* mapName_;
  QLabel* preview_;
  QLabel* prompt_;
  QPushButton* shapeButtons_[3];
  MapCanvas* canvas_;
  QScrollArea* scroll_;
  QListWidget* areaList_;
  // The last file chosen by browsing, under the link the field shows for it.
  std::string browsedLink_, browsedPath_;
};

// The link of one shape: its URL and the frame it opens in.
class MapAreaLinkDialog : public WizardDialog {
 public:
  MapAreaLinkDialog(Application& app, QWidget* parent, ImageMap& map);

 private:
  void done(int result) override;
  ImageMap& map_;
};

}  // namespace tessarine::ui
