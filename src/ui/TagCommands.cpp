// The Insert and Format menus, the tag buttons of the toolbars and the shortcut bar.

#include <Qsci/qscicommand.h>
#include <Qsci/qscicommandset.h>

#include <QAction>
#include <QMenu>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>

#include "core/Application.h"
#include "core/TagCommands.h"
#include "core/TextServices.h"
#include "platform/SettingsStore.h"
#include "settings/Settings.h"
#include "ui/Commands.h"
#include "ui/DocumentForm.h"
#include "ui/MainWindow.h"
#include "ui/SciEdit.h"
#include "ui/wizards/CharacterPickerDialog.h"
#include "ui/wizards/DateStampDialog.h"
#include "ui/wizards/FormatTextDialog.h"
#include "ui/wizards/HorizontalLineDialog.h"
#include "ui/wizards/MetaTagsDialog.h"
#include "ui/wizards/ScriptTagsDialog.h"
#include "ui/wizards/ShortcutBar.h"
#include "wizards/DateTime.h"
#include "wizards/FormatChar.h"
#include "wizards/HorizontalLine.h"
#include "wizards/Metatags.h"
#include "wizards/ScriptTags.h"

namespace tessarine {

namespace {

// Shows the dialog a command asked for, and finishes what follows it.
void ShowTagDialog(MainWindow& frame, const std::string& name) {
  Application* app = frame.App();
  if (!app || name.empty()) return;
  if (name == "FormatChar") {
    ui::FormatTextDialog(*app, &frame).exec();
  } else if (name == "HorizontalLine") {
    ui::HorizontalLineDialog(*app, &frame).exec();
    mnuHR_Finish(*app);
  } else if (name == "ScriptTags") {
    ui::ScriptTagsDialog(*app, &frame).exec();
  } else if (name == "Vowels") {
    ui::CharacterPickerDialog(*app, &frame).exec();
  } else if (name == "DateTime") {
    ui::DateStampDialog(*app, &frame).exec();
  } else if (name == "Metatags") {
    WizardState& w = app->wizards;
    if (ui::MetaTagsDialog(*app, &frame).exec() != QDialog::Accepted) return;
    std::string head = w.MetaDescription + w.MetaKeywords + w.MetaEffects, body;
    // The last line end is the head's own.
    if (head.size() >= 2) head.resize(head.size() - 2);
    if (!head.empty()) InsertInHeadAndBody(*app, head, body);
  } else {
    frame.ShowDialog(name);
  }
}

// Entries whose dialogs come later: present, dimmed.
void AddLater(MainWindow& frame, QMenu* menu, const char* name, const char* caption) {
  QAction* a = frame.AddCommand(menu, name, caption, false, [] {});
  a->setEnabled(false);
}

QMenu* SubMenu(QMenu* parent, const char* name, const char* caption) {
  QMenu* m = parent->addMenu(caption);
  m->setObjectName(name);
  m->menuAction()->setObjectName(name);
  return m;
}

void AddArray(MainWindow& frame, QMenu* menu, const std::string& arrayName, int from = -1) {
  MainWindow* f = &frame;
  for (const TagMenuArray& a : TagMenuArrays()) {
    if (a.name != arrayName) continue;
    for (std::size_t i = 0; i < a.captions.size(); ++i) {
      const int index = a.firstIndex + static_cast<int>(i);
      if (index < from) continue;
      if (a.captions[i].empty()) {
        menu->addSeparator();
        continue;
      }
      const QString name = QString::fromStdString(a.name) + QString::number(index);
      frame.AddCommand(menu, name, QString::fromStdString(a.captions[i]), true,
                       [f, arrayName, index] {
                         if (f->App()) RunTagMenu(*f->App(), arrayName, index);
                       });
    }
  }
}

void BuildFormatMenu(MainWindow& frame) {
  MainWindow* f = &frame;
  QMenu* format = frame.Menu("mnuFormat");
  frame.AddCommand(format, "mnuFont", "&Font...", true, [f] { ShowTagDialog(*f, "FormatChar"); });
  AddArray(frame, SubMenu(format, "mnuPhysicalStylesMain", "&Physical Styles"),
           "mnuPhysicalStyles");
  AddArray(frame, SubMenu(format, "mnuLogicalStylesMain", "&Logical Styles"), "mnuLogicalStyles");
  AddArray(frame, SubMenu(format, "mnuHeadings", "&Headings"), "mnuHeadingsSub");
  QMenu* paragraph = SubMenu(format, "mnuParagraph", "P&aragraph");
  AddArray(frame, SubMenu(paragraph, "mnuParagraphSub0", "&Align"), "mnuPAlignSub");
  AddArray(frame, paragraph, "mnuParagraphSub", 1);
  QMenu* other = SubMenu(format, "mnuOtherHTML", "&Other HTML tags");
  AddArray(frame, SubMenu(other, "mnuOtherHTMLSub0", "&Structure Tags"), "mnuStructureTagsSub");
  AddArray(frame, other, "mnuOtherHTMLSub", 1);

  frame.Command("mnuPhysicalStyles0")->setShortcut(QKeySequence("Ctrl+B"));
  frame.Command("mnuPhysicalStyles1")->setShortcut(QKeySequence("Ctrl+I"));
  frame.Command("mnuPhysicalStyles6")->setShortcut(QKeySequence("Ctrl+U"));
  frame.Command("mnuOtherHTMLSub1")->setShortcut(QKeySequence("Ctrl+K"));
}

void BuildInsertMenu(MainWindow& frame) {
  MainWindow* f = &frame;
  auto run = [f](const char* name) {
    return [f, name] {
      if (f->App()) RunInsertCommand(*f->App(), name);
    };
  };
  QMenu* insert = frame.Menu("mnuInsert");
  AddLater(frame, insert, "mnuHypertext", "&Hyperlink...");
  AddLater(frame, insert, "mnuAnchor", "&Anchor...");
  AddLater(frame, insert, "mnuEmailLink", "E-mail Lin&k...");
  AddLater(frame, insert, "Graphics", "&Image...");
  AddLater(frame, insert, "mnuImageMap", "Ima&ge Map...");
  insert->addSeparator();
  frame
      .AddCommand(insert, "mnuHR", "Hori&zontal Line", true,
                  [f] {
                    if (f->App()) ShowTagDialog(*f, mnuHR(*f->App()));
                  })
      ->setShortcut(QKeySequence("Ctrl+H"));
  frame.AddCommand(insert, "mnuSpecialCharacters", "&Special Characters...", true,
                   [f] { ShowTagDialog(*f, "Vowels"); });
  frame.AddCommand(insert, "mnuDateTime", "&Date/Time...", true,
                   [f] { ShowTagDialog(*f, "DateTime"); });
  frame.AddCommand(insert, "mnuMetaTags", "M&eta Tags...", true,
                   [f] { ShowTagDialog(*f, "Metatags"); });
  frame.AddCommand(insert, "mnuListItem", "List Ite&m - <LI>", true, run("mnuListItem"));
  insert->addSeparator()->setObjectName("sep51");
  QMenu* table = SubMenu(insert, "mnuTable", "&Table");
  frame.AddCommand(table, "mnuTableTable", "&Table - <TABLE>", true, run("mnuTableTable"));
  frame.AddCommand(table, "mnuTableRow", "Table &Row - <TR>", true, run("mnuTableRow"));
  frame.AddCommand(table, "mnuTableData", "Table &Data - <TD>", true, run("mnuTableData"));
  frame.AddCommand(table, "mnuTableHeader", "Table &Header - <TH>", true, run("mnuTableHeader"));
  AddLater(frame, insert, "mnuTableMaker", "Table &Wizard...");
  AddLater(frame, insert, "mnuForm", "&Form Wizard...");
  AddLater(frame, insert, "mnuFrameMaker", "F&rame Wizard...");
  AddLater(frame, insert, "mnuCSSMain", "St&yle Sheets...");
  insert->addSeparator()->setObjectName("sep4");
  QMenu* scripting = SubMenu(insert, "mnuScriptingMain", "Scri&pting");
  frame.AddCommand(scripting, "mnuScriptTags", "&Script Tags...", true,
                   [f] { ShowTagDialog(*f, "ScriptTags"); });
  AddLater(frame, insert, "mnuJavaApplet", "&Java Applet...");
  AddLater(frame, insert, "mnuembed", "Em&bedded Media...");
  AddLater(frame, insert, "mnuSpecialEffectsMain", "Special Effe&cts...");

  frame.AddCommand(frame.Menu("mnuEdit"), "mnuRepeat", "Repeat &Last Command", true, [f] {
    if (f->App()) mnuRepeat(*f->App());
  });
}

void BuildButtons(MainWindow& frame) {
  MainWindow* f = &frame;
  for (const char* key : {"Bold", "Italic", "Underline", "Format", "Align Left", "Align Center",
                          "Align Right", "Justify", "Indent", "BR", "HR", "Comment"})
    frame.BindButton("tbrFormat", key, [f, key] {
      if (f->App()) ShowTagDialog(*f, tbrFormatClick(*f->App(), key));
    });

  // The line break's drop-down: breaks that clear the margins.
  auto* brMenu = new QMenu(f);
  brMenu->setObjectName("tbrFormatBRMenu");
  const std::pair<const char*, const char*> clears[] = {
      {"BRClearLeft", "Clear=Left"}, {"BRClearRight", "Clear=Right"}, {"BRClearAll", "Clear=All"}};
  for (const auto& [key, caption] : clears) {
    QAction* a = brMenu->addAction(caption);
    a->setObjectName(key);
    QObject::connect(a, &QAction::triggered, f, [f, key = key] {
      if (f->App()) tbrBRMenuClick(*f->App(), key);
    });
  }
  if (QAction* br = frame.Button("tbrFormat", "BR")) {
    br->setMenu(brMenu);
    if (auto* b = qobject_cast<QToolButton*>(frame.Toolbar("tbrFormat")->widgetForAction(br)))
      b->setPopupMode(QToolButton::MenuButtonPopup);
  }

  frame.BindButton("tbrInsert", "Special Characters", [f] { ShowTagDialog(*f, "Vowels"); });
  frame.BindButton("tbrTools", "Color Picker", [f] {
    if (f->App()) ColorPickerClick(*f->App());
  });
}

void BuildShortcutBar(MainWindow& frame) {
  MainWindow* f = &frame;
  auto* bar = new ui::ShortcutBar;
  frame.SidePanel()->addTab(bar, "Shortcuts");
  bar->OnItemClick([f](const std::string& key) {
    if (f->App()) ShowTagDialog(*f, ShortcutBarClick(*f->App(), key));
  });
  MemorySettingsStore none;
  bar->SetGroups(ShortcutBarGroups(none));
  frame.OnSettingsLoaded([f, bar] {
    SettingsStore& store = f->App()->store;
    const QSignalBlocker quiet(bar);  // only the user's choice of group is remembered
    bar->SetGroups(ShortcutBarGroups(store));
    const int group =
        static_cast<int>(Val(store.GetSetting("Miscellaneous", "DefaultShortcutBarGroup", "")));
    if (group >= 1 && group <= bar->count()) bar->setCurrentIndex(group - 1);
  });
  QObject::connect(bar, &QToolBox::currentChanged, f,
                   [f](int index) { f->SetShortcutBarGroup(std::to_string(index + 1)); });
}

// The edit control would claim some of the tag shortcuts for its own commands (Ctrl+U
// lower-cases the selection): the menu's meaning wins.
void FreeTagShortcuts(DocumentForm& form) {
  QsciCommandSet* commands = form.Editor().standardCommands();
  for (QKeyCombination k : {Qt::CTRL | Qt::Key_B, Qt::CTRL | Qt::Key_I, Qt::CTRL | Qt::Key_U,
                            Qt::CTRL | Qt::Key_K, Qt::CTRL | Qt::Key_H}) {
    const int key = k.toCombined();
    while (QsciCommand* c = commands->boundTo(key)) {
      if (c->key() == key) c->setKey(0);
      if (c->alternateKey() == key) c->setAlternateKey(0);
    }
  }
}

}  // namespace

void BuildTagCommands(MainWindow& frame) {
  BuildFormatMenu(frame);
  BuildInsertMenu(frame);
  BuildButtons(frame);
  BuildShortcutBar(frame);
  frame.OnNewDocumentWindow(FreeTagShortcuts);
}

}  // namespace tessarine
