#include "ui/wizards/ImageMapDialog.h"

#include <QComboBox>
#include <QFont>
#include <QFormLayout>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <cmath>

#include "conventions/FavoriteUrls.h"
#include "core/Application.h"
#include "platform/DocumentWindow.h"
#include "platform/ImageHeader.h"
#include "platform/MessageBoxes.h"
#include "ui/wizards/LinkDialogParts.h"
#include "wizards/LinkBrowse.h"

namespace tessarine::ui {

namespace {

void DrawShape(QPainter& p, MapShape shape, const std::vector<QPoint>& points, int radius) {
  if (points.empty()) return;
  switch (shape) {
    case MapShape::Circle:
      p.drawEllipse(points[0], radius, radius);
      break;
    case MapShape::Rectangle:
      if (points.size() >= 2) p.drawRect(QRect(points[0], points[1]).normalized());
      break;
    case MapShape::Polygon:
      p.drawPolyline(points.data(), static_cast<int>(points.size()));
      break;
    case MapShape::None:
      break;
  }
}

QPixmap ShapeIcon(MapShape shape) {
  QPixmap icon(32, 32);
  icon.fill(Qt::white);
  QPainter p(&icon);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(QPen(Qt::darkBlue, 2));
  if (shape == MapShape::Circle) p.drawEllipse(QPoint(16, 16), 11, 11);
  if (shape == MapShape::Rectangle) p.drawRect(5, 8, 22, 16);
  if (shape == MapShape::Polygon) {
    const QPoint pts[] = {{4, 26}, {12, 5}, {28, 12}, {22, 27}, {4, 26}};
    p.drawPolyline(pts, 5);
  }
  return icon;
}

}  // namespace

MapCanvas::MapCanvas(const ImageMap& map) : map_(map) {
  setObjectName("mapCanvas");
  setMouseTracking(true);
  setCursor(Qt::CrossCursor);
}

void MapCanvas::SetPicture(const QImage& picture) {
  picture_ = picture;
  setFixedSize(picture.size());
  update();
}

void MapCanvas::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.drawImage(0, 0, picture_);
  p.setRenderHint(QPainter::Antialiasing);
  // Drawn twice, dark over light, so that the lines show on any picture.
  for (const QColor& colour : {QColor(Qt::white), QColor(Qt::black)}) {
    p.setPen(QPen(colour, colour == Qt::white ? 3 : 1));
    for (const std::string& line : map_.areas) {
      const MapArea area = ParseAreaLine(line);
      std::vector<QPoint> points;
      int radius = 0;
      for (std::size_t i = 0; i + 1 < area.numbers.size(); i += 2)
        points.emplace_back(area.numbers[i], area.numbers[i + 1]);
      if (area.shape == MapShape::Circle && area.numbers.size() >= 3) radius = area.numbers[2];
      DrawShape(p, area.shape, points, radius);
    }
  }
  // The shape in progress, and the rubber band to the mouse.
  p.setPen(QPen(Qt::red, 1));
  std::vector<QPoint> points;
  for (const MapPoint& m : map_.points()) points.emplace_back(m.x, m.y);
  if (map_.shape() == MapShape::Polygon) DrawShape(p, MapShape::Polygon, points, 0);
  if (points.empty() || !mouseInside_) return;
  p.setPen(QPen(Qt::red, 1, Qt::DashLine));
  const QPoint from = points.back();
  switch (map_.shape()) {
    case MapShape::Circle: {
      const double dx = mouse_.x() - from.x(), dy = mouse_.y() - from.y();
      const int r = static_cast<int>(std::lround(std::sqrt(dx * dx + dy * dy)));
      p.drawEllipse(from, r, r);
      p.drawLine(from, mouse_);
      break;
    }
    case MapShape::Rectangle:
      p.drawRect(QRect(from, mouse_).normalized());
      break;
    case MapShape::Polygon:
      p.drawLine(from, mouse_);
      break;
    case MapShape::None:
      break;
  }
}

