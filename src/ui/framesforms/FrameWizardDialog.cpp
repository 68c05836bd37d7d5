#include "ui/framesforms/FrameWizardDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "conventions/FavoriteUrls.h"
#include "core/TextServices.h"
#include "framesforms/BrowseRelative.h"
#include "framesforms/FrameWizard.h"
#include "ui/framesforms/FramePictures.h"

namespace tessarine::ui {

namespace {
QScrollBar* Boundary(Qt::Orientation o, const char* name) {
  auto* s = new QScrollBar(o);
  s->setObjectName(name);
  s->setRange(0, 100);
  s->setPageStep(10);
  return s;
}
}  // namespace

FrameWizardDialog::FrameWizardDialog(Application& app, QWidget* parent)
    : FrameFormDialog(app, "FrameWizardDialog", "Frame Wizard", parent),
      wizard_(std::make_unique<FrameWizard>()) {
  auto* layout = new QVBoxLayout(this);
  pages_ = new QStackedWidget;
  layout->addWidget(pages_);

  // The layout page.
  auto* layoutPage = new QWidget;
  layoutPage->setObjectName("layoutPage");
  auto* lp = new QVBoxLayout(layoutPage);
  auto* intro =
      new QLabel("Move the scrollbars to place the frame boundaries, then click 'Next >'.");
  intro->setWordWrap(true);
  lp->addWidget(intro);
  auto* grid = new QGridLayout;
  picture_ = new FrameBoundaryPicture;
  picture_->setObjectName("boundaryPicture");
  columnBoundary1_ = Boundary(Qt::Horizontal, "columnBoundary1");
  columnBoundary2_ = Boundary(Qt::Horizontal, "columnBoundary2");
  rowBoundary1_ = Boundary(Qt::Vertical, "rowBoundary1");
  rowBoundary2_ = Boundary(Qt::Vertical, "rowBoundary2");
  grid->addWidget(picture_, 0, 0);
  grid->addWidget(rowBoundary1_, 0, 1);
  grid->addWidget(rowBoundary2_, 0, 2);
  grid->addWidget(columnBoundary1_, 1, 0);
  grid->addWidget(columnBoundary2_, 2, 0);
  lp->addLayout(grid);
  auto* props = new QFormLayout;
  frameBorder_ = new QCheckBox("Frame Border");
  frameBorder_->setObjectName("frameBorder");
  props->addRow("", frameBorder_);
  frameSpacing_ = NewLine("frameSpacing");
  props->addRow("Space between Frames (pixels):", frameSpacing_);
  lp->addLayout(props);
  auto* layoutButtons = new QHBoxLayout;
  layoutButtons->addStretch();
  QPushButton* next = NewButton("&Next >", "nextButton");
  next->setDefault(true);
  QPushButton* cancel1 = NewButton("Cancel", "cmdCancel");
  layoutButtons->addWidget(next);
  layoutButtons->addWidget(cancel1);
  lp->addLayout(layoutButtons);
  pages_->addWidget(layoutPage);

  // The page of one cell.
  auto* cellPage = new QWidget;
  cellPage->setObjectName("cellPage");
  auto* cp = new QVBoxLayout(cellPage);
  auto* top = new QHBoxLayout;
  cellCaption_ = new QLabel("Frame 1");
  cellCaption_->setObjectName("cellCaption");
  QFont bold = cellCaption_->font();
  bold.setBold(true);
  cellCaption_->setFont(bold);
  cellPicture_ = new FrameBoundaryPicture;
  cellPicture_->setObjectName("cellPicture");
  cellPicture_->setFixedSize(96, 72);
  top->addWidget(cellCaption_);
  top->addStretch();
  top->addWidget(cellPicture_);
  cp->addLayout(top);
  auto* form = new QFormLayout;
  url_ = NewUrlCombo("frameUrl");
  form->addRow("URL of the page in this frame:", url_);
  auto* browse = new QHBoxLayout;
  QPushButton* browsePage = NewButton("Browse for Web page...", "browsePageButton");
  QPushButton* browseFavorites =
      NewButton("Browse Internet Explorer Favorites...", "browseFavoritesButton");
  browse->addWidget(browsePage);
  browse->addWidget(browseFavorites);
  form->addRow("", browse);
  name_ = NewLine("frameName");
  form->addRow("Type a name for this frame cell:", name_);
  scrolling_ = NewChoice("scrolling", kFrameScrollingChoices, 3);
  form->addRow("Scrollbars:", scrolling_);
  resizeable_ = new QCheckBox("Resizeable");
  resizeable_->setObjectName("resizeable");
  resizeable_->setChecked(true);
  form->addRow("", resizeable_);
  marginWidth_ = NewLine("marginWidth");
  form->addRow("Margin Width:", marginWidth_);
  marginHeight_ = NewLine("marginHeight");
  form->addRow("Margin Height:", marginHeight_);
  cp->addLayout(form);
  auto* cellButtons = new QHBoxLayout;
  cellButtons->addStretch();
  QPushButton* enter = NewButton("Enter Frame Cell Properties", "enterCellButton");
  QPushButton* cancel2 = NewButton("Cancel", "cmdCancel2");
  cellButtons->addWidget(enter);
  cellButtons->addWidget(cancel2);
  cp->addLayout(cellButtons);
  pages_->addWidget(cellPage);

  for (QScrollBar* s : {columnBoundary1_, columnBoundary2_, rowBoundary1_, rowBoundary2_})
    connect(s, &QScrollBar::valueChanged, this, [this] {
      picture_->SetBoundaries(columnBoundary1_->value(), columnBoundary2_->value(),
                              rowBoundary1_->value(), rowBoundary2_->value());
    });
  connect(next, &QPushButton::clicked, this, [this] { Next(); });
  connect(enter, &QPushButton::clicked, this, [this] { EnterCell(); });
  connect(cancel1, &QPushButton::clicked, this, &QDialog::reject);
  connect(cancel2, &QPushButton::clicked, this, &QDialog::reject);
  connect(browsePage, &QPushButton::clicked, this, [this] {
    const std::string path = BrowseForRelativeFile(app_, "");
    if (!path.empty()) url_->setEditText(Q(path));
  });
  connect(browseFavorites, &QPushButton::clicked, this, [this] {
    const std::string url = BrowseFavorites(app_);
    if (!url.empty()) url_->setEditText(Q(url));
  });
}

FrameWizardDialog::~FrameWizardDialog() = default;

FrameLayout FrameWizardDialog::Layout() const {
  FrameLayout l;
  l.columnBoundary1 = columnBoundary1_->value();
  l.columnBoundary2 = columnBoundary2_->value();
  l.rowBoundary1 = rowBoundary1_->value();
  l.rowBoundary2 = rowBoundary2_->value();
  l.frameBorder = frameBorder_->isChecked();
  l.frameSpacing = S(frameSpacing_->text());
  return l;
}

void FrameWizardDialog::Next() {
  EmptyUndoBuffer(app_);
  if (!Passed(wizard_->Next(Layout()))) return;
  pages_->setCurrentIndex(1);
  ShowCell();
}

void FrameWizardDialog::ShowCell() {
  const int cell = wizard_->FrameCell() - 1;
  cellCaption_->setText(Q(wizard_->CellCaption()));
  std::vector<int> rows, columns;
  for (int size : {wizard_->RowSize1(), wizard_->RowSize2()})
    if (static_cast<int>(rows.size()) + 1 < wizard_->Rows()) rows.push_back(size);
  for (int size : {wizard_->ColSize1(), wizard_->ColSize2()})
    if (static_cast<int>(columns.size()) + 1 < wizard_->Columns()) columns.push_back(size);
  cellPicture_->SetCurrentCell(cell / wizard_->Columns(), cell % wizard_->Columns(), rows, columns);
  url_->setFocus();
}

void FrameWizardDialog::EnterCell() {
  FrameCellProperties cell;
  cell.url = S(url_->currentText());
  cell.name = S(name_->text());
  cell.scrolling = S(scrolling_->currentText());
  cell.resizeable = resizeable_->isChecked();
  cell.marginWidth = S(marginWidth_->text());
  cell.marginHeight = S(marginHeight_->text());
  if (wizard_->EnterCell(cell, Layout())) {
    FrameWizard_Insert(app_, wizard_->Composed());
    accept();
    return;
  }
  url_->setCurrentIndex(-1);
  url_->setEditText("");
  name_->clear();
  ShowCell();
}

}  // namespace tessarine::ui
