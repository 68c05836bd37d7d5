#pragma once
// The inline frame: one IFRAME element into BodyInsert; its URL is remembered.

#include "effects/InlineFrame.h"
#include "ui/effects/EffectDialog.h"

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace tessarine::ui {

class InlineFrameDialog : public EffectDialog {
 public:
  InlineFrameDialog(Application& app, QWidget* parent);
  tessarine::InlineFrame Model() const;

 private:
  QComboBox* sourceUrl_;
  QLineEdit* frameWidth_;
  QLineEdit* frameHeight_;
  QLineEdit* alternativeText_;
  QComboBox* alignmentCombo_;
  QCheckBox* scrollBarsCheck_;
  QCheckBox* frameBorderCheck_;
  QLineEdit* hspaceText_;
  QLineEdit* vspaceText_;
};

}  // namespace tessarine::ui
