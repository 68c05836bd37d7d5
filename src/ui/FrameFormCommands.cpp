// Frames, custom frames, the form wizard, applets and media.

#include <cstdlib>

#include "conventions/SaveWarning.h"
#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "framesforms/FrameWizard.h"
#include "ui/Commands.h"
#include "ui/MainWindow.h"
#include "ui/framesforms/AppletDialog.h"
#include "ui/framesforms/CustomFramesDialog.h"
#include "ui/framesforms/FormWizardDialog.h"
#include "ui/framesforms/FrameChoiceDialog.h"
#include "ui/framesforms/FrameWizardDialog.h"
#include "ui/framesforms/MediaDialogs.h"

namespace tessarine {

namespace {

// "How do you want to make your Frames?", then the wizard chosen.
void ShowFrames(MainWindow& frame) {
  Application* app = frame.App();
  if (!app || !app->ActiveDocument()) return;
  ui::FrameChoiceDialog choice(&frame);
  choice.exec();
  if (choice.Chosen() == ui::FrameChoiceDialog::DoItYourself)
    ui::FrameWizardDialog(*app, &frame).exec();
  else if (choice.Chosen() == ui::FrameChoiceDialog::CustomMade)
    ui::CustomFramesDialog(*app, &frame).exec();
  else
    CloseWizard(*app);
}

// `kind` empty for the whole form, else the field kind 0 to 10.
void ShowFormWizard(MainWindow& frame, const std::string& kind) {
  Application* app = frame.App();
  if (!app || !app->ActiveDocument()) return;
  int fieldKind = -1;
  if (!kind.empty()) {
    char* end = nullptr;
    const long n = std::strtol(kind.c_str(), &end, 10);
    if (*end != '\0' || n < 0 || n > 10) return;
    fieldKind = static_cast<int>(n);
  }
  ui::FormWizardDialog(*app, &frame, fieldKind).exec();
}

template <class Dialog>
void Show(MainWindow& frame) {
  Application* app = frame.App();
  if (!app || !app->ActiveDocument()) return;
  Dialog(*app, &frame).exec();
}

}  // namespace

void BuildFrameFormCommands(MainWindow& frame) {
  MainWindow* f = &frame;
  frame.LiveCommand("mnuFrameMaker", true, [f] { ShowFrames(*f); });
  frame.LiveCommand("mnuForm", true, [f] { ShowFormWizard(*f, ""); });
  frame.LiveCommand("mnuJavaApplet", true, [f] { Show<ui::AppletDialog>(*f); });
  frame.LiveCommand("mnuembed", true, [f] {
    if (!f->App() || !f->App()->ActiveDocument()) return;
    CheckSaveWarning(*f->App());
    Show<ui::EmbeddedMediaDialog>(*f);
  });

  // The Frames button starts a frameset page of its own first.
  frame.BindButton("tbrInsert", "Frames", [f] {
    if (f->App() && NewFramesetDocument(*f->App())) ShowFrames(*f);
  });
  frame.BindButton("tbrInsert", "Form Wizard", [f] { ShowFormWizard(*f, ""); });

  frame.RegisterDialog("FormWizard", [f](const std::string&) { ShowFormWizard(*f, ""); });
  frame.RegisterDialog("FormElement", [f](const std::string& kind) {
    if (!kind.empty()) ShowFormWizard(*f, kind);
  });
  frame.RegisterDialog("Applet", [f](const std::string&) { Show<ui::AppletDialog>(*f); });
  frame.RegisterDialog("EmbeddedMedia",
                       [f](const std::string&) { Show<ui::EmbeddedMediaDialog>(*f); });
  // The special-effects picker opens this one by name; the dialog writes its own tag.
  frame.RegisterDialog("BGSound", [f](const std::string&) { Show<ui::BackgroundSoundDialog>(*f); });
}

}  // namespace tessarine
