#include "ui/framesforms/FramePictures.h"

#include <QPainter>
#include <QPixmap>
#include <algorithm>

namespace tessarine::ui {

namespace {

const char* const kPlaceNames[4] = {"Top", "Main", "Bottom", "Side"};

void DrawLayout(QPainter& p, const QRectF& page, int layout, bool names) {
  p.fillRect(page, Qt::white);
  for (const FrameRect& r : CustomFramePreview(layout)) {
    const QRectF cell(page.left() + r.left * page.width() / 100.0,
                      page.top() + r.top * page.height() / 100.0, r.width * page.width() / 100.0,
                      r.height * page.height() / 100.0);
    p.fillRect(cell, r.place == FramePlace::Main ? QColor(255, 255, 255) : QColor(220, 232, 250));
    p.setPen(QPen(Qt::black, 1));
    p.drawRect(cell);
    if (names) p.drawText(cell, Qt::AlignCenter, kPlaceNames[static_cast<int>(r.place)]);
  }
}

}  // namespace

FrameBoundaryPicture::FrameBoundaryPicture(QWidget* parent) : QWidget(parent) {
  setMinimumSize(160, 120);
}

void FrameBoundaryPicture::SetBoundaries(int column1, int column2, int row1, int row2) {
  column1_ = column1;
  column2_ = column2;
  row1_ = row1;
  row2_ = row2;
  update();
}

void FrameBoundaryPicture::SetCurrentCell(int row, int column, std::vector<int> rowSizes,
                                          std::vector<int> columnSizes) {
  cellRow_ = row;
  cellColumn_ = column;
  rowSizes_ = std::move(rowSizes);
  columnSizes_ = std::move(columnSizes);
  update();
}

namespace {
// The edges of a grid direction, in percent: 0, each size added, then 100.
std::vector<double> Edges(const std::vector<int>& sizes) {
  std::vector<double> edges = {0};
  for (int s : sizes) edges.push_back(std::min(100.0, edges.back() + s));
  edges.push_back(100);
  return edges;
}
}  // namespace

void FrameBoundaryPicture::paintEvent(QPaintEvent*) {
  QPainter p(this);
  const QRectF page = QRectF(rect()).adjusted(0.5, 0.5, -1.5, -1.5);
  p.fillRect(page, Qt::white);
  if (cellRow_ >= 0) {
    const std::vector<double> xs = Edges(columnSizes_), ys = Edges(rowSizes_);
    auto x = [&](double percent) { return page.left() + percent * page.width() / 100.0; };
    auto y = [&](double percent) { return page.top() + percent * page.height() / 100.0; };
    const auto r = static_cast<std::size_t>(cellRow_), c = static_cast<std::size_t>(cellColumn_);
    if (r + 1 < ys.size() && c + 1 < xs.size())
      p.fillRect(QRectF(QPointF(x(xs[c]), y(ys[r])), QPointF(x(xs[c + 1]), y(ys[r + 1]))),
                 QColor(220, 232, 250));
    p.setPen(QPen(Qt::black, 1));
    for (std::size_t i = 1; i + 1 < xs.size(); ++i)
      p.drawLine(QPointF(x(xs[i]), page.top()), QPointF(x(xs[i]), page.bottom()));
    for (std::size_t i = 1; i + 1 < ys.size(); ++i)
      p.drawLine(QPointF(page.left(), y(ys[i])), QPointF(page.right(), y(ys[i])));
  } else {
    // A boundary at 0 or 100 lies on the edge of the page and draws nothing new.
    p.setPen(QPen(Qt::blue, 2));
    for (int c : {column1_, column2_}) {
      const double x = page.left() + c * page.width() / 100.0;
      if (c > 0 && c < 100) p.drawLine(QPointF(x, page.top()), QPointF(x, page.bottom()));
    }
    for (int r : {row1_, row2_}) {
      const double y = page.top() + r * page.height() / 100.0;
      if (r > 0 && r < 100) p.drawLine(QPointF(page.left(), y), QPointF(page.right(), y));
    }
  }
  p.setPen(QPen(Qt::black, 1));
  p.drawRect(page);
}

FrameLayoutPicture::FrameLayoutPicture(QWidget* parent) : QWidget(parent) {
  setMinimumSize(160, 120);
}

void FrameLayoutPicture::SetLayout(int layout) {
  layout_ = layout;
  update();
}

void FrameLayoutPicture::paintEvent(QPaintEvent*) {
  QPainter p(this);
  DrawLayout(p, QRectF(rect()).adjusted(0.5, 0.5, -1.5, -1.5), layout_, true);
}

QIcon FrameLayoutIcon(int layout, QSize size) {
  QPixmap pixmap(size);
  pixmap.fill(Qt::transparent);
  QPainter p(&pixmap);
  DrawLayout(p, QRectF(0.5, 0.5, size.width() - 1.5, size.height() - 1.5), layout, false);
  return QIcon(pixmap);
}

}  // namespace tessarine::ui
