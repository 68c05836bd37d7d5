// Page properties and Edit Tag.

#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "core/TagCommands.h"
#include "core/TextServices.h"
#include "framesforms/Applet.h"
#include "framesforms/AppletParameter.h"
#include "platform/DocumentWindow.h"
#include "ui/Commands.h"
#include "ui/MainWindow.h"
#include "ui/framesforms/AppletDialog.h"
#include "ui/wizards/FormatTextDialog.h"
#include "ui/wizards/HorizontalLineDialog.h"
#include "ui/wizards/HyperlinkDialog.h"
#include "ui/wizards/ImageDialog.h"
#include "ui/wizards/PagePropertiesDialog.h"
#include "wizards/EditTag.h"
#include "wizards/FormatChar.h"
#include "wizards/HorizontalLine.h"
#include "wizards/Hyperlink.h"
#include "wizards/ImageTag.h"

namespace tessarine {

namespace {

// "Web Page Properties" on the active document; `body`, from Edit Tag, fills it over what the
// dialog read itself.
void ShowPageProperties(MainWindow& frame, const BodyTagFields* body = nullptr) {
  Application* app = frame.App();
  if (!app || !app->ActiveDocument()) return;
  ui::PagePropertiesDialog dialog(*app, &frame);
  if (body) dialog.SetBodyFields(*body);
  dialog.exec();
}

// The font tag's start is rebuilt in place: its end tag stays where it is.
void EditFontTag(MainWindow& frame, const std::string& tag) {
  Application& app = *frame.App();
  FormatChar font;
  FillFormatChar(tag, font);
  ui::FormatTextDialog dialog(app, &frame);
  dialog.SetModel(font);
  app.textServices.ReplaceSelectionOnce = true;
  if (dialog.exec() != QDialog::Accepted) app.textServices.ReplaceSelectionOnce = false;
}

void EditHorizontalLine(MainWindow& frame, const std::string& tag) {
  Application& app = *frame.App();
  HorizontalLine line;
  FillHorizontalLine(tag, line);
  app.wizards.HeadInsert.clear();
  app.wizards.BodyInsert.clear();
  ui::HorizontalLineDialog dialog(app, &frame);
  dialog.SetModel(line);
  dialog.exec();
  mnuHR_Finish(app);
}

void EditApplet(MainWindow& frame, const std::string& tag) {
  Application& app = *frame.App();
  AppletInputs applet;
  FillApplet(tag, applet);
  ui::AppletDialog dialog(app, &frame);
  dialog.SetModel(applet);
  dialog.exec();
}

// The parameter line takes the selected tag's place.
void EditAppletParameter(MainWindow& frame, const std::string& tag) {
  Application& app = *frame.App();
  AppletParameter parameter;
  FillAppletParameter(tag, parameter);
  ui::AppletParameterDialog dialog(app, &frame);
  dialog.SetParameter(parameter);
  if (dialog.exec() == QDialog::Accepted) HandOverText(app, dialog.Line(), true);
}

// The tag before the caret back into its wizard; the wizard's text replaces the selected tag.
void EditTag(MainWindow& frame) {
  Application* app = frame.App();
  DocumentWindow* window = app ? app->ActiveDocument() : nullptr;
  if (!window) return;
  const EditTagRequest request = EditTag_Begin(*app, *window);
  switch (request.wizard) {
    case TagWizard::Image: {
      ImageTag image;
      FillImage(request.currentTag, image);
      ui::ImageDialog(*app, &frame, image).exec();
      break;
    }
    case TagWizard::Hyperlink: {
      Hyperlink link;
      FillHyperlink(request.currentTag, request.linkText, link);
      ui::HyperlinkDialog(*app, &frame, link).exec();
      break;
    }
    case TagWizard::PageProperties: {
      BodyTagFields body;
      FillBody(request.currentTag, body);
      ShowPageProperties(frame, &body);
      break;
    }
    case TagWizard::FormatChar:
      EditFontTag(frame, request.currentTag);
      break;
    case TagWizard::HorizontalLine:
      EditHorizontalLine(frame, request.currentTag);
      break;
    case TagWizard::Applet:
      EditApplet(frame, request.currentTag);
      break;
    case TagWizard::Parameter:
      EditAppletParameter(frame, request.currentTag);
      break;
    case TagWizard::None:
      break;
  }
}

// The menu entry and the toolbar button; a new page opens it through the button.
void BuildPagePropertiesCommands(MainWindow& frame) {
  MainWindow* f = &frame;
  frame.AddCommand(frame.Menu("mnuFormat"), "mnuPageProps", "Pa&ge Properties...", true,
                   [f] { ShowPageProperties(*f); });
  frame.BindButton("tbrInsert", "Page Properties", [f] { ShowPageProperties(*f); });
  frame.RegisterDialog("PageProperties", [f](const std::string&) { ShowPageProperties(*f); });
}

}  // namespace

void BuildEditTagCommands(MainWindow& frame) {
  MainWindow* f = &frame;
  // The Edit menu is also the text's right-click menu; its E is Redo's, so D is the key.
  frame.AddCommand(frame.Menu("mnuEdit"), "mnuEditTag", "E&dit Tag...", true, [f] { EditTag(*f); });
  BuildPagePropertiesCommands(frame);
}

}  // namespace tessarine
