// The style editor and the style manager: the Insert menu's style sheet submenu, and the
// manager that opens on a style sheet.

#include <QAction>
#include <QMenu>

#include "core/Application.h"
#include "platform/DocumentWindow.h"
#include "platform/MessageBoxes.h"
#include "styles/StyleEditor.h"
#include "styles/StyleManager.h"
#include "ui/Commands.h"
#include "ui/MainWindow.h"
#include "ui/styles/StyleEditorDialog.h"
#include "ui/styles/StyleManagerDialog.h"

namespace tessarine {

namespace {

void ShowEditor(MainWindow& frame, std::int16_t mode) {
  Application* app = frame.App();
  if (!app || !app->ActiveDocument()) return;
  app->styles.StyleDialogMode = mode;
  ui::StyleEditorDialog(*app, mode, "", &frame).exec();
}

void ShowManager(MainWindow& frame, std::int16_t mode) {
  Application* app = frame.App();
  if (!app) return;
  DocumentWindow* w = app->ActiveDocument();
  if (!w) return;
  if (mode == kApplyStyle && IsStyleSheetCaption(w->Caption())) {
    app->messages.Show(kNoApplyInStyleSheet, MsgButtons::OK, MsgIcon::Exclamation, app->title);
    return;
  }
  ui::StyleManagerDialog::Run(*app, mode, &frame);
}

}  // namespace

void BuildStyleCommands(MainWindow& frame) {
  MainWindow* f = &frame;
  QAction* main = frame.LiveCommand("mnuCSSMain", true, [] {});
  if (!main) return;
  auto* sub = new QMenu(&frame);
  sub->setObjectName("mnuCSSsub");
  frame.AddCommand(sub, "mnuCSSsub0", "&Add Style...", true,
                   [f] { ShowEditor(*f, kAddStyleToDocument); });
  frame.AddCommand(sub, "mnuCSSsub1", "A&pply Style...", true,
                   [f] { ShowManager(*f, kApplyStyle); });
  frame.AddCommand(sub, "mnuCSSsub2", "&Insert Inline Style...", true,
                   [f] { ShowEditor(*f, kInsertInlineStyle); });
  sub->addSeparator()->setObjectName("mnuCSSsub3");
  frame.AddCommand(sub, "mnuCSSsub4", "Style &Manager...", true,
                   [f] { ShowManager(*f, kAddStyleToDocument); });
  main->setMenu(sub);

  frame.OnSettingsLoaded([f] {
    if (Application* app = f->App())
      app->files.showStyleManager = [f](DocumentWindow&) { ShowManager(*f, kAddStyleToDocument); };
  });
}

}  // namespace tessarine
