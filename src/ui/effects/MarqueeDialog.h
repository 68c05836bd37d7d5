#pragma once
// The marquee text ticker: one MARQUEE element into BodyInsert.

#include "effects/Marquee.h"
#include "ui/effects/EffectDialog.h"

class QComboBox;
class QLineEdit;

namespace tessarine::ui {

class MarqueeDialog : public EffectDialog {
 public:
  MarqueeDialog(Application& app, QWidget* parent);
  tessarine::Marquee Model() const;

 private:
  QLineEdit* marqueeText_;
  QComboBox* directionCombo_;
  QComboBox* behaviorCombo_;
  QComboBox* loopCombo_;
  QComboBox* alignmentCombo_;
  QLineEdit* widthText_;
  QLineEdit* heightText_;
  QLineEdit* vspaceText_;
  QLineEdit* hspaceText_;
  QLineEdit* scrollAmountText_;
  QLineEdit* scrollDelayText_;
  QLineEdit* backgroundColorText_;
};

}  // namespace tessarine::ui
