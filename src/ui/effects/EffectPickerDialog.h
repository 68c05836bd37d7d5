#pragma once
// The special effects picker: choose one of six effects; Next opens its wizard and the
// text it leaves reaches the document.

#include <functional>

#include "effects/EffectPicker.h"
#include "ui/effects/EffectDialog.h"

class QListWidget;

namespace tessarine::ui {

class EffectPickerDialog : public EffectDialog {
 public:
  // `openBackgroundSound` opens the sound dialog; without it that entry stays disabled.
  EffectPickerDialog(Application& app, std::function<void()> openBackgroundSound, QWidget* parent);

 private:
  void Next();
  // Runs the chosen wizard modally.
  void RunWizard(SpecialEffect effect);

  std::function<void()> openBackgroundSound_;
  QListWidget* effectList_;
};

}  // namespace tessarine::ui
