// Lists, text conversion and the table wizard.

#include <QAction>
#include <QMenu>

#include "core/Application.h"
#include "ui/Commands.h"
#include "ui/MainWindow.h"
#include "ui/wizards/ConvertTextDialog.h"
#include "ui/wizards/ListDialogs.h"
#include "ui/wizards/TableEditorDialog.h"
#include "ui/wizards/TableWizardDialog.h"
#include "wizards/TableWizard.h"

namespace tessarine {

namespace {

template <class Dialog>
void Show(MainWindow& frame) {
  Application* app = frame.App();
  if (!app || !app->ActiveDocument()) return;
  Dialog(*app, &frame).exec();
}

// The two stages: the table's properties, then the grid that writes it.
void ShowTableWizard(MainWindow& frame) {
  Application* app = frame.App();
  if (!app || !app->ActiveDocument()) return;
  ui::TableWizardDialog first(*app, UseBeginnerTableWizard(app->store), &frame);
  if (first.exec() != QDialog::Accepted) return;
  ui::TableEditorDialog(*app, first.Setup(), &frame).exec();
}

QMenu* SubMenu(QMenu* parent, QAction* before, const char* name, const char* caption) {
  auto* m = new QMenu(caption, parent);
  m->setObjectName(name);
  m->menuAction()->setObjectName(name);
  parent->insertMenu(before, m);
  return m;
}

}  // namespace

void BuildListTableCommands(MainWindow& frame) {
  MainWindow* f = &frame;
  auto numbered = [f] { Show<ui::NumberedListDialog>(*f); };
  auto bulleted = [f] { Show<ui::BulletedListDialog>(*f); };
  auto convert = [f] { Show<ui::ConvertTextDialog>(*f); };

  QMenu* insert = frame.Menu("mnuInsert");
  QMenu* table = insert->findChild<QMenu*>("mnuTable");
  QMenu* list = SubMenu(insert, table ? table->menuAction() : nullptr, "mnuList",
                        "Bulleted and &Numbered Lists");
  frame.AddCommand(list, "mnuNumberedList", "&Numbered List...", true, numbered);
  frame.AddCommand(list, "mnuBulletedList", "&Bulleted List...", true, bulleted);
  frame.AddCommand(list, "mnuDescriptiveList", "&Descriptive List...", true,
                   [f] { Show<ui::DescriptiveListDialog>(*f); });
  list->addSeparator();
  frame.AddCommand(list, "mnuListCnvrt", "&Convert Text to List...", true, convert);
  if (table) {
    table->addSeparator();
    frame.AddCommand(table, "TblCnvrt", "&Convert Text to Table...", true, convert);
  }
  if (QMenu* tools = frame.Menu("mnuTools"))
    frame.AddCommand(tools, "HTMLCnvrt", "Convert Text to &HTML List or Table...", true, convert);

  frame.LiveCommand("mnuTableMaker", true, [f] { ShowTableWizard(*f); });
  frame.BindButton("tbrInsert", "Table Wizard", [f] { ShowTableWizard(*f); });
  frame.BindButton("tbrInsert", "Bulleted List", bulleted);
  frame.BindButton("tbrInsert", "Numbered List", numbered);
  frame.RegisterDialog("TableWizard", [f](const std::string&) { ShowTableWizard(*f); });
}

}  // namespace tessarine
