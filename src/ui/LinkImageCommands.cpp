// Links, anchors, mail links, images and image maps.

#include <QAction>

#include "conventions/SaveWarning.h"
#include "core/Application.h"
#include "ui/Commands.h"
#include "ui/MainWindow.h"
#include "ui/wizards/AnchorDialog.h"
#include "ui/wizards/HyperlinkDialog.h"
#include "ui/wizards/ImageDialog.h"
#include "ui/wizards/ImageMapDialog.h"
#include "ui/wizards/MailLinkDialog.h"
#include "wizards/MailLink.h"

namespace tessarine {

namespace {

// The wizards that write paths relative to the document first advise saving it.
void ShowHyperlink(MainWindow& frame) {
  Application* app = frame.App();
  if (!app || !app->ActiveDocument()) return;
  CheckSaveWarning(*app);
  ui::HyperlinkDialog(*app, &frame).exec();
}

void ShowAnchor(MainWindow& frame) {
  Application* app = frame.App();
  if (!app || !app->ActiveDocument()) return;
  ui::AnchorDialog(*app, &frame).exec();
}

void ShowMailLink(MainWindow& frame) {
  Application* app = frame.App();
  if (!app || !app->ActiveDocument()) return;
  ui::MailLinkDialog(*app, &frame).exec();
  MailLink_Finish(*app);
}

void ShowImage(MainWindow& frame) {
  Application* app = frame.App();
  if (!app || !app->ActiveDocument()) return;
  CheckSaveWarning(*app);
  ui::ImageDialog(*app, &frame).exec();
}

void ShowImageMap(MainWindow& frame) {
  Application* app = frame.App();
  if (!app || !app->ActiveDocument()) return;
  CheckSaveWarning(*app);
  ui::ImageMapDialog(*app, &frame).exec();
}

}  // namespace

void BuildLinkImageCommands(MainWindow& frame) {
  MainWindow* f = &frame;
  frame.LiveCommand("mnuHypertext", true, [f] { ShowHyperlink(*f); });
  frame.LiveCommand("mnuAnchor", true, [f] { ShowAnchor(*f); });
  frame.LiveCommand("mnuEmailLink", true, [f] { ShowMailLink(*f); });
  frame.LiveCommand("Graphics", true, [f] { ShowImage(*f); });
  frame.LiveCommand("mnuImageMap", true, [f] { ShowImageMap(*f); });
  frame.BindButton("tbrInsert", "Hyperlink", [f] { ShowHyperlink(*f); });
  frame.BindButton("tbrInsert", "Image", [f] { ShowImage(*f); });
  frame.BindButton("tbrInsert", "Anchor", [f] { ShowAnchor(*f); });
  frame.RegisterDialog("Hyperlink", [f](const std::string&) { ShowHyperlink(*f); });
  frame.RegisterDialog("Anchor", [f](const std::string&) { ShowAnchor(*f); });
  frame.RegisterDialog("MailLink", [f](const std::string&) { ShowMailLink(*f); });
  frame.RegisterDialog("Image", [f](const std::string&) { ShowImage(*f); });
  frame.RegisterDialog("ImageMap", [f](const std::string&) { ShowImageMap(*f); });
}

}  // namespace tessarine
