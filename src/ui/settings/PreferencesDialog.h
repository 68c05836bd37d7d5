#pragma once
// Preferences: eight pages chosen from the list on the left. OK writes every setting and
// loads them again; the caller then applies them to the open windows.

#include <QDialog>
#include <array>

#include "settings/Preferences.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QSpinBox;
class QStackedWidget;

namespace tessarine {

class Application;
class SciEdit;

namespace ui {

class PreferencesDialog : public QDialog {
 public:
  // The page names of the list, in its order.
  static const std::array<const char*, 8> kPages;

  PreferencesDialog(Application& app, QWidget* parent);
  // Shows the page with this name ("Custom buttons"); an unknown name leaves the first.
  void ShowPage(const QString& name);
  // The record as the fields have it now.
  Preferences Model() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* BuildStartupPage();
  QWidget* BuildScreenPage();
  QWidget* BuildHtmlTagsPage();
  QWidget* BuildCustomButtonsPage();
  QWidget* BuildMenusPage();
  QWidget* BuildAppsPage();
  QWidget* BuildMiscellaneousPage();
  QWidget* BuildFavoritesPage();
  void Fill();
  void OnOK();
  // The preview and the squares follow the colour and font choices.
  void RedrawPreview();
  void UpdateColorSquares();
  void PickColor(int which);
  void ChooseFont(QComboBox* list);
  void BrowseFolder(QLineEdit* field, const QString& title);
  void BrowseProgram(QLineEdit* field, const char* title);
  void ShowCustomButton(int number);
  void SaveCustomButton(int number);
  void ReplaceOrInsertUrl();

  Application& app_;
  // What the fields do not hold themselves: the colours and the favourite URLs.
  Preferences state_;
  QListWidget* categoryList_ = nullptr;
  QStackedWidget* pages_ = nullptr;

  // Startup
  QLineEdit* workingDirectory_ = nullptr;
  QLineEdit* imageDirectory_ = nullptr;
  QCheckBox* showPageProps_ = nullptr;
  QCheckBox* blankNewDoc_ = nullptr;
  QCheckBox* cascadeDocuments_ = nullptr;
  QCheckBox* tipOfTheDay_ = nullptr;
  QCheckBox* startNewDoc_ = nullptr;
  QCheckBox* openMRUDoc_ = nullptr;
  // Screen/Text settings
  QComboBox* screenFont_ = nullptr;
  QLineEdit* fontSize_ = nullptr;
  QSpinBox* fontSizeUpDown_ = nullptr;
  QCheckBox* bold_ = nullptr;
  QComboBox* htmlFont_ = nullptr;
  // Ordinary, table, quoted, comment, ASP: the on-off boxes and their squares.
  std::array<QCheckBox*, 5> colorChecks_{};
  std::array<QPushButton*, 5> colorSquares_{};
  SciEdit* preview_ = nullptr;
  // HTML tags
  QCheckBox* upperCaseTags_ = nullptr;
  QCheckBox* useDivTag_ = nullptr;
  QCheckBox* endingPTag_ = nullptr;
  QCheckBox* brCarriageReturn_ = nullptr;
  // Custom buttons
  QSpinBox* customButtonNumber_ = nullptr;
  QLineEdit* customButtonName_ = nullptr;
  QLineEdit* customButtonStart_ = nullptr;
  QLineEdit* customButtonEnd_ = nullptr;
  int shownCustomButton_ = 1;
  // Menus, in the order of kMenuSystems.
  std::array<QRadioButton*, 4> menuSystems_{};
  QButtonGroup* menuGroup_ = nullptr;
  // Previewers/Apps
  QLineEdit* browser_ = nullptr;
  QLineEdit* browser2_ = nullptr;
  QCheckBox* overrideBrowser_ = nullptr;
  QLabel* overrideCaption_ = nullptr;
  QLineEdit* printerProgram_ = nullptr;
  QLineEdit* imageMapper_ = nullptr;
  QLineEdit* ftpClient_ = nullptr;
  // Miscellaneous
  QCheckBox* enableAutotab_ = nullptr;
  QCheckBox* autoSave_ = nullptr;
  QLineEdit* autoSaveMinutes_ = nullptr;
  QSpinBox* autoSaveUpDown_ = nullptr;
  QCheckBox* hrPropsBox_ = nullptr;
  QCheckBox* showFileList_ = nullptr;
  QCheckBox* wordWrap_ = nullptr;
  QCheckBox* beginnerTableWizard_ = nullptr;
  QCheckBox* alignFileListLeft_ = nullptr;
  QLineEdit* numberOfMRUFiles_ = nullptr;
  QSpinBox* mruUpDown_ = nullptr;
  QComboBox* spellLanguage_ = nullptr;
  // Favorite URLs
  QListWidget* favoriteList_ = nullptr;
  QLineEdit* favoriteUrl_ = nullptr;
};

}  // namespace ui
}  // namespace tessarine
