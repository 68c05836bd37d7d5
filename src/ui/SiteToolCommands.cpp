// Access-log statistics, the validator and cleaner, the stripper and spelling.

#include <QMenu>

#include <filesystem>

#include "core/Application.h"
#include "sitetools/PageToolCommands.h"
#include "ui/Commands.h"
#include "ui/MainWindow.h"
#include "ui/sitetools/AccessStatsDialog.h"
#include "ui/sitetools/ErrorListPanel.h"
#include "ui/sitetools/SpellDialog.h"
#include "ui/sitetools/ValidateDialog.h"

namespace tessarine {

void BuildSiteToolCommands(MainWindow& frame) {
  MainWindow* f = &frame;
  auto* errors = new ErrorListPanel(frame);

  auto validate = [f, errors] {
    if (!f->App()) return;
    ValidateDialog dialog(*f->App(), *errors, f);
    dialog.exec();
  };
  auto spell = [f] {
    Application* app = f->App();
    if (!app) return;
    const auto custom = std::filesystem::path(app->programFolder) / "custom.dic";
    SpellDialog dialog(QString::fromStdString(custom.string()), f);
    SpellCheckCommand(*app, dialog);
  };
  auto stats = [f] {
    if (!f->App()) return;
    AccessStatsDialog dialog(*f->App(), f);
    dialog.exec();
  };
  auto strip = [f] {
    if (f->App()) HtmlStripCommand(*f->App());
  };

  QMenu* tools = frame.Menu("mnuTools");
  tools->addSeparator();
  frame.AddCommand(tools, "mnuSpellcheck", "&Spelling...", true, spell);
  frame.AddCommand(tools, "mnuValidate", "&Validate HTML...", true, validate);
  frame.AddCommand(tools, "mnuHTMLStrip", "Stri&p HTML...", true, strip);
  frame.AddCommand(tools, "mnuStats", "Web Page S&tatistics...", false, stats);
  frame.BindButton("tbrTools", "Spellcheck", spell);
  frame.BindButton("tbrTools", "Validate", validate);
  frame.RegisterDialog("Validate", [validate](const std::string&) { validate(); });
  frame.RegisterDialog("Stats", [stats](const std::string&) { stats(); });
}

}  // namespace tessarine