void MapCanvas::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const QPoint at = event->position().toPoint();
  if (clicked) clicked({at.x(), at.y()});
  update();
}

void MapCanvas::mouseMoveEvent(QMouseEvent* event) {
  mouse_ = event->position().toPoint();
  mouseInside_ = true;
  if (!map_.points().empty()) update();
}

void MapCanvas::leaveEvent(QEvent*) {
  mouseInside_ = false;
  update();
}

ImageMapDialog::ImageMapDialog(Application& app, QWidget* parent)
    : WizardDialog(app, "ImageMapDialog", "Image Map Wizard", parent) {
  auto* layout = new QVBoxLayout(this);
  steps_ = new QStackedWidget;
  layout->addWidget(steps_);

  // First page: the picture and the map's name.
  auto* first = new QWidget;
  auto* v = new QVBoxLayout(first);
  auto* heading = new QLabel("Create an Image Map: Select image and map name");
  QFont bold = heading->font();
  bold.setBold(true);
  heading->setFont(bold);
  v->addWidget(heading);
  auto* intro = new QLabel(
      "An image map allows you to define different regions on a single image.  The regions "
      "can be linked to different Web pages.  To begin, select an image and type a name for "
      "your image map below.");
  intro->setWordWrap(true);
  v->addWidget(intro);
  v->addWidget(new QLabel("Select image:"));
  imageFile_ = NamedEdit("imageFile");
  auto* browse = ImageNameRow(v, imageFile_, "browseImage");
  v->addWidget(new QLabel("Image map name:"));
  mapName_ = NamedEdit("mapName");
  v->addWidget(mapName_);
  preview_ = new QLabel;
  preview_->setObjectName("preview");
  preview_->setMinimumSize(200, 120);
  preview_->setAlignment(Qt::AlignCenter);
  preview_->setFrameShape(QFrame::StyledPanel);
  v->addWidget(preview_, 1);
  auto* foot = new QHBoxLayout;
  foot->addStretch();
  auto* next = NamedButton("nextButton", "Next >>");
  next->setDefault(true);
  auto* cancelFirst = NamedButton("cancelButton", "&Cancel");
  foot->addWidget(next);
  foot->addWidget(cancelFirst);
  v->addLayout(foot);
  steps_->addWidget(first);

  // Second page: shapes on the left, the picture, the finished areas below.
  auto* second = new QWidget;
  auto* grid = new QVBoxLayout(second);
  auto* top = new QHBoxLayout;
  auto* shapes = new QVBoxLayout;
  const std::pair<MapShape, const char*> kinds[] = {{MapShape::Circle, "Circle"},
                                                    {MapShape::Rectangle, "Rectangle"},
                                                    {MapShape::Polygon, "Polygon"}};
  int i = 0;
  for (const auto& [shape, caption] : kinds) {
    auto* b = NamedButton((QString(caption).toLower() + "Shape").toUtf8().constData(), caption);
    b->setObjectName(QString(caption).toLower() + "Shape");
    b->setCheckable(true);
    b->setIcon(ShapeIcon(shape));
    b->setIconSize(QSize(32, 32));
    shapes->addWidget(b);
    shapeButtons_[i++] = b;
    connect(b, &QPushButton::clicked, this, [this, shape = shape] { ChooseShape(shape); });
  }
  shapes->addStretch();
  top->addLayout(shapes);
  auto* right = new QVBoxLayout;
  prompt_ = new QLabel(Q(map_.prompt()));
  prompt_->setObjectName("prompt");
  right->addWidget(prompt_);
  canvas_ = new MapCanvas(map_);
  canvas_->clicked = [this](MapPoint at) { ClickAt(at); };
  scroll_ = new QScrollArea;
  scroll_->setObjectName("pictureScroll");
  scroll_->setWidget(canvas_);
  scroll_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  right->addWidget(scroll_, 1);
  top->addLayout(right, 1);
  grid->addLayout(top, 1);
  areaList_ = new QListWidget;
  areaList_->setObjectName("areaList");
  areaList_->setMaximumHeight(90);
  grid->addWidget(areaList_);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  auto* undo = NamedButton("undoButton", "&Undo");
  auto* done = NamedButton("doneButton", "&Done");
  auto* cancel = NamedButton("cancelMapButton", "&Cancel");
  buttons->addWidget(undo);
  buttons->addWidget(done);
  buttons->addWidget(cancel);
  grid->addLayout(buttons);
  steps_->addWidget(second);

  connect(browse, &QPushButton::clicked, this, [this] {
    const BrowsedFile chosen = BrowseForLink(app_);
    if (chosen.fullPath.empty()) return;
    imageFile_->setText(Q(chosen.link));
    browsedLink_ = chosen.link;
    browsedPath_ = chosen.fullPath;
    // The preview shows the chosen file; the wizard later loads it by its link.
    QImageReader reader(Q(chosen.fullPath));
    const ImageHeader header = ReadImageFileHeader(chosen.fullPath);
    if (header.ok() || header.format.empty()) {
      QSize size = reader.size();
      if (size.isValid() && size.width() <= kLargestImageSide &&
          size.height() <= kLargestImageSide) {
        reader.setScaledSize(size.scaled(preview_->size(), Qt::KeepAspectRatio));
        preview_->setPixmap(QPixmap::fromImage(reader.read()));
        return;
      }
    }
    preview_->setText(Q(ImageHeaderMessage(header, chosen.fullPath)));
  });
  connect(next, &QPushButton::clicked, this, [this] { Next(); });
  connect(cancelFirst, &QPushButton::clicked, this, &QDialog::reject);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(undo, &QPushButton::clicked, this, [this] {
    if (map_.Undo()) RefreshAreas();
  });
  connect(done, &QPushButton::clicked, this, [this] {
    ImageMap_Done(app_, map_, picture_.width(), picture_.height());
    accept();
  });
  AllowLongText(this);
  imageFile_->setFocus();
  setMinimumWidth(460);
}

