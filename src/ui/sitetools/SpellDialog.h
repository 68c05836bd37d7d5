#pragma once
// The spelling dialog: one misspelled word at a time, its suggestions, and the user's
// decision, which the spell check's walk carries out in the document.

#include <QDialog>

#include "sitetools/SpellCheck.h"

class QComboBox;
class QLineEdit;
class QListWidget;

namespace tessarine {

class SpellDialog : public QDialog, public SpellPrompter {
 public:
  SpellDialog(const QString& customDictionary, QWidget* parent);
  SpellDecision Decide(const std::string& word,
                       const std::vector<std::string>& suggestions) override;

 private:
  void Finish(SpellAction action);

  QLineEdit* misspelledText_;
  QLineEdit* replaceWithText_;
  QListWidget* suggestionList_;
  QComboBox* customDictionaries_;
  SpellDecision decision_;
};

}  // namespace tessarine
