#include "ui/framesforms/AppletDialog.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "conventions/TagConventions.h"
#include "framesforms/Applet.h"
#include "framesforms/AppletParameter.h"

namespace tessarine::ui {

namespace {
// A line of text with the applet as a box placed by the chosen alignment.
class AppletAlignPicture : public QWidget {
 public:
  AppletAlignPicture() { setFixedSize(150, 70); }
  void SetAlign(const QString& align) {
    align_ = align;
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    p.fillRect(rect(), Qt::white);
    p.setPen(Qt::gray);
    p.drawRect(rect().adjusted(0, 0, -1, -1));
    const int box = 30, baseline = 45;
    const QFontMetrics m(font());
    QRect applet(4, baseline - box, box, box);
    int textX = applet.right() + 4;
    if (align_ == "Top" || align_ == "Texttop") applet.moveTop(baseline - m.ascent());
    if (align_ == "Middle" || align_ == "Absmiddle")
      applet.moveTop(baseline - m.ascent() / 2 - box / 2);
    if (align_ == "Absbottom") applet.moveTop(baseline + m.descent() - box);
    if (align_ == "Left" || align_ == "Right") {
      applet.moveTop(6);
      if (align_ == "Right") applet.moveLeft(width() - box - 4);
      textX = align_ == "Left" ? applet.right() + 4 : 4;
      p.setPen(Qt::black);
      p.drawText(textX, 6 + m.ascent(), "Text wraps");
      p.drawText(textX, 6 + 2 * m.height(), "beside it.");
    } else {
      p.setPen(Qt::black);
      p.drawText(textX, baseline, "Text line");
    }
    p.fillRect(applet, QColor(220, 232, 250));
    p.drawRect(applet);
  }

