#pragma once
// The small pictures of the frame dialogs: the boundaries as the scrollbars set them, and
// the preset layouts of custom frames.

#include <QIcon>
#include <QWidget>
#include <vector>

#include "framesforms/CustomFrames.h"

namespace tessarine::ui {

// A page with the two column and two row boundaries drawn across it; the cell being
// entered, when there is one, is shaded.
class FrameBoundaryPicture : public QWidget {
 public:
  explicit FrameBoundaryPicture(QWidget* parent = nullptr);
  void SetBoundaries(int column1, int column2, int row1, int row2);
  // The grid by the sizes of its rows and columns in percent, the last taking the rest;
  // row and column of the shaded cell from 0.
  void SetCurrentCell(int row, int column, std::vector<int> rowSizes, std::vector<int> columnSizes);
  QSize sizeHint() const override { return {240, 180}; }

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  int column1_ = 0, column2_ = 0, row1_ = 0, row2_ = 0;
  int cellRow_ = -1, cellColumn_ = -1;
  std::vector<int> rowSizes_, columnSizes_;
};

// One preset layout, its frames named.
class FrameLayoutPicture : public QWidget {
 public:
  explicit FrameLayoutPicture(QWidget* parent = nullptr);
  void SetLayout(int layout);
  int Layout() const { return layout_; }
  QSize sizeHint() const override { return {200, 150}; }

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  int layout_ = 0;
};

// A layout drawn as a list icon.
QIcon FrameLayoutIcon(int layout, QSize size);

}  // namespace tessarine::ui