bool ImageMapDialog::LoadPicture() {
  map_.imageFile = S(imageFile_->text());
  // The field holds a link from the document; a relative one is read beside it.
  std::string path = map_.imageFile;
  if (path == browsedLink_) {
    path = browsedPath_;
  } else if (!path.empty() && path[0] != '/') {
    DocumentWindow* doc = app_.ActiveDocument();
    const std::string caption = doc ? doc->Caption() : "";
    const std::size_t slash = caption.rfind('/');
    if (slash != std::string::npos) path = caption.substr(0, slash + 1) + path;
  }
  const ImageHeader header = ReadImageFileHeader(path);
  QString problem;
  if (!header.ok() && !header.format.empty()) {
    problem = Q(ImageHeaderMessage(header, path));
  } else {
    QImageReader reader(Q(path));
    const QSize size = reader.size();
    if (size.isValid() && (size.width() > kLargestImageSide || size.height() > kLargestImageSide))
      problem = Q(ImageHeaderMessage(
          ImageHeader{ImageHeader::Status::TooLarge, "", size.width(), size.height()}, path));
    else if (!reader.read(&picture_))
      problem =
          Q(header.format.empty() && header.status == ImageHeader::Status::Missing
                ? ImageHeaderMessage(header, path)
                : "The picture " + path + " can't be shown: " + S(reader.errorString()) + ".");
  }
  if (problem.isEmpty()) return true;
  app_.messages.Show(S(problem), MsgButtons::OK, MsgIcon::Exclamation, app_.title);
  return false;
}

