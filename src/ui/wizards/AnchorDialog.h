#pragma once
// Anchor target: a named place in the page that links can jump to.

#include "ui/wizards/WizardDialog.h"
#include "wizards/Anchor.h"

class QLineEdit;

namespace tessarine::ui {

class AnchorDialog : public WizardDialog {
 public:
  AnchorDialog(Application& app, QWidget* parent, const Anchor& initial);
  AnchorDialog(Application& app, QWidget* parent);  // the selection is the text

  void Prefill(const Anchor& anchor);
  Anchor Model() const;

 private:
  QLineEdit* anchorName_;
  QLineEdit* anchorText_;
};

}  // namespace tessarine::ui
