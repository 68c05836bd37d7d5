#pragma once
// The shortcut bar: groups of items, each with a key; a click hands the key on.

#include <QToolBox>
#include <functional>
#include <vector>

#include "core/TagCommands.h"

class QListWidget;

namespace tessarine::ui {

class ShortcutBar : public QToolBox {
 public:
  explicit ShortcutBar(QWidget* parent = nullptr);
  // Replaces every group.
  void SetGroups(const std::vector<ShortcutGroup>& groups);
  // Replaces the items of one group (1-based).
  void SetGroupItems(int group, const std::vector<ShortcutItem>& items);
  void OnItemClick(std::function<void(const std::string& key)> f) { onClick_ = std::move(f); }
  // Runs the item with `key` as a click would; false when there is none or it is dimmed.
  bool ClickKey(const std::string& key);
  bool HasKey(const std::string& key) const;

 private:
  QListWidget* Group(int group) const;
  std::function<void(const std::string&)> onClick_;
};

}  // namespace tessarine::ui

namespace tessarine::ui {
// Rebuilds the custom group of the frame's shortcut bar from the stored buttons, as after
// the buttons were edited.
void ReloadCustomButtons(QWidget* frame, const SettingsStore& store);
}  // namespace tessarine::ui
