#pragma once
// Insert Image: the picture, its layout, a link, video and map options and a roll-over
// picture, on five pages; a file list of its own with the picture's size; an alignment
// preview. Filled from a record, so that Edit Tag can open it on an old tag.

#include "ui/wizards/WizardDialog.h"
#include "wizards/ImageTag.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QTabWidget;

namespace tessarine::ui {

class AlignmentPreview;

class ImageDialog : public WizardDialog {
 public:
  ImageDialog(Application& app, QWidget* parent, const ImageTag& initial = {});

  void Prefill(const ImageTag& image);
  ImageTag Model() const;
  // Shows the folder's subfolders and pictures in the file list.
  void ShowFolder(const QString& folder, bool changed);
  // What a pick in the file list does: the size (for GIF and JPEG names) and the source.
  void PickListedFile(const QString& name);

 private:
  QWidget* SelectPage();
  QWidget* LayoutPage();
  QWidget* LinkPage();
  QWidget* AdvancedPage();
  QWidget* EffectsPage();
  // Reads the picture's size into the read-out and the width and height fields.
  void ReadSize(const std::string& path);
  void ChooseAlignment(int index);

  QTabWidget* pages_;
  QLineEdit* imageSource_;
  QLabel* folderLabel_;
  QListWidget* folderList_;
  QListWidget* fileList_;
  QLabel* widthReadout_;
  QLabel* heightReadout_;
  QLabel* sizeProblem_;
  QString folder_;
  QString pattern_;

  QLineEdit* width_;
  QLineEdit* height_;
  QLineEdit* border_;
  QLineEdit* verticalSpace_;
  QLineEdit* horizontalSpace_;
  QComboBox* alignment_;
  AlignmentPreview* preview_;
  QLabel* alignmentDescription_;
  QLineEdit* altText_;
  QLineEdit* lowResSource_;

  QComboBox* linkUrl_;

  QLineEdit* videoFile_;
  QComboBox* videoLoop_;
  QComboBox* videoStart_;
  QCheckBox* videoControls_;
  QCheckBox* useClientMap_;
  QLabel* mapNameLabel_;
  QLineEdit* mapName_;
  QCheckBox* serverMap_;

  QLineEdit* mouseOverImage_;
};

}  // namespace tessarine::ui
