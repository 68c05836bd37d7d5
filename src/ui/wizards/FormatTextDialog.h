#pragma once
// The text format dialog: font, colour, size, position and styles around the selection.

#include <utility>
#include <vector>

#include "ui/wizards/WizardDialog.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

namespace tessarine {
struct FormatChar;
}

namespace tessarine::ui {

class FormatTextDialog : public WizardDialog {
 public:
  FormatTextDialog(Application& app, QWidget* parent);
  tessarine::FormatChar Model() const;
  // Filled from a tag already in the page.
  void SetModel(const tessarine::FormatChar& m);

 private:
  void UpdateSample();
  QComboBox* fontFace_;
  QLineEdit* colorHex_;
  QComboBox* sizeRow_;
  QComboBox* position_;
  // Each style box with the model's field it sets.
  std::vector<std::pair<QCheckBox*, bool tessarine::FormatChar::*>> styleBoxes_;
  QLabel* sampleText_;
};

}  // namespace tessarine::ui
