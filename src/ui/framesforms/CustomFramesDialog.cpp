#include "ui/framesforms/CustomFramesDialog.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "framesforms/BrowseRelative.h"
#include "framesforms/CustomFrames.h"
#include "framesforms/FrameWizard.h"
#include "ui/framesforms/FramePictures.h"

namespace tessarine::ui {

namespace {
QWidget* Row(const char* label, QWidget* field, QWidget* extra = nullptr) {
  auto* row = new QWidget;
  auto* h = new QHBoxLayout(row);
  h->setContentsMargins(0, 0, 0, 0);
  auto* l = new QLabel(label);
  l->setMinimumWidth(130);
  h->addWidget(l);
  h->addWidget(field, 1);
  if (extra) h->addWidget(extra);
  return row;
}
}  // namespace

CustomFramesDialog::CustomFramesDialog(Application& app, QWidget* parent)
    : FrameFormDialog(app, "CustomFramesDialog", "Custom-Made Frames", parent) {
  auto* layout = new QVBoxLayout(this);
  heading_ = new QLabel;
  heading_->setObjectName("lblHeading");
  QFont bold = heading_->font();
  bold.setBold(true);
  heading_->setFont(bold);
  layout->addWidget(heading_);
  stepText_ = new QLabel;
  stepText_->setObjectName("stepText");
  stepText_->setWordWrap(true);
  layout->addWidget(stepText_);

  auto* body = new QHBoxLayout;
  steps_ = new QStackedWidget;
  body->addWidget(steps_, 1);
  picture_ = new FrameLayoutPicture;
  picture_->setObjectName("layoutPicture");
  picture_->setFixedSize(200, 150);
  body->addWidget(picture_, 0, Qt::AlignTop);
  layout->addLayout(body);

  layouts_ = new QListWidget;
  layouts_->setObjectName("layoutList");
  layouts_->setIconSize(QSize(40, 30));
  for (int i = 0; i < kCustomFrameLayoutCount; ++i)
    layouts_->addItem(
        new QListWidgetItem(FrameLayoutIcon(i, QSize(40, 30)), kCustomFrameLayoutNames[i]));
  layouts_->setCurrentRow(0);
  steps_->addWidget(layouts_);

  auto* urlPage = new QWidget;
  auto* up = new QVBoxLayout(urlPage);
  auto* namePage = new QWidget;
  auto* np = new QVBoxLayout(namePage);
  for (int i = 0; i < 4; ++i) {
    const std::string urlName = "frameUrl" + std::to_string(i);
    urls_[i] = NewUrlCombo(urlName.c_str());
    urls_[i]->setMinimumWidth(200);
    const std::string browseName = "browseUrl" + std::to_string(i);
    QPushButton* browse = NewButton("Browse for Web page...", browseName.c_str());
    urlRows_[i] = Row(kFramePlaceUrlLabels[i], urls_[i], browse);
    up->addWidget(urlRows_[i]);
    connect(browse, &QPushButton::clicked, this, [this, i] {
      const std::string path = BrowseForRelativeFile(app_, "");
      if (!path.empty()) urls_[i]->setEditText(Q(path));
    });
    const std::string nameName = "frameName" + std::to_string(i);
    names_[i] = NewLine(nameName.c_str());
    nameRows_[i] = Row(kFramePlaceNameLabels[i], names_[i]);
    np->addWidget(nameRows_[i]);
  }
  up->addStretch();
  auto* note = new QLabel(kCustomFramesSizesNote);
  note->setObjectName("sizesNote");
  note->setWordWrap(true);
  np->addWidget(note);
  np->addStretch();
  steps_->addWidget(urlPage);
  steps_->addWidget(namePage);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  previous_ = NewButton("< &Previous", "previousButton");
  next_ = NewButton("&Next >", "nextButton");
  next_->setDefault(true);
  QPushButton* cancel = NewButton("Cancel", "cmdCancel");
  buttons->addWidget(previous_);
  buttons->addWidget(next_);
  buttons->addWidget(cancel);
  layout->addLayout(buttons);

  connect(layouts_, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0) picture_->SetLayout(row);
  });
  connect(layouts_, &QListWidget::itemDoubleClicked, this, [this] { Next(); });
  connect(previous_, &QPushButton::clicked, this, [this] { ShowStep(step_ - 1); });
  connect(next_, &QPushButton::clicked, this, [this] { Next(); });
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  resize(760, 360);
  ShowStep(0);
}

CustomFramesInputs CustomFramesDialog::Model() const {
  CustomFramesInputs in;
  in.layout = std::max(0, layouts_->currentRow());
  for (int i = 0; i < 4; ++i) {
    in.urls[i] = S(urls_[i]->currentText());
    in.names[i] = S(names_[i]->text());
  }
  return in;
}

void CustomFramesDialog::ShowStep(int step) {
  if (step < 0) return;
  step_ = step;
  steps_->setCurrentIndex(step);
  heading_->setText(step == 2 ? "Click the 'Done' button to finish!"
                              : QString("Step %1").arg(step + 1));
  stepText_->setText(kCustomFrameStepTexts[step]);
  previous_->setEnabled(step > 0);
  next_->setText(step == 0 ? "&Next >" : step == 1 ? "&Next" : "Done");
  // The fields of the frames that the layout does not use are hidden, entries kept.
  const std::vector<FramePlace> used = FramesUsedBy(Model().layout);
  for (int i = 0; i < 4; ++i) {
    const bool shown =
        std::find(used.begin(), used.end(), static_cast<FramePlace>(i)) != used.end();
    urlRows_[i]->setVisible(shown);
    nameRows_[i]->setVisible(shown);
  }
  if (step == 0) layouts_->setFocus();
  if (step > 0) {
    for (int i = 0; i < 4; ++i)
      if (urlRows_[i]->isVisibleTo(this)) {
        (step == 1 ? static_cast<QWidget*>(urls_[i]) : names_[i])->setFocus();
        break;
      }
  }
}

void CustomFramesDialog::Next() {
  if (step_ == 1 && !Passed(ValidateCustomFrameUrls(Model()))) return;
  if (step_ < 2) {
    ShowStep(step_ + 1);
    return;
  }
  FrameWizard_Insert(app_, BuildCustomFrames(Model()));
  accept();
}

}  // namespace tessarine::ui