 private:
  QString align_;
};
}  // namespace

AppletParameterDialog::AppletParameterDialog(Application& app, QWidget* parent,
                                             const std::string& line)
    : FrameFormDialog(app, "AppletParameterDialog", "Applet Parameter", parent) {
  auto* layout = new QVBoxLayout(this);
  auto* form = new QFormLayout;
  name_ = NewLine("parameterName");
  value_ = NewLine("parameterValue");
  form->addRow("Parameter name:", name_);
  form->addRow("Parameter value:", value_);
  layout->addLayout(form);
  AppletParameter p;
  if (ParseAppletParameter(line, p)) {
    name_->setText(Q(p.name));
    value_->setText(Q(p.value));
  }
  AddButtons(layout, "insertButton", [this] {
    const AppletParameter p{S(name_->text()), S(value_->text())};
    if (!Passed(ValidateAppletParameter(p))) return false;
    line_ = BuildAppletParameter(TagCaseUpper(app_) == 1, p);
    return true;
  });
  if (auto* insert = findChild<QPushButton*>("insertButton")) insert->setText("Insert");
}

void AppletParameterDialog::SetParameter(const AppletParameter& p) {
  name_->setText(Q(p.name));
  value_->setText(Q(p.value));
}

AppletDialog::AppletDialog(Application& app, QWidget* parent)
    : FrameFormDialog(app, "AppletDialog", "Java Applet", parent) {
  auto* layout = new QVBoxLayout(this);
  auto* tabs = new QTabWidget;
  tabs->setObjectName("appletTabs");
  layout->addWidget(tabs);

  auto* main = new QWidget;
  auto* mf = new QFormLayout(main);
  mf->setRowWrapPolicy(QFormLayout::WrapAllRows);  // the captions are long
  appletFile_ = NewLine("appletFile");
  mf->addRow("Java Applet filename:", appletFile_);
  codebase_ = NewLine("codebase");
  mf->addRow("Codebase (Applet directory):", codebase_);
  altText_ = NewLine("altText");
  mf->addRow("ALTernative text for browsers not supporting Java:", altText_);
  parameters_ = new QListWidget;
  parameters_->setObjectName("parameterList");
  mf->addRow("Parameters:", parameters_);
  auto* paramButtons = new QHBoxLayout;
  QPushButton* add = NewButton("Add Parameter...", "addParameterButton");
  QPushButton* remove = NewButton("Remove", "removeParameterButton");
  paramButtons->addWidget(add);
  paramButtons->addWidget(remove);
  paramButtons->addStretch();
  mf->addRow("", paramButtons);
  tabs->addTab(main, "Applet");

  auto* look = new QWidget;
  auto* lf = new QFormLayout(look);
  width_ = NewLine("width");
  lf->addRow("Applet Width:", width_);
  height_ = NewLine("height");
  lf->addRow("Applet Height:", height_);
  verticalSpace_ = NewLine("verticalSpace");
  lf->addRow("Vertical space:", verticalSpace_);
  horizontalSpace_ = NewLine("horizontalSpace");
  lf->addRow("Horizontal space:", horizontalSpace_);
  align_ = NewChoice("align", kAppletAligns, kAppletAlignCount);
  lf->addRow("Align:", align_);
  alignDescription_ = new QLabel;
  alignDescription_->setObjectName("alignDescription");
  alignDescription_->setWordWrap(true);
  alignDescription_->setMinimumHeight(40);
  auto* alignPicture = new AppletAlignPicture;
  alignPicture->setObjectName("alignPicture");
  auto* alignRow = new QVBoxLayout;
  alignRow->addWidget(alignPicture);
  alignRow->addWidget(alignDescription_);
  lf->addRow("", alignRow);
  tabs->addTab(look, "Size and Alignment");

  AddButtons(layout, "okButton", [this] { return Passed(Applet_OK(app_, Model())); });
  resize(520, 440);

  connect(align_, &QComboBox::currentTextChanged, this, [this, alignPicture](const QString& item) {
    alignDescription_->setText(Q(AppletAlignDescription(S(item))));
    alignPicture->SetAlign(item);
  });
  connect(add, &QPushButton::clicked, this, [this] { AddParameter(); });
  connect(remove, &QPushButton::clicked, this, [this] { delete parameters_->currentItem(); });
  connect(parameters_, &QListWidget::itemDoubleClicked, this,
          [this](QListWidgetItem* item) { EditParameter(parameters_->row(item)); });
}

void AppletDialog::AddParameter() {
  AppletParameterDialog d(app_, this);
  if (d.exec() == QDialog::Accepted) parameters_->addItem(Q(d.Line()));
}

void AppletDialog::EditParameter(int row) {
  QListWidgetItem* item = parameters_->item(row);
  if (!item) return;
  AppletParameterDialog d(app_, this, S(item->text()));
  if (d.exec() == QDialog::Accepted) item->setText(Q(d.Line()));
}

AppletInputs AppletDialog::Model() const {
  AppletInputs in;
  in.appletFile = S(appletFile_->text());
  in.codebase = S(codebase_->text());
  in.altText = S(altText_->text());
  for (int i = 0; i < parameters_->count(); ++i)
    in.parameters.push_back(S(parameters_->item(i)->text()));
  in.width = S(width_->text());
  in.height = S(height_->text());
  in.verticalSpace = S(verticalSpace_->text());
  in.horizontalSpace = S(horizontalSpace_->text());
  in.align = S(align_->currentText());
  in.changingExistingTag = changingExistingTag_;
  return in;
}

void AppletDialog::SetModel(const AppletInputs& in) {
  appletFile_->setText(Q(in.appletFile));
  codebase_->setText(Q(in.codebase));
  altText_->setText(Q(in.altText));
  parameters_->clear();
  for (const std::string& line : in.parameters) parameters_->addItem(Q(line));
  width_->setText(Q(in.width));
  height_->setText(Q(in.height));
  verticalSpace_->setText(Q(in.verticalSpace));
  horizontalSpace_->setText(Q(in.horizontalSpace));
  align_->setCurrentIndex(align_->findText(Q(in.align)));
  changingExistingTag_ = in.changingExistingTag;
}

}  // namespace tessarine::ui
