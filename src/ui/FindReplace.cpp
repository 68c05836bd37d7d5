#include "ui/FindReplace.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QVBoxLayout>

#include "core/Application.h"
#include "ui/DocumentForm.h"
#include "ui/SciEdit.h"

namespace tessarine {

namespace {
bool ActiveIsUtf8(Application& app) {
  auto* form = dynamic_cast<DocumentForm*>(app.ActiveDocument());
  return !form || form->Editor().isUtf8();
}
}  // namespace

QString DocumentTextToQt(Application& app, const std::string& bytes) {
  const auto n = static_cast<qsizetype>(bytes.size());
  return ActiveIsUtf8(app) ? QString::fromUtf8(bytes.data(), n)
                           : QString::fromLatin1(bytes.data(), n);
}

std::string QtTextToDocument(Application& app, const QString& text) {
  return (ActiveIsUtf8(app) ? text.toUtf8() : text.toLatin1()).toStdString();
}

FindReplaceDialog::FindReplaceDialog(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), in_(LoadFindReplace(app)) {
  setObjectName("FindReplaceDialog");
  setWindowTitle("Find/Replace");
  setModal(false);

  tabs = new QTabBar;
  tabs->setObjectName("findTabs");
  tabs->addTab("Find");
  tabs->addTab("Replace");

  auto* lblFind = new QLabel("Fi&nd:");
  txtFind = new QLineEdit;
  txtFind->setObjectName("txtFind");
  txtFind->setToolTip("This is the text to be found");
  lblFind->setBuddy(txtFind);
  lblReplace = new QLabel("Re&place:");
  txtReplace = new QLineEdit;
  txtReplace->setObjectName("txtReplace");
  txtReplace->setToolTip("This is the text that will replace the found text");
  lblReplace->setBuddy(txtReplace);

  auto* direction = new QGroupBox("Direction");
  optUp = new QRadioButton("&Up");
  optUp->setObjectName("optDirectionUp");
  optDown = new QRadioButton("&Down");
  optDown->setObjectName("optDirectionDown");
  auto* dirLayout = new QHBoxLayout(direction);
  dirLayout->addWidget(optUp);
  dirLayout->addWidget(optDown);
  chkCase = new QCheckBox("Match &Case");
  chkCase->setObjectName("chkCase");

  cmdFindButton = new QPushButton("&Find Next");
  cmdFindButton->setObjectName("cmdFind");
  cmdFindButton->setDefault(true);
  cmdReplaceButton = new QPushButton("&Replace");
  cmdReplaceButton->setObjectName("cmdReplace");
  cmdReplaceAllButton = new QPushButton("Replace &All");
  cmdReplaceAllButton->setObjectName("cmdReplaceAll");
  cmdCancelButton = new QPushButton("&Cancel");
  cmdCancelButton->setObjectName("cmdCancel");

  auto* fields = new QGridLayout;
  fields->addWidget(lblFind, 0, 0);
  fields->addWidget(txtFind, 0, 1);
  fields->addWidget(lblReplace, 1, 0);
  fields->addWidget(txtReplace, 1, 1);
  fields->addWidget(direction, 2, 0, 1, 2);
  fields->addWidget(chkCase, 3, 0, 1, 2);
  auto* buttons = new QVBoxLayout;
  for (QPushButton* b : {cmdFindButton, cmdReplaceButton, cmdReplaceAllButton, cmdCancelButton})
    buttons->addWidget(b);
  buttons->addStretch();
  auto* body = new QHBoxLayout;
  body->addLayout(fields, 1);
  body->addLayout(buttons);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(tabs);
  layout->addLayout(body);

  Push();
  connect(tabs, &QTabBar::currentChanged, this, [this](int i) { ShowTab(i); });
  connect(chkCase, &QCheckBox::toggled, this, [this](bool on) {
    in_.chkCase = on;
    app_.editing.find.FindMatchCase = on ? 1 : 0;
  });
  connect(optDown, &QRadioButton::toggled, this, [this](bool down) {
    in_.optDirectionDown = down;
    app_.editing.find.FindDirection = down ? 1 : 0;
  });
  connect(cmdFindButton, &QPushButton::clicked, this, [this] {
    Pull();
    cmdFind(app_, in_);
    BringForward();
  });
  connect(cmdReplaceButton, &QPushButton::clicked, this, [this] {
    Pull();
    cmdReplace(app_, in_);
    BringForward();
  });
  connect(cmdReplaceAllButton, &QPushButton::clicked, this, [this] {
    Pull();
    if (ReplaceAllAsOneStep(app_, in_)) hide();
  });
  connect(cmdCancelButton, &QPushButton::clicked, this, [this] { reject(); });
  // What the Find tab hides keeps its room, so the fields stay put between the tabs.
  for (QWidget* w : std::initializer_list<QWidget*>{lblReplace, txtReplace, cmdReplaceButton,
                                                    cmdReplaceAllButton}) {
    QSizePolicy p = w->sizePolicy();
    p.setRetainSizeWhenHidden(true);
    w->setSizePolicy(p);
  }
  ShowTab(0);
}

void FindReplaceDialog::ShowFor(bool replace) {
  Pull();
  PrepareFindDialog(app_, in_);
  Push();
  tabs->setCurrentIndex(replace ? 1 : 0);
  ShowTab(tabs->currentIndex());
  show();
  BringForward();
  txtFind->setFocus();
  txtFind->selectAll();
}

void FindReplaceDialog::reject() {
  Pull();
  cmdCancel(app_, in_);
  QDialog::reject();
}

void FindReplaceDialog::ShowTab(int index) {
  // The Find tab holds what searching needs; the Replace tab adds the replacing.
  const bool replace = index == 1;
  for (QWidget* w : std::initializer_list<QWidget*>{lblReplace, txtReplace, cmdReplaceButton,
                                                    cmdReplaceAllButton})
    w->setVisible(replace);
}

void FindReplaceDialog::Pull() {
  in_.txtFind = QtTextToDocument(app_, txtFind->text());
  in_.txtReplace = QtTextToDocument(app_, txtReplace->text());
  in_.optDirectionDown = optDown->isChecked();
  in_.chkCase = chkCase->isChecked();
}

void FindReplaceDialog::Push() {
  txtFind->setText(DocumentTextToQt(app_, in_.txtFind));
  txtReplace->setText(DocumentTextToQt(app_, in_.txtReplace));
  (in_.optDirectionDown ? optDown : optUp)->setChecked(true);
  chkCase->setChecked(in_.chkCase);
}

void FindReplaceDialog::BringForward() {
  raise();
  activateWindow();
}

}  // namespace tessarine
