#include "ui/settings/DocumentMenus.h"

#include <QAction>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QStringList>
#include <QVariant>

#include "core/Application.h"
#include "settings/MenuSystem.h"
#include "ui/DocumentForm.h"
#include "ui/MainWindow.h"

namespace tessarine {

namespace {

// The window's own record of what its menu hides.
const char* const kHiddenProperty = "hiddenMenuItems";

QStringList HiddenIn(const DocumentForm* form) {
  return form ? form->property(kHiddenProperty).toStringList() : QStringList();
}

DocumentForm* CurrentForm(const MainWindow& frame) {
  QMdiSubWindow* sub = frame.MdiArea()->currentSubWindow();
  return sub ? qobject_cast<DocumentForm*>(sub->widget()) : nullptr;
}

// The menu bar takes the menu of `form`; with no document open, the full menu.
void ShowMenuOf(const MainWindow& frame, const DocumentForm* form) {
  const QStringList hidden = HiddenIn(form);
  for (const MenuItemRef& item : ManagedMenuItems())
    if (QAction* entry = MenuEntry(frame, item))
      entry->setVisible(!hidden.contains(QString::fromStdString(item.ControlName())));
}

void FollowActiveWindow(const MainWindow& frame) {
  DocumentForm* form = CurrentForm(frame);
  // A frame that loses the focus keeps its current window's menu.
  if (!form && !frame.MdiArea()->subWindowList().isEmpty()) return;
  ShowMenuOf(frame, form);
}

}  // namespace

QAction* MenuEntry(const MainWindow& frame, const MenuItemRef& item) {
  const QString name = QString::fromStdString(item.ControlName());
  if (QAction* command = frame.Command(name)) return command;
  // Submenus and separators are no commands: their own actions carry the name.
  return frame.findChild<QAction*>(name);
}

void ApplyMenuSystem(MainWindow& frame, DocumentForm& form) {
  Application* app = frame.App();
  if (!app) return;
  QStringList hidden = HiddenIn(&form);
  for (const MenuItemRef& item : HiddenMenuItems(app->settings)) {
    const QString name = QString::fromStdString(item.ControlName());
    if (!hidden.contains(name)) hidden << name;
  }
  form.setProperty(kHiddenProperty, hidden);
  if (CurrentForm(frame) == &form) ShowMenuOf(frame, &form);
}

void BuildDocumentMenus(MainWindow& frame) {
  MainWindow* f = &frame;
  frame.OnNewDocumentWindow([f](DocumentForm& form) { ApplyMenuSystem(*f, form); });
  QObject::connect(frame.MdiArea(), &QMdiArea::subWindowActivated, f,
                   [f](QMdiSubWindow*) { FollowActiveWindow(*f); });
  frame.OnSettingsLoaded([f] {
    f->App()->files.applyMenuSystem = [f] {
      if (DocumentForm* form = CurrentForm(*f)) ApplyMenuSystem(*f, *form);
    };
  });
}

}  // namespace tessarine
