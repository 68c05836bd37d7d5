#pragma once
// The jump menu wizard: rows of text and URL, how the menu shows, and the target frame.
// Done leaves the script in HeadInsert and the form in BodyInsert.

#include "effects/JumpMenu.h"
#include "ui/effects/EffectDialog.h"

class QComboBox;
class QListWidget;
class QRadioButton;

namespace tessarine::ui {

class JumpMenuDialog : public EffectDialog {
 public:
  JumpMenuDialog(Application& app, QWidget* parent);
  tessarine::JumpMenu Model() const;
  // Opens the item dialog on a new row (-1) or on `row`.
  void EditRow(int row);

 private:
  int Selected() const;
  void Refill(int selected);
  void Done();

  tessarine::JumpMenu menu_;
  QListWidget* menuItemList_;
  QListWidget* urlList_;
  QRadioButton* dropdownChoice_;
  QRadioButton* allItemsChoice_;
  QComboBox* targetCombo_;
};

}  // namespace tessarine::ui
