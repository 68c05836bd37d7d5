// Preferences, the menu systems, the start screen and help.

#include <QAction>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>

#include "core/Application.h"
#include "core/Styles.h"
#include "settings/MenuSystem.h"
#include "ui/Commands.h"
#include "ui/DocumentForm.h"
#include "ui/MainWindow.h"
#include "ui/SciEdit.h"
#include "ui/settings/CustomMenuDialog.h"
#include "ui/settings/DailyTipDialog.h"
#include "ui/settings/DocumentMenus.h"
#include "ui/settings/PreferencesDialog.h"

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

// The running windows follow the settings just loaded: fonts, colours, word wrap and the
// side panel. The menu system waits for the next document window.
void ApplyPreferences(MainWindow& frame) {
  Application* app = frame.App();
  if (!app) return;
  const SettingsVars& s = app->settings;
  for (QMdiSubWindow* sub : frame.MdiArea()->subWindowList()) {
    auto* form = qobject_cast<DocumentForm*>(sub->widget());
    if (!form) continue;
    form->ApplySettings();
    form->Editor().SetWordWrap(s.WordWrap);
    form->Editor().SetBaseStyle(MakeStyle(StyleKind::Plain, s.Bold));
  }
  if (QAction* wrap = frame.Command("mnuWordWrap")) wrap->setChecked(s.WordWrap);
  frame.PlaceSidePanel();
}

void ShowPreferences(MainWindow& frame, const std::string& page) {
  Application* app = frame.App();
  if (!app) return;
  ui::PreferencesDialog dialog(*app, &frame);
  if (!page.empty()) dialog.ShowPage(QString::fromStdString(page));
  if (dialog.exec() == QDialog::Accepted) ApplyPreferences(frame);
}

void BuildPreferencesCommands(MainWindow& frame) {
  MainWindow* f = &frame;
  frame.LiveCommand("mnuPreferences", false, [f] { ShowPreferences(*f, ""); });
  // "Preferences:Custom buttons" opens it at that page.
  frame.RegisterDialog("Preferences", [f](const std::string& page) { ShowPreferences(*f, page); });
}

}  // namespace

void BuildSettingsCommands(MainWindow& frame) {
  BuildMenuSystemCommands(frame);
  BuildDailyTipCommands(frame);
  BuildPreferencesCommands(frame);
}

}  // namespace tessarine
