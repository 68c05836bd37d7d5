#pragma once
// The table wizard's first stage: four beginner steps or one advanced page.

#include <map>

#include "ui/wizards/WizardDialog.h"
#include "wizards/TableWizard.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QStackedWidget;

namespace tessarine::ui {

class TableWizardDialog : public WizardDialog {
 public:
  // `beginner` picks the four steps; otherwise the advanced page alone.
  TableWizardDialog(Application& app, bool beginner, QWidget* parent);
  // What the grid is made from, once the dialog was accepted.
  const TableSetup& Setup() const { return setup_; }
  int Step() const;  // 1 to 4, or 0 on the advanced page

 private:
  QWidget* BuildStep1();
  QWidget* BuildStep2();
  QWidget* BuildStep3();
  QWidget* BuildStep4();
  QWidget* BuildAdvanced();
  void Next();
  void Previous();
  void Continue();
  void UpdateEnabled();
  BeginnerTableSteps Beginner() const;
  AdvancedTablePage Advanced() const;
  QLineEdit* Edit(const char* name);
  QComboBox* Combo(const char* name, bool editable);
  // A field with a "..." button that picks a colour into it.
  QWidget* ColorField(const char* name);
  void CountField(QLineEdit* field,
                  std::optional<CountCorrection> (*changed)(const std::string& text));
  QString Text(const char* name) const;

  bool beginner_;
  QStackedWidget* pages_;
  QPushButton* previous_ = nullptr;
  QPushButton* next_ = nullptr;
  QPushButton* continue_ = nullptr;
  std::map<std::string, QLineEdit*> edits_;
  std::map<std::string, QComboBox*> combos_;
  QCheckBox* borderCheck_ = nullptr;
  QRadioButton* alignTop_ = nullptr;
  QRadioButton* alignBottom_ = nullptr;
  std::vector<QWidget*> borderColorWidgets_, advancedBorderWidgets_;
  QLabel* captionLocationLabel_ = nullptr;
  TableSetup setup_;
};

}  // namespace tessarine::ui
