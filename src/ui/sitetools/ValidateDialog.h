#pragma once
// The HTML validator: the choice, the cleaning options, the file name, and the runs of
// ValidateWizard behind them.

#include <QDialog>
#include <memory>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QStackedWidget;

namespace tessarine {

class Application;
class ValidateHost;
class ValidateWizard;
struct ValidateView;

class ValidateDialog : public QDialog {
 public:
  // `host` outlives the dialog.
  ValidateDialog(Application& app, ValidateHost& host, QWidget* parent);
  ~ValidateDialog() override;

 private:
  QWidget* ChoicePage();
  QWidget* OptionsPage();
  QWidget* FileNamePage();
  void Apply(const ValidateView& view);
  void ReadFields();

  Application& app_;
  std::unique_ptr<ValidateWizard> wizard_;
  QLabel* headingLabel_;
  QLabel* subHeadingLabel_;
  QStackedWidget* pages_;
  QRadioButton* validateRadio_;
  QRadioButton* cleanRadio_;
  QCheckBox* altTextCheck_;
  QLineEdit* altText_;
  QCheckBox* fontToCssCheck_;
  QCheckBox* upperCaseCheck_;
  QCheckBox* breakBeforeBrCheck_;
  QCheckBox* paragraphsCheck_;
  QCheckBox* xhtmlCheck_;
  QCheckBox* indentCheck_;
  QLineEdit* indentSpacesText_;
  QComboBox* indentUnitsCombo_;
  QCheckBox* wrapAttributesCheck_;
  QCheckBox* wrapCheck_;
  QLineEdit* wrapCharsText_;
  QLineEdit* fileNameText_;
  QLabel* doneFileLabel_;
  QPushButton* nextButton_;
  QPushButton* previousButton_;
};

}  // namespace tessarine
