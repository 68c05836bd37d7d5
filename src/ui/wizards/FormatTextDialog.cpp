#include "ui/wizards/FormatTextDialog.h"

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

#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "wizards/FormatChar.h"

namespace tessarine::ui {

namespace {
using StyleField = bool tessarine::FormatChar::*;
struct StyleBox {
  StyleField field;
  const char* name;
  const char* caption;
};
const StyleBox kPhysical[] = {
    {&tessarine::FormatChar::bold, "bold", "Bold"},
    {&tessarine::FormatChar::italic, "italic", "Italic"},
    {&tessarine::FormatChar::underline, "underline", "Underline"},
    {&tessarine::FormatChar::strikeThrough, "strikeThrough", "Strikethrough"},
    {&tessarine::FormatChar::teletype, "teletype", "Typewriter Text"}};
const StyleBox kLogical[] = {{&tessarine::FormatChar::code, "code", "Code <CODE>"},
                             {&tessarine::FormatChar::emphasis, "emphasis", "Emphasis <EM>"},
                             {&tessarine::FormatChar::keyboard, "keyboard", "Keyboard <KBD>"},
                             {&tessarine::FormatChar::sample, "sample", "Sample <SAMP>"},
                             {&tessarine::FormatChar::strong, "strong", "Strong <STRONG>"},
                             {&tessarine::FormatChar::variable, "variable", "Variable <VAR>"}};
}  // namespace

FormatTextDialog::FormatTextDialog(Application& app, QWidget* parent)
    : WizardDialog(app, "FormatChar", "Format Text", parent) {
  auto* layout = new QVBoxLayout(this);
  auto* form = new QFormLayout;
  fontFace_ = new QComboBox;
  fontFace_->setObjectName("fontFace");
  fontFace_->setEditable(true);
  fontFace_->setToolTip(
      "This is the font name to be used.  Multiple names can be used if separated by commas");
  for (const std::string& f : FormatCharFonts(RecentFontName(app))) fontFace_->addItem(Q(f));
  fontFace_->setEditText("");
  auto* more = new QPushButton("more");
  more->setObjectName("moreFontsButton");
  auto* faceRow = new QHBoxLayout;
  faceRow->addWidget(fontFace_, 1);
  faceRow->addWidget(more);
  form->addRow("Font Face:", faceRow);

  colorHex_ = new QLineEdit;
  colorHex_->setObjectName("colorHex");
  colorHex_->setMaxLength(6);
  auto* select = new QPushButton("Select");
  select->setObjectName("sampleLabel");
  select->setFlat(true);
  auto* colorRow = new QHBoxLayout;
  colorRow->addWidget(colorHex_, 1);
  colorRow->addWidget(select);
  form->addRow("Font Color:", colorRow);

  sizeRow_ = new QComboBox;
  sizeRow_->setObjectName("sizeRow");
  for (const char* s : kFormatCharSizes) sizeRow_->addItem(s);
  form->addRow("Font Size:", sizeRow_);
  position_ = new QComboBox;
  position_->setObjectName("position");
  for (const char* s : kFormatCharPositions) position_->addItem(s);
  form->addRow("Position:", position_);
  layout->addLayout(form);

  auto addBoxes = [this](const QString& title, const auto& boxes) {
    auto* group = new QGroupBox(title);
    auto* grid = new QGridLayout(group);
    int i = 0;
    for (const StyleBox& b : boxes) {
      auto* c = new QCheckBox(b.caption);
      c->setObjectName(b.name);
      styleBoxes_.push_back({c, b.field});
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

  sampleText_ = new QLabel("Example text");
  sampleText_->setObjectName("sampleText");
  sampleText_->setAlignment(Qt::AlignCenter);
  sampleText_->setMinimumHeight(60);
  sampleText_->setFrameStyle(QFrame::Panel | QFrame::Sunken);
  layout->addWidget(sampleText_);

  AddButtons(layout, "okButton", [this] {
    FormatChar_OK(app_, Model());
    return true;
  });

  connect(select, &QPushButton::clicked, this, [this] {
    PickColor(app_);
    if (!app_.wizards.ColorCancelled) colorHex_->setText(Q(app_.wizards.PickedColorHex));
  });
  connect(more, &QPushButton::clicked, this, [this] {
    bool ok = false;
    const QFont f = QFontDialog::getFont(&ok, QFont(fontFace_->currentText()), this);
    if (ok) fontFace_->setEditText(f.family());
  });
  connect(fontFace_, &QComboBox::currentTextChanged, this, [this] { UpdateSample(); });
  connect(colorHex_, &QLineEdit::textChanged, this, [this] { UpdateSample(); });
  connect(sizeRow_, &QComboBox::currentTextChanged, this, [this] { UpdateSample(); });
}

tessarine::FormatChar FormatTextDialog::Model() const {
  tessarine::FormatChar m;
  m.fontFace = S(fontFace_->currentText());
  m.colorHex = S(colorHex_->text());
  m.sizeRow = S(sizeRow_->currentText());
  m.position = S(position_->currentText());
  for (const auto& [box, field] : styleBoxes_) m.*field = box->isChecked();
  return m;
}

void FormatTextDialog::SetModel(const tessarine::FormatChar& m) {
  fontFace_->setEditText(Q(m.fontFace));
  colorHex_->setText(Q(m.colorHex));
  // A size the list lacks ("+1") is kept as a row of its own, and written back as it was.
  const QString size = Q(m.sizeRow);
  int row = size.isEmpty() ? 0 : sizeRow_->findText(size);
  if (row < 0) {
    sizeRow_->addItem(size);
    row = sizeRow_->count() - 1;
  }
  sizeRow_->setCurrentIndex(row);
  if (const int at = position_->findText(Q(m.position)); at >= 0) position_->setCurrentIndex(at);
  for (const auto& [box, field] : styleBoxes_) box->setChecked(m.*field);
  UpdateSample();
}

void FormatTextDialog::UpdateSample() {
  QFont f = font();
  if (!fontFace_->currentText().isEmpty()) f.setFamily(fontFace_->currentText().section(',', 0, 0));
  if (const int points = FormatCharPointSize(S(sizeRow_->currentText()))) f.setPointSize(points);
  const tessarine::FormatChar m = Model();
  f.setBold(m.bold || m.strong);
  f.setItalic(m.italic || m.emphasis);
  f.setUnderline(m.underline);
  f.setStrikeOut(m.strikeThrough);
  sampleText_->setFont(f);
  const QString hex = colorHex_->text();
  sampleText_->setStyleSheet(hex.size() == 6 ? "color: #" + hex : QString());
}

}  // namespace tessarine::ui
