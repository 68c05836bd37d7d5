#include <Qsci/qsciprinter.h>

#include <QAction>
#include <QMenu>

#include "core/Application.h"
#include "core/Preview.h"
#include "ui/Commands.h"
#include "ui/DocumentForm.h"
#include "ui/MainWindow.h"
#include "ui/Printing.h"

namespace tessarine {

namespace {

void Print(MainWindow& frame) {
  Application* app = frame.App();
  if (!app || !ConfirmPrint(*app)) return;
  auto* form = dynamic_cast<DocumentForm*>(app->ActiveDocument());
  if (!form) return;
  QsciPrinter printer;
  PrintDocument(&frame, form->Editor(), printer);
}

}  // namespace

void BuildProgramCommands(MainWindow& frame) {
  MainWindow* f = &frame;
  auto browser = [f](const char* key) {
    return [f, key] {
      if (f->App()) ViewInBrowser(*f->App(), key);
    };
  };
  auto program = [f](const char* which) {
    return [f, which] {
      if (f->App()) OpenExternalProgram(*f->App(), which);
    };
  };

  QMenu* view = frame.Menu("mnuView");
  view->addSeparator();
  frame.AddCommand(view, "mnuBrowser1", "View page with Browser &1", true, browser("Browser"));
  frame.AddCommand(view, "mnuBrowser2", "View page with Browser &2", true, browser("Browser2"));
  QMenu* tools = frame.Menu("mnuTools");
  tools->addSeparator();
  frame.AddCommand(tools, "mnuImageMapper", "&Graphics Program...", false, program("Graphics"));
  frame.AddCommand(tools, "mnuFTP", "&FTP Client...", false, program("FTP"));

  frame.BindButton("tbrTools", "Browser1", browser("Browser"));
  frame.BindButton("tbrTools", "Browser2", browser("Browser2"));
  frame.BindButton("tbrTools", "FTP", program("FTP"));
  frame.BindButton("tbrFile", "Print", [f] { Print(*f); });

  // Yes in the failure messages opens Preferences at the programs' page.
  frame.OnSettingsLoaded([f] {
    f->App()->programs.OpenPreferences = [f] { f->ShowDialog("Preferences:Previewers/Apps"); };
  });
}

}  // namespace tessarine
