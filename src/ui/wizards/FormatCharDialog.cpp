#include "ui/wizards/FormatCharDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDialog>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/Application.h"
#include "wizards/FormatChar.h"
#include "wizards/TagConventions.h"

namespace tessarine::ui {

namespace {
struct StyleBox {
  int number;
  const char* caption;
};
const StyleBox kPhysical[] = {
    {1, "Bold"}, {2, "Italic"}, {3, "Underline"}, {4, "Strikethrough"}, {5, "Typewriter Text"}};
const StyleBox kLogical[] = {{7, "Code <CODE>"},      {9, "Emphasis <EM>"},
                             {10, "Keyboard <KBD>"},  {12, "Sample <SAMP>"},
                             {13, "Strong <STRONG>"}, {14, "Variable <VAR>"}};
}  // namespace

FormatChar::FormatChar(Application& app, QWidget* parent)
    : WizardDialog(app, "FormatChar", "Format Text", parent) {
  auto* layout = new QVBoxLayout(this);
  auto* form = new QFormLayout;
  Combo3_ = new QComboBox;
  Combo3_->setObjectName("Combo3");
  Combo3_->setEditable(true);
  Combo3_->setToolTip(
      "This is the font name to be used.  Multiple names can be used if separated by commas");
  for (const std::string& f : FormatCharFonts(RecentFontName(app))) Combo3_->addItem(Q(f));
  Combo3_->setEditText("");
  auto* more = new QPushButton("more");
  more->setObjectName("Command1");
  auto* faceRow = new QHBoxLayout;
  faceRow->addWidget(Combo3_, 1);
  faceRow->addWidget(more);
  form->addRow("Font Face:", faceRow);

  Text1_ = new QLineEdit;
  Text1_->setObjectName("Text1");
  Text1_->setMaxLength(6);
  auto* select = new QPushButton("Select");
  select->setObjectName("Label3");
  select->setFlat(true);
  auto* colorRow = new QHBoxLayout;
  colorRow->addWidget(Text1_, 1);
  colorRow->addWidget(select);
  form->addRow("Font Color:", colorRow);

  Combo1_ = new QComboBox;
  Combo1_->setObjectName("Combo1");
  for (const char* s : kFormatCharSizes) Combo1_->addItem(s);
  form->addRow("Font Size:", Combo1_);
  Combo2_ = new QComboBox;
  Combo2_->setObjectName("Combo2");
  for (const char* s : kFormatCharPositions) Combo2_->addItem(s);
  form->addRow("Position:", Combo2_);
  layout->addLayout(form);

  auto addBoxes = [this](const QString& title, const auto& boxes) {
    auto* group = new QGroupBox(title);
    auto* grid = new QGridLayout(group);
    int i = 0;
    for (const StyleBox& b : boxes) {
      auto* c = new QCheckBox(b.caption);
      c->setObjectName(QString("Check%1").arg(b.number));
      checks_[b.number] = c;
      grid->addWidget(c, i / 2, i % 2);
      ++i;
      connect(c, &QCheckBox::toggled, this, [this] { UpdateSample(); });
    }
    return group;
  };
  auto* styles = new QHBoxLayout;
  styles->addWidget(addBoxes("Physical Styles", kPhysical));
  styles->addWidget(addBoxes("Logical Styles", kLogical));
  layout->addLayout(styles);

  Label6_ = new QLabel("Example text");
  Label6_->setObjectName("Label6");
  Label6_->setAlignment(Qt::AlignCenter);
  Label6_->setMinimumHeight(60);
  Label6_->setFrameStyle(QFrame::Panel | QFrame::Sunken);
  layout->addWidget(Label6_);

  AddButtons(layout, "Command3", [this] {
    FormatChar_OK(app_, Model());
    return true;
  });

  connect(select, &QPushButton::clicked, this, [this] {
    PickColor(app_);
    if (!app_.wizards.ColorCancelled) Text1_->setText(Q(app_.wizards.PickedColorHex));
  });
  connect(more, &QPushButton::clicked, this, [this] {
    bool ok = false;
    const QFont f = QFontDialog::getFont(&ok, QFont(Combo3_->currentText()), this);
    if (ok) Combo3_->setEditText(f.family());
  });
  connect(Combo3_, &QComboBox::currentTextChanged, this, [this] { UpdateSample(); });
  connect(Text1_, &QLineEdit::textChanged, this, [this] { UpdateSample(); });
  connect(Combo1_, &QComboBox::currentTextChanged, this, [this] { UpdateSample(); });
}

tessarine::FormatChar FormatChar::Model() const {
  tessarine::FormatChar m;
  m.Combo3 = S(Combo3_->currentText());
  m.Text1 = S(Text1_->text());
  m.Combo1 = S(Combo1_->currentText());
  m.Combo2 = S(Combo2_->currentText());
  m.Check1 = checks_[1]->isChecked();
  m.Check2 = checks_[2]->isChecked();
  m.Check3 = checks_[3]->isChecked();
  m.Check4 = checks_[4]->isChecked();
  m.Check5 = checks_[5]->isChecked();
  m.Check7 = checks_[7]->isChecked();
  m.Check9 = checks_[9]->isChecked();
  m.Check10 = checks_[10]->isChecked();
  m.Check12 = checks_[12]->isChecked();
  m.Check13 = checks_[13]->isChecked();
  m.Check14 = checks_[14]->isChecked();
  return m;
}

void FormatChar::UpdateSample() {
  QFont f = font();
  if (!Combo3_->currentText().isEmpty()) f.setFamily(Combo3_->currentText().section(',', 0, 0));
  if (const int points = FormatCharPointSize(S(Combo1_->currentText()))) f.setPointSize(points);
  f.setBold(checks_[1]->isChecked() || checks_[13]->isChecked());
  f.setItalic(checks_[2]->isChecked() || checks_[9]->isChecked());
  f.setUnderline(checks_[3]->isChecked());
  f.setStrikeOut(checks_[4]->isChecked());
  Label6_->setFont(f);
  const QString hex = Text1_->text();
  Label6_->setStyleSheet(hex.size() == 6 ? "color: #" + hex : QString());
}

}  // namespace tessarine::ui
