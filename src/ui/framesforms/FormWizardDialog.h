#pragma once
// The form wizard: the FORM tag's properties, then fields of eleven kinds. Opened for a
// single field it starts on the field page with that kind and has no "Done with Form".

#include <array>
#include <memory>

#include "ui/framesforms/FrameFormDialog.h"

class QAbstractButton;
class QButtonGroup;
class QCheckBox;
class QFormLayout;
class QLabel;
class QRadioButton;
class QStackedWidget;
class QToolButton;

namespace tessarine {
class FormBuilder;
struct FormField;
struct FormProperties;
}  // namespace tessarine

namespace tessarine::ui {

class FormWizardDialog : public FrameFormDialog {
 public:
  // `fieldKind` -1 for a whole form; 0 to 10 for one field of that kind at the caret.
  FormWizardDialog(Application& app, QWidget* parent, int fieldKind = -1);
  ~FormWizardDialog() override;

  FormProperties Properties() const;
  FormField Field() const;

 private:
  QWidget* BuildPropertiesPage();
  QWidget* BuildFieldPage(bool fieldOnly);
  void FormmailToggled(bool on);
  void NextPage();
  void PickKind(int kind);
  void InsertField();
  void InsertMenuItem();
  void FinishDropdown();
  void ClearFields();

  std::unique_ptr<FormBuilder> form_;
  int kind_ = 0;
  QStackedWidget* pages_;
  // The properties page.
  QLineEdit* formName_;
  QButtonGroup* methods_;
  QRadioButton* get_;
  QRadioButton* post_;
  QLineEdit* action_;
  QCheckBox* formmail_;
  QLabel* emailLabel_;
  QLineEdit* email_;
  QLabel* actionOptional_;
  // The field page.
  std::array<QToolButton*, 11> kinds_{};
  QLabel* kindTitle_;
  QStackedWidget* fieldPages_;
  QFormLayout* fields_;
  QLabel* valueLabel_;
  QLineEdit* label_;
  QLineEdit* name_;
  QLineEdit* value_;
  QLineEdit* size_;
  QLineEdit* maxLength_;
  QCheckBox* checked_;
  QLineEdit* src_;
  QLineEdit* rows_;
  QLineEdit* columns_;
  QCheckBox* multiple_;
  // The dropdown menu's sub-page.
  QLineEdit* optionText_;
  QLineEdit* optionValue_;
  QCheckBox* optionSelected_;
};

}  // namespace tessarine::ui
