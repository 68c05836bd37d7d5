#include "ui/settings/DailyTipDialog.h"

#include <QCheckBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/Application.h"
#include "settings/DailyTip.h"
#include "ui/MainWindow.h"

namespace tessarine {

DailyTipDialog::DailyTipDialog(Application& app, QWidget* parent)
    : QDialog(parent), tip_(std::make_unique<DailyTip>(app.store)) {
  setObjectName("DailyTipDialog");
  setWindowTitle("Tip of the Day");
  auto* layout = new QVBoxLayout(this);

  auto* panel = new QFrame;
  panel->setFrameShape(QFrame::StyledPanel);
  panel->setBackgroundRole(QPalette::Base);
  panel->setAutoFillBackground(true);
  auto* inner = new QVBoxLayout(panel);
  auto* heading = new QLabel("Did you know...");
  QFont bold = heading->font();
  bold.setBold(true);
  bold.setPointSizeF(bold.pointSizeF() * 1.2);
  heading->setFont(bold);
  inner->addWidget(heading);
  tipText_ = new QLabel;
  tipText_->setObjectName("tipText");
  tipText_->setWordWrap(true);
  tipText_->setTextFormat(Qt::PlainText);
  tipText_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  tipText_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  // Room for the longest tip, so Next never changes the dialog's size.
  tipText_->setMinimumSize(380, 110);
  inner->addWidget(tipText_, 1);
  layout->addWidget(panel, 1);

  auto* foot = new QHBoxLayout;
  showAtStartup_ = new QCheckBox("&Show tips at startup");
  showAtStartup_->setObjectName("showAtStartup");
  showAtStartup_->setChecked(tip_->ShowAtStartup());
  connect(showAtStartup_, &QCheckBox::toggled, this,
          [this](bool on) { tip_->SetShowAtStartup(on); });
  foot->addWidget(showAtStartup_);
  foot->addStretch(1);
  auto* next = new QPushButton("&Next");
  next->setObjectName("nextButton");
  connect(next, &QPushButton::clicked, this, [this] {
    tip_->Next();
    ShowTip();
  });
  auto* close = new QPushButton("&Close");
  close->setObjectName("closeButton");
  close->setDefault(true);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
  foot->addWidget(next);
  foot->addWidget(close);
  layout->addLayout(foot);
  ShowTip();
}

DailyTipDialog::~DailyTipDialog() = default;

void DailyTipDialog::ShowTip() {
  tipText_->setText(QString::fromStdString(tip_->Text()));
}

void ShowDailyTip(MainWindow& frame) {
  Application* app = frame.App();
  if (!app) return;
  for (auto* open : frame.findChildren<DailyTipDialog*>(Qt::FindDirectChildrenOnly)) {
    if (!open->isVisible()) continue;  // closed, waiting to be deleted
    open->raise();
    open->activateWindow();
    return;
  }
  auto* dialog = new DailyTipDialog(*app, &frame);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->show();
}

void ShowDailyTipAtStart(MainWindow& frame) {
  if (frame.App() && TipOfTheDayAtStartup(frame.App()->store)) ShowDailyTip(frame);
}

}  // namespace tessarine
