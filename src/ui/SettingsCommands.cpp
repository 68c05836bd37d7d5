// Preferences, the menu systems, the start screen and help.

#include <QAction>
#include <QMdiArea>
#include <QMdiSubWindow>

#include "core/Application.h"
#include "core/Styles.h"
#include "ui/Commands.h"
#include "ui/DocumentForm.h"
#include "ui/MainWindow.h"
#include "ui/SciEdit.h"
#include "ui/settings/PreferencesDialog.h"

namespace tessarine {

namespace {

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
  BuildPreferencesCommands(frame);
}

}  // namespace tessarine
