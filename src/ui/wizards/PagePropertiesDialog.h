#pragma once
// "Web Page Properties": the page's title, colours, background, margins and meta tags, read
// from the active document when the dialog opens, and the page's weight.

#include <QColor>
#include <array>

#include "ui/wizards/WizardDialog.h"
#include "wizards/PageProperties.h"

class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QTabWidget;
class QToolButton;

namespace tessarine {
struct BodyTagFields;
}

namespace tessarine::ui {

class PagePropertiesDialog : public WizardDialog {
 public:
  // Reads the active document, laying in a page first when it is empty.
  PagePropertiesDialog(Application& app, QWidget* parent);
  tessarine::PageProperties Model() const;
  void SetModel(const tessarine::PageProperties& form);
  // Edit Tag: the fields of the tag it read, over what opening found.
  void SetBodyFields(const BodyTagFields& fields);

 private:
  QWidget* TitlePage();
  QWidget* ColorsPage();
  QWidget* BackgroundPage();
  QWidget* MarginsPage();
  QWidget* MetaTagsPage();
  QWidget* InformationPage();
  void OnColorText(std::size_t index, const QString& text);
  void PickColorFor(std::size_t index);
  void UpdatePreview();
  void ShowPicture(const QString& path);
  void FocusPage(int index);

  QTabWidget* tabs_;
  QLineEdit* title_;
  // The background first, then the four by PageColor.
  std::array<QComboBox*, 5> colorCombos_{};
  std::array<QToolButton*, 5> swatches_{};
  std::array<ColorEntry, 5> entries_;
  std::array<QColor, 5> shades_;
  QFrame* preview_;
  std::array<QLabel*, 4> previewTexts_{};
  QLineEdit* backgroundImage_;
  QCheckBox* fixedBackground_;
  QLabel* picture_;
  QLineEdit* leftMargin_;
  QLineEdit* topMargin_;
  QPushButton* metaTags_;
  QPlainTextEdit* information_;
  QCheckBox* dontShow_;
};

}  // namespace tessarine::ui
