#pragma once
// The do-it-yourself frame wizard: four boundaries make a grid of up to three rows and
// three columns, each cell gets a FRAME line, and the whole FRAMESET block is composed at
// the last cell. Frame markup is upper case whatever the tag case.

#include <array>
#include <cstdint>
#include <ctime>
#include <string>

#include "conventions/WizardCheck.h"

namespace tessarine {

class Application;

// The layout page: each boundary is a percentage of the page, 0 to 100.
struct FrameLayout {
  int columnBoundary1 = 0;
  int columnBoundary2 = 0;
  int rowBoundary1 = 0;
  int rowBoundary2 = 0;
  bool frameBorder = false;
  std::string frameSpacing;  // pixels between frames
};

// The page entered once per cell. The scrolling, resize and margins keep their values
// from cell to cell in the dialog; the URL and the name are cleared.
struct FrameCellProperties {
  std::string url;
  std::string name;
  std::string scrolling;  // "Auto", "No", "Yes" or empty
  bool resizeable = true;
  std::string marginWidth;
  std::string marginHeight;
};

extern const char* const kFrameScrollingChoices[3];
extern const char* const kNoFramesMessage;

// "<FRAME" and the cell's attributes.
std::string FrameCellText(const FrameCellProperties& cell);

class FrameWizard {
 public:
  // "Next" on the layout page: works out the sizes and the number of cells. Equal
  // non-zero boundaries leave the sizes of the previous press, as the wizard always did.
  CheckResult Next(const FrameLayout& layout);

  // "Enter Frame Cell Properties": true when that was the last cell, and Composed() is
  // ready. `layout` gives the border and spacing read at this press.
  bool EnterCell(const FrameCellProperties& cell, const FrameLayout& layout);

  int Rows() const;
  int Columns() const;
  int FrameCount() const { return frameCount_; }
  int FrameCell() const { return frameCell_; }  // the cell being entered, from 1
  std::string CellCaption() const { return "Frame " + std::to_string(frameCell_); }
  std::int16_t RowSize1() const { return rowSize1_; }
  std::int16_t RowSize2() const { return rowSize2_; }
  std::int16_t ColSize1() const { return colSize1_; }
  std::int16_t ColSize2() const { return colSize2_; }

  // The FRAMESET block from the cells entered so far.
  std::string Compose(const FrameLayout& layout) const;
  const std::string& Composed() const { return composed_; }

 private:
  std::int16_t rowSize1_ = 0, rowSize2_ = 0, colSize1_ = 0, colSize2_ = 0;
  int frameCount_ = 0;
  int frameCell_ = 1;
  std::array<std::string, 10> frameText_;  // indexed from 1
  std::string composed_;
};

// The last cell's hand-over: the block replaces the selection of the active document.
void FrameWizard_Insert(Application& app, const std::string& text);

// The page the Frames button opens first: the frameset document type, a head with the
// title and the "Created on" comment, and no body. The caret goes where the frameset
// belongs, `offsetFromEnd` characters before the end.
struct FramesetPage {
  std::string text;
  long offsetFromEnd = 0;
};
FramesetPage FramesetPageText(bool tagCaseUpper, const std::string& title, const std::tm& now);
// Opens a new window holding that page, the caret in place; false when none could be made.
bool NewFramesetDocument(Application& app);

}  // namespace tessarine