bool ImageMapDialog::Next() {
  map_.imageFile = S(imageFile_->text());
  map_.mapName = S(mapName_->text());
  if (CheckResult failed = map_.ValidateFirstPage()) {
    app_.messages.Show(failed->message, MsgButtons::OK, MsgIcon::None, app_.title);
    FocusField(failed);
    return false;
  }
  if (!LoadPicture()) {
    imageFile_->setFocus();
    return false;
  }
  canvas_->SetPicture(picture_);
  steps_->setCurrentIndex(1);
  // Grow to the picture, with room for the shapes and the list, within the screen.
  QSize want = picture_.size() + QSize(160, 260);
  if (QScreen* screen = this->screen()) want = want.boundedTo(screen->availableSize());
  want = want.expandedTo(minimumSizeHint());
  resize(want);
  return true;
}

void ImageMapDialog::ChooseShape(MapShape shape) {
  map_.ChooseShape(shape);
  const MapShape order[] = {MapShape::Circle, MapShape::Rectangle, MapShape::Polygon};
  for (int i = 0; i < 3; ++i) shapeButtons_[i]->setChecked(order[i] == shape);
  prompt_->setText(Q(map_.prompt()));
  canvas_->update();
}

void ImageMapDialog::ClickAt(MapPoint at) {
  const MapClick result = map_.Click(at);
  prompt_->setText(Q(map_.prompt()));
  canvas_->update();
  switch (result) {
    case MapClick::NeedShape:
      app_.messages.Show(ImageMap::kChooseShapeFirst, MsgButtons::OK, MsgIcon::None, app_.title);
      break;
    case MapClick::LastVertex:
      app_.messages.Show(ImageMap::kClosePolygonNotice, MsgButtons::OK, MsgIcon::None, app_.title);
      break;
    case MapClick::AskLink: {
      MapAreaLinkDialog link(app_, this, map_);
      if (link.exec() != QDialog::Accepted) map_.ForgetShape();
      prompt_->setText(Q(map_.prompt()));
      RefreshAreas();
      break;
    }
    case MapClick::Continue:
      break;
  }
}

void ImageMapDialog::RefreshAreas() {
  areaList_->clear();
  for (const std::string& line : map_.areas) {
    // Listed without the line end each entry carries.
    areaList_->addItem(Q(line.substr(0, line.size() >= 2 ? line.size() - 2 : 0)));
  }
  canvas_->update();
}

MapAreaLinkDialog::MapAreaLinkDialog(Application& app, QWidget* parent, ImageMap& map)
    : WizardDialog(app, "MapAreaLinkDialog", "Link the hotspot", parent), map_(map) {
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(new QLabel("Link the hotspot to this URL:"));
  QComboBox* url = UrlCombo(app, "areaUrl");
  layout->addWidget(url);
  auto* row = new QHBoxLayout;
  auto* browse = NamedButton("browseFile", "Browse for local Web page...");
  auto* favorites = NamedButton("browseFavorites", "Browse Internet Explorer Favorites...");
  row->addWidget(browse);
  row->addWidget(favorites);
  layout->addLayout(row);
  layout->addWidget(new QLabel("If using Frames, type the name of the frame you wish to target:"));
  QComboBox* frame = NamedCombo("areaFrame", true);
  frame->addItems({"", "_blank", "_parent", "_self", "_top"});
  layout->addWidget(frame);
  connect(browse, &QPushButton::clicked, this, [this, url] {
    const std::string link = BrowseRelativeFile(app_);
    if (!link.empty()) url->setEditText(Q(link));
  });
  connect(favorites, &QPushButton::clicked, this,
          [this, url] { url->setEditText(Q(BrowseFavorites(app_))); });
  AddButtons(layout, "okButton", [this, url, frame] {
    const CheckResult failed =
        MapAreaLink_OK(app_, map_, S(url->currentText()), S(frame->currentText()));
    FocusField(failed);
    return !failed;
  });
  AllowLongText(this);
  url->setFocus();
}

void MapAreaLinkDialog::done(int result) {
  // The wizard stays open behind: neither the edit flag nor the focus changes here.
  QDialog::done(result);  // NOLINT(bugprone-parent-virtual-call)
}

}  // namespace tessarine::ui
