#include "ui/wizards/ShortcutBar.h"

#include <QListWidget>

#include "ui/wizards/WizardDialog.h"

namespace tessarine::ui {

ShortcutBar::ShortcutBar(QWidget* parent) : QToolBox(parent) {
  setObjectName("ShortcutBar");
}

QListWidget* ShortcutBar::Group(int group) const {
  return qobject_cast<QListWidget*>(widget(group - 1));
}

void ShortcutBar::SetGroups(const std::vector<ShortcutGroup>& groups) {
  while (count() > 0) {
    QWidget* w = widget(0);
    removeItem(0);
    delete w;
  }
  for (const ShortcutGroup& g : groups) {
    auto* list = new QListWidget;
    list->setObjectName(Q("group_" + g.caption));
    connect(list, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
      if (onClick_ && (item->flags() & Qt::ItemIsEnabled))
        onClick_(S(item->data(Qt::UserRole).toString()));
    });
    addItem(list, Q(g.caption));
    SetGroupItems(count(), g.items);
  }
}

void ShortcutBar::SetGroupItems(int group, const std::vector<ShortcutItem>& items) {
  QListWidget* list = Group(group);
  if (!list) return;
  list->clear();
  for (const ShortcutItem& i : items) {
    auto* item = new QListWidgetItem(Q(i.text), list);
    item->setData(Qt::UserRole, Q(i.key));
    item->setData(Qt::UserRole + 1, Q(i.icon));
    if (!ShortcutKeyAvailable(i.key)) item->setFlags(item->flags() & ~Qt::ItemIsEnabled);
  }
}

bool ShortcutBar::HasKey(const std::string& key) const {
  for (int g = 1; g <= count(); ++g)
    for (int i = 0; i < Group(g)->count(); ++i)
      if (S(Group(g)->item(i)->data(Qt::UserRole).toString()) == key) return true;
  return false;
}

bool ShortcutBar::ClickKey(const std::string& key) {
  for (int g = 1; g <= count(); ++g) {
    QListWidget* list = Group(g);
    for (int i = 0; i < list->count(); ++i) {
      QListWidgetItem* item = list->item(i);
      if (S(item->data(Qt::UserRole).toString()) != key) continue;
      if (!(item->flags() & Qt::ItemIsEnabled)) return false;
      emit list->itemClicked(item);
      return true;
    }
  }
  return false;
}

}  // namespace tessarine::ui

namespace tessarine::ui {
void ReloadCustomButtons(QWidget* frame, const SettingsStore& store) {
  if (auto* bar = frame ? frame->findChild<ShortcutBar*>("ShortcutBar") : nullptr)
    bar->SetGroupItems(5, LoadCustomButtons(store));
}
}  // namespace tessarine::ui
