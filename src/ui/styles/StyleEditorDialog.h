#pragma once
// "Cascading Style Sheet Wizard": the naming page and five pages of properties, bound to
// StyleEditorFields. What OK does depends on the mode it was opened in.

#include <QDialog>
#include <cstdint>
#include <string>

#include "styles/StyleEditor.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QStackedWidget;
class QTabWidget;

namespace tessarine {
class Application;
}

namespace tessarine::ui {

class StyleEditorDialog : public QDialog {
  Q_OBJECT
 public:
  // `managerSelection`: the style selected in the manager, for the Edit mode.
  StyleEditorDialog(Application& app, std::int16_t mode, const std::string& managerSelection,
                    QWidget* parent);

  StyleEditorFields Fields() const;
  void SetFields(const StyleEditorFields& f);
  // The style's fields into the pages (the manager's Edit).
  void LoadStyle(const CSSstyle& style);
  // The selector a mode-5 OK added to Styles, empty otherwise.
  const std::string& AddedName() const { return added_; }

 private:
  QWidget* BuildNamingPage();
  QWidget* BuildFormattingPage();
  QWidget* BuildLayoutPage();
  QWidget* BuildBackgroundPage();
  QWidget* BuildPositioningPage();
  QWidget* BuildPreviewPage();
  void NextOrPrevious();
  void ShowPropertyPages(bool show);
  void OnOK();
  void Preview();
  void PickInto(QLineEdit* box, QPushButton* swatch);

  Application& app_;
  const std::int16_t mode_;
  const std::string managerSelection_;
  std::string added_;

  QLabel* heading_;
  QStackedWidget* pages_;
  QTabWidget* propertyTabs_;
  QPushButton* nextButton_;
  QPushButton* okButton_;

  QRadioButton* htmlElementOption_;
  QRadioButton* customOption_;
  QListWidget* htmlElements_;
  QLineEdit* customName_;
  QRadioButton* classOption_;
  QRadioButton* idOption_;

  QComboBox* font_;
  QComboBox* fontSize_;
  QComboBox* fontSizeUnit_;
  QLineEdit* fontColor_;
  QPushButton* fontColorSelect_;
  QComboBox* fontCase_;
  QCheckBox* bold_;
  QCheckBox* italic_;
  QCheckBox* smallCaps_;
  QCheckBox* underline_;
  QCheckBox* overline_;
  QCheckBox* strikethrough_;

  QComboBox* verticalAlign_;
  QComboBox* horizontalAlign_;
  QLineEdit* indent_;
  QComboBox* indentUnit_;
  QComboBox* lineHeight_;
  QComboBox* lineHeightUnit_;
  QComboBox* letterSpacing_;
  QComboBox* letterSpacingUnit_;

  QLineEdit* backgroundColor_;
  QPushButton* backgroundColorSelect_;
  QLineEdit* backgroundImage_;
  QComboBox* backgroundTile_;

  QLineEdit* height_;
  QComboBox* heightUnit_;
  QLineEdit* width_;
  QComboBox* widthUnit_;
  QLineEdit* left_;
  QComboBox* leftUnit_;
  QLineEdit* top_;
  QComboBox* topUnit_;
  QComboBox* position_;
  QComboBox* visibility_;
  QComboBox* zIndex_;
};

}  // namespace tessarine::ui
