#include "ui/wizards/CharacterPickerDialog.h"

#include <QGridLayout>
#include <QPushButton>
#include <QTabWidget>
#include <QTextDocumentFragment>
#include <QToolButton>
#include <QVBoxLayout>

#include "wizards/Vowels.h"

namespace tessarine::ui {

namespace {
// What a cell shows: the character its text stands for, where it stands for one.
// Cells whose text no browser reads as the character it stands for still show it; the
// text they insert stays as it is.
QString Face(const std::string& cell) {
  static const std::pair<const char*, const char16_t*> kUnread[] = {
      {"&Aelig;", u"\u00C6"}, {"&nequiv;", u"\u2262"}, {"&inf;", u"\u221E"}};
  for (const auto& [text, face] : kUnread)
    if (cell == text) return QString::fromUtf16(face);
  QString shown = QTextDocumentFragment::fromHtml(Q(cell)).toPlainText();
  if (shown.size() != 1) shown = Q(cell);
  return shown.replace('&', "&&");  // a text, never a mnemonic
}
}  // namespace

CharacterPickerDialog::CharacterPickerDialog(Application& app, QWidget* parent)
    : WizardDialog(app, "Vowels", "Special Characters", parent), tabs_(new QTabWidget) {
  tabs_->setObjectName("pages");
  const char* titles[3] = {"Accented letters", "Signs", "Symbol font"};
  for (int page = 1; page <= 3; ++page) {
    auto* picture = new QWidget;
    picture->setObjectName(QString("page%1").arg(page));
    auto* grid = new QGridLayout(picture);
    grid->setSpacing(1);
    const auto& cells = VowelsPage(page);
    const int columns = page == 3 ? 13 : 10;
    for (std::size_t i = 0; i < cells.size(); ++i) {
      auto* cell = new QToolButton;
      const std::string text = cells[i];
      cell->setObjectName(QString("cell%1_%2").arg(page).arg(i));
      cell->setText(Face(text));
      cell->setToolTip(Q(text));
      if (page == 3 && i < 52) cell->setFont(QFont("Symbol"));
      cell->setMinimumSize(30, 26);
      grid->addWidget(cell, static_cast<int>(i) / columns, static_cast<int>(i) % columns);
      connect(cell, &QToolButton::clicked, this, [this, text] { Vowels_Insert(app_, text); });
    }
    tabs_->addTab(picture, titles[page - 1]);
  }
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(tabs_);
  auto* close = new QPushButton("Close");
  close->setObjectName("cmdClose");
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
  auto* row = new QHBoxLayout;
  row->addStretch();
  row->addWidget(close);
  layout->addLayout(row);
}

}  // namespace tessarine::ui
