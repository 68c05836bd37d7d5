#pragma once
// One row of the jump menu: its text and the URL it links to.

#include "effects/JumpMenu.h"
#include "ui/effects/EffectDialog.h"

class QLineEdit;

namespace tessarine::ui {

class JumpMenuItemDialog : public EffectDialog {
 public:
  JumpMenuItemDialog(Application& app, const JumpMenuRow& row, QWidget* parent);
  // The row as it is stored, once OK was accepted.
  JumpMenuRow Row() const { return row_; }
  JumpMenuItem Model() const;

 private:
  QLineEdit* itemText_;
  QLineEdit* urlText_;
  JumpMenuRow row_;
};

}  // namespace tessarine::ui
