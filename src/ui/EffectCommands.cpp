// The special effects picker and its wizards.

#include "core/Application.h"
#include "ui/Commands.h"
#include "ui/MainWindow.h"
#include "ui/effects/EffectPickerDialog.h"

namespace tessarine {

namespace {

void ShowSpecialEffects(MainWindow& frame) {
  Application* app = frame.App();
  if (!app || !app->ActiveDocument()) return;
  std::function<void()> sound;
  // The sound dialog is opened by name once it is there.
  if (frame.HasDialog("BGSound")) sound = [&frame] { frame.ShowDialog("BGSound"); };
  ui::EffectPickerDialog(*app, sound, &frame).exec();
}

}  // namespace

void BuildEffectCommands(MainWindow& frame) {
  MainWindow* f = &frame;
  frame.LiveCommand("mnuSpecialEffectsMain", true, [f] { ShowSpecialEffects(*f); });
  frame.RegisterDialog("SpecialEffects", [f](const std::string&) { ShowSpecialEffects(*f); });
}

}  // namespace tessarine
