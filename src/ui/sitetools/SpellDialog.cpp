#include "ui/sitetools/SpellDialog.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace tessarine {

SpellDialog::SpellDialog(const QString& customDictionary, QWidget* parent) : QDialog(parent) {
  setObjectName("SpellDialog");
  setWindowTitle("Spelling");
  misspelledText_ = new QLineEdit;
  misspelledText_->setObjectName("misspelledText");
  misspelledText_->setReadOnly(true);
  replaceWithText_ = new QLineEdit;
  replaceWithText_->setObjectName("replaceWithText");
  suggestionList_ = new QListWidget;
  suggestionList_->setObjectName("suggestionList");
  customDictionaries_ = new QComboBox;
  customDictionaries_->setObjectName("customDictionaries");
  customDictionaries_->addItem(customDictionary);

  auto button = [this](const char* text, const char* name, SpellAction action) {
    auto* b = new QPushButton(text);
    b->setObjectName(name);
    connect(b, &QPushButton::clicked, this, [this, action] { Finish(action); });
    return b;
  };
  auto* grid = new QGridLayout(this);
  grid->addWidget(new QLabel("Not in dictionary:"), 0, 0);
  grid->addWidget(misspelledText_, 0, 1);
  grid->addWidget(new QLabel("Change to:"), 1, 0);
  grid->addWidget(replaceWithText_, 1, 1);
  grid->addWidget(new QLabel("Suggestions:"), 2, 0, Qt::AlignTop);
  grid->addWidget(suggestionList_, 2, 1);
  auto* side = new QVBoxLayout;
  side->addWidget(button("&Ignore", "ignoreButton", SpellAction::Ignore));
  side->addWidget(button("I&gnore All", "ignoreAllButton", SpellAction::IgnoreAll));
  side->addWidget(button("&Change", "changeButton", SpellAction::Change));
  side->addWidget(button("Change A&ll", "changeAllButton", SpellAction::ChangeAll));
  side->addWidget(button("&Add", "addButton", SpellAction::Add));
  side->addStretch();
  side->addWidget(button("Cancel", "cancelButton", SpellAction::Cancel));
  grid->addLayout(side, 0, 2, 3, 1);
  grid->addWidget(new QLabel("Add words to:"), 3, 0);
  grid->addWidget(customDictionaries_, 3, 1);

  connect(suggestionList_, &QListWidget::currentTextChanged, this, [this](const QString& text) {
    if (suggestionList_->isEnabled()) replaceWithText_->setText(text);
  });
  connect(suggestionList_, &QListWidget::itemDoubleClicked, this,
          [this] { Finish(SpellAction::Change); });
}

SpellDecision SpellDialog::Decide(const std::string& word,
                                  const std::vector<std::string>& suggestions) {
  const SuggestionList list = MakeSuggestionList(suggestions);
  misspelledText_->setText(QString::fromStdString(word));
  suggestionList_->clear();
  suggestionList_->setEnabled(true);
  for (const std::string& entry : list.entries)
    suggestionList_->addItem(QString::fromStdString(entry));
  suggestionList_->setEnabled(list.enabled);
  if (list.enabled) suggestionList_->setCurrentRow(0);
  replaceWithText_->setText(QString::fromStdString(list.enabled ? list.replaceWith : word));
  decision_ = {SpellAction::Cancel, {}};
  exec();  // closing the window is Cancel
  return decision_;
}

void SpellDialog::Finish(SpellAction action) {
  decision_ = {action, replaceWithText_->text().toStdString()};
  accept();
}

}  // namespace tessarine
