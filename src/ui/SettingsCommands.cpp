// Preferences, the menu systems, the start screen and help.

#include <QAction>
#include <QMenu>

#include "core/Application.h"
#include "settings/MenuSystem.h"
#include "ui/Commands.h"
#include "ui/MainWindow.h"
#include "ui/settings/CustomMenuDialog.h"
#include "ui/settings/DailyTipDialog.h"
#include "ui/settings/DocumentMenus.h"

namespace tessarine {

namespace {

// The menu systems on the document windows, and the custom menus' dialog by name. Opened
// on its own, the dialog's choice is kept at once while the custom menus are in use.
void BuildMenuSystemCommands(MainWindow& frame) {
  MainWindow* f = &frame;
  BuildDocumentMenus(frame);
  frame.RegisterDialog("CustomMenu", [f](const std::string&) {
    Application* app = f->App();
    if (!app || !ShowCustomMenuDialog(*app, f)) return;
    if (app->settings.MenuSystem == "custom") SaveMenuSystem(app->settings, app->store, "custom");
  });
}

// Help, Tip of the Day, before About.
void BuildDailyTipCommands(MainWindow& frame) {
  MainWindow* f = &frame;
  QMenu* help = frame.Menu("mnuHelp");
  QAction* tip = frame.AddCommand(help, "mnuTipOfTheDay", "&Tip of the Day...", false,
                                  [f] { ShowDailyTip(*f); });
  if (QAction* about = frame.Command("mnuAbout")) {
    help->removeAction(tip);
    help->insertAction(about, tip);
  }
  frame.RegisterDialog("DailyTip", [f](const std::string&) { ShowDailyTip(*f); });
}

}  // namespace

void BuildSettingsCommands(MainWindow& frame) {
  BuildMenuSystemCommands(frame);
  BuildDailyTipCommands(frame);
}

}  // namespace tessarine
