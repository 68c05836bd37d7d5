// The look of the window: toolbar icons from the desktop's theme and the toolbar style,
// the editor's view choices, documents as windows or tabs, the Window menu's list of
// documents, and About.

#include <Qsci/qsciglobal.h>

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QIcon>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMessageBox>
#include <QStandardPaths>
#include <QTabBar>
#include <QToolBar>

#include "core/Application.h"
#include "core/Documents.h"
#include "platform/SettingsStore.h"
#include "ui/Commands.h"
#include "ui/DialogTabKeys.h"
#include "ui/DocumentForm.h"
#include "ui/EditorExtras.h"
#include "ui/MainWindow.h"

namespace tessarine {
namespace {

// Freedesktop names first, then older names some themes still use.
struct ButtonIcon {
  const char* key;
  std::initializer_list<const char*> names;
};
const ButtonIcon kButtonIcons[] = {
    {"New", {"document-new"}},
    {"Open", {"document-open"}},
    {"Save", {"document-save"}},
    {"Print", {"document-print"}},
    {"Cut", {"edit-cut"}},
    {"Copy", {"edit-copy"}},
    {"Paste", {"edit-paste"}},
    {"Find", {"edit-find"}},
    {"Bold", {"format-text-bold"}},
    {"Italic", {"format-text-italic"}},
    {"Underline", {"format-text-underline"}},
    {"Format", {"preferences-desktop-font", "font-x-generic"}},
    {"Align Left", {"format-justify-left"}},
    {"Align Center", {"format-justify-center"}},
    {"Align Right", {"format-justify-right"}},
    {"Justify", {"format-justify-fill"}},
    {"Indent", {"format-indent-more"}},
    {"BR", {"insert-text", "go-jump"}},
    {"HR", {"insert-horizontal-rule", "list-remove"}},
    {"Comment", {"insert-text", "accessories-text-editor"}},
    {"Page Properties", {"document-properties"}},
    {"Hyperlink", {"insert-link", "emblem-web", "internet-web-browser"}},
    {"Image", {"insert-image", "image-x-generic"}},
    {"Anchor", {"bookmark-new"}},
    {"Special Characters", {"accessories-character-map"}},
    {"Table Wizard", {"insert-table", "x-office-spreadsheet"}},
    {"Frames", {"window-new"}},
    {"Form Wizard", {"x-office-document-template", "x-office-document"}},
    {"Bulleted List", {"format-list-unordered", "x-office-document"}},
    {"Numbered List", {"format-list-ordered", "text-x-generic"}},
    {"Browser1", {"internet-web-browser", "web-browser"}},
    {"Browser2", {"web-browser", "internet-web-browser"}},
    {"Color Tags", {"view-refresh"}},
    {"Color Picker", {"color-select", "preferences-desktop-theme"}},
    {"Spellcheck", {"tools-check-spelling", "accessories-dictionary", "edit-find-replace"}},
    {"Check Links", {"network-wired", "system-search"}},
    {"Validate", {"dialog-information"}},
    {"FTP", {"folder-remote", "network-server"}},
};

const char* const kToolbars[] = {"tbrFile", "tbrFormat", "tbrInsert", "tbrTools"};

QIcon ThemeIcon(std::initializer_list<const char*> names) {
  for (const char* n : names)
    if (QIcon::hasThemeIcon(n)) return QIcon::fromTheme(n);
  return {};
}

void SetButtonIcons(MainWindow& frame) {
  // A desktop without a theme of its own (or one without these icons) falls back to one
  // the install provides.
  QStringList paths = QIcon::themeSearchPaths();
  for (const QString& data : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
    if (!paths.contains(data + "/icons")) paths << data + "/icons";
  QIcon::setThemeSearchPaths(paths);
  if (QIcon::themeName().isEmpty()) QIcon::setThemeName("Tango");
  if (QIcon::fallbackThemeName().isEmpty() || QIcon::fallbackThemeName() == "hicolor")
    QIcon::setFallbackThemeName("Tango");
  for (const char* bar : kToolbars)
    for (const ButtonIcon& b : kButtonIcons)
      if (QAction* a = frame.Button(bar, b.key)) a->setIcon(ThemeIcon(b.names));
}

// The toolbar style: "icons", "beside" or "text".
void SetToolbarStyle(MainWindow& frame, const QString& style) {
  const Qt::ToolButtonStyle s = style == "text"     ? Qt::ToolButtonTextOnly
                                : style == "beside" ? Qt::ToolButtonTextBesideIcon
                                                    : Qt::ToolButtonIconOnly;
  for (const char* bar : kToolbars)
    if (QToolBar* t = frame.Toolbar(bar)) t->setToolButtonStyle(s);
}

std::string Setting(MainWindow& frame, const char* key, const char* fallback) {
  return frame.App() ? frame.App()->store.GetSetting("View", key, fallback) : fallback;
}

struct ViewChoice {
  const char* name;
  const char* caption;
  const char* key;
  bool byDefault;
  bool EditorViewOptions::*field;
};
const ViewChoice kViewChoices[] = {
    {"mnuViewLineNumbers", "Line &Numbers", "LineNumbers", true, &EditorViewOptions::lineNumbers},
    {"mnuViewCurrentLine", "Current Line &Highlight", "CurrentLine", true,
     &EditorViewOptions::currentLine},
    {"mnuViewMatchingTag", "&Matching Tag Highlight", "MatchingTag", true,
     &EditorViewOptions::matchingTags},
    {"mnuViewColorAsYouType", "&Colour Tags as You Type", "ColorAsYouType", false,
     &EditorViewOptions::colorAsYouType},
};

EditorViewOptions CurrentOptions(MainWindow& frame) {
  EditorViewOptions o;
  for (const ViewChoice& c : kViewChoices)
    if (QAction* a = frame.Command(c.name)) o.*(c.field) = a->isChecked();
  return o;
}

void ApplyToAllDocuments(MainWindow& frame) {
  if (!frame.App()) return;
  const EditorViewOptions o = CurrentOptions(frame);
  for (QMdiSubWindow* sub : frame.MdiArea()->subWindowList())
    if (auto* form = qobject_cast<DocumentForm*>(sub->widget()))
      EditorExtras::Of(*frame.App(), *form).Apply(o);
}

void SetTabbedView(MainWindow& frame, bool tabs) {
  QMdiArea* area = frame.MdiArea();
  area->setViewMode(tabs ? QMdiArea::TabbedView : QMdiArea::SubWindowView);
  if (!tabs) return;
  area->setDocumentMode(true);
  area->setTabsClosable(true);
  area->setTabsMovable(true);
}

void BuildViewMenu(MainWindow& frame) {
  MainWindow* f = &frame;
  QMenu* view = frame.Menu("mnuView");
  QAction* before = frame.Command("mnuPreferences");
  QMenu* buttons = new QMenu("Toolbar &Buttons", view);
  buttons->setObjectName("mnuViewToolbarButtons");
  view->insertMenu(before, buttons);
  auto* group = new QActionGroup(buttons);
  const std::pair<const char*, const char*> styles[] = {
      {"icons", "&Icons Only"}, {"beside", "Text &Beside Icons"}, {"text", "&Text Only"}};
  for (const auto& [style, caption] : styles) {
    QAction* a = frame.AddCommand(
        buttons, QString("mnuViewButtons_") + style, caption, false, [f, style = QString(style)] {
          SetToolbarStyle(*f, style);
          if (f->App()) f->App()->store.SaveSetting("View", "ToolbarButtons", style.toStdString());
        });
    a->setCheckable(true);
    group->addAction(a);
  }
  view->insertSeparator(before);
  for (const ViewChoice& c : kViewChoices) {
    QAction* a = frame.AddCommand(view, c.name, c.caption, false, [f, key = c.key, name = c.name] {
      if (f->App())
        f->App()->store.SaveSetting("View", key, f->Command(name)->isChecked() ? "on" : "off");
      ApplyToAllDocuments(*f);
    });
    a->setCheckable(true);
    a->setChecked(c.byDefault);
    view->insertAction(before, a);
  }
  QAction* tabs = frame.AddCommand(view, "mnuViewTabs", "Documents as T&abs", false, [f] {
    const bool on = f->Command("mnuViewTabs")->isChecked();
    SetTabbedView(*f, on);
    if (f->App()) f->App()->store.SaveSetting("View", "Tabs", on ? "on" : "off");
  });
  tabs->setCheckable(true);
  view->insertAction(before, tabs);
  view->insertSeparator(before);

  frame.OnSettingsLoaded([f] {
    const QString style = QString::fromStdString(Setting(*f, "ToolbarButtons", "icons"));
    QAction* chosen = f->Command("mnuViewButtons_" + style);
    if (!chosen) chosen = f->Command("mnuViewButtons_icons");
    chosen->setChecked(true);
    SetToolbarStyle(*f, chosen->objectName().section('_', 1));
    for (const ViewChoice& c : kViewChoices)
      f->Command(c.name)->setChecked(Setting(*f, c.key, c.byDefault ? "on" : "off") == "on");
    const bool tabbed = Setting(*f, "Tabs", "off") == "on";
    f->Command("mnuViewTabs")->setChecked(tabbed);
    SetTabbedView(*f, tabbed);
  });
  frame.OnNewDocumentWindow([f](DocumentForm& form) {
    if (f->App()) EditorExtras::Of(*f->App(), form).Apply(CurrentOptions(*f));
  });
}

// The Window menu ends with one entry per open document, the active one ticked.
void BuildWindowList(MainWindow& frame) {
  MainWindow* f = &frame;
  QMenu* window = frame.Menu("mnuWindow");
  QAction* separator = window->addSeparator();
  separator->setObjectName("mnuWindowListSeparator");
  auto* group = new QActionGroup(window);
  QObject::connect(window, &QMenu::aboutToShow, f, [f, window, separator, group] {
    for (QAction* a : group->actions()) {
      group->removeAction(a);
      window->removeAction(a);
      a->deleteLater();
    }
    const QList<QMdiSubWindow*> subs = f->MdiArea()->subWindowList(QMdiArea::CreationOrder);
    separator->setVisible(!subs.isEmpty());
    int n = 0;
    for (QMdiSubWindow* sub : subs) {
      auto* form = qobject_cast<DocumentForm*>(sub->widget());
      if (!form) continue;
      ++n;
      QString caption = QString::fromStdString(form->Caption());
      caption.replace("&", "&&");
      const QString text = n < 10 ? QString("&%1 %2").arg(n).arg(caption) : caption;
      QAction* a = window->addAction(text);
      a->setObjectName(QString("mnuWindowDocument%1").arg(n));
      a->setCheckable(true);
      a->setChecked(sub == f->MdiArea()->activeSubWindow());
      group->addAction(a);
      QObject::connect(a, &QAction::triggered, f, [f, sub] {
        f->MdiArea()->setActiveSubWindow(sub);
        if (auto* form = qobject_cast<DocumentForm*>(sub->widget())) form->Edit().SetFocus();
      });
    }
  });
}

void ShowAbout(MainWindow& frame) {
  const QString text =
      QString(
          "<h3>Tessarine %1</h3>"
          "<p>An editor for people who write web pages by hand.</p>"
          "<p>Licensed under the GNU General Public License, version 3 or later.</p>"
          "<table>"
          "<tr><td>Qt</td><td>%2</td></tr>"
          "<tr><td>QScintilla</td><td>%3</td></tr>"
          "<tr><td>HTML Tidy (libtidy)</td><td>%4</td></tr>"
          "<tr><td>Hunspell</td><td>%5</td></tr>"
          "</table>")
          .arg(TESSARINE_VERSION, qVersion(), QSCINTILLA_VERSION_STR, TESSARINE_TIDY_VERSION,
               TESSARINE_HUNSPELL_VERSION);
  QMessageBox box(&frame);
  box.setObjectName("AboutBox");
  box.setWindowTitle("About Tessarine");
  box.setTextFormat(Qt::RichText);
  box.setText(text);
  box.setIconPixmap(QApplication::windowIcon().pixmap(64, 64));
  box.exec();
}

}  // namespace

void BuildViewCommands(MainWindow& frame) {
  new DialogTabKeys(&frame);
  SetButtonIcons(frame);
  BuildViewMenu(frame);
  BuildWindowList(frame);
  MainWindow* f = &frame;
  frame.LiveCommand("mnuAbout", false, [f] { ShowAbout(*f); });
}

}  // namespace tessarine
