#pragma once
// The chosen menu system on the document windows. Each window keeps the entries its menu
// hides, decided when it opened; the frame's one menu bar shows the active window's menu.

class QAction;

namespace tessarine {

class DocumentForm;
class MainWindow;
struct MenuItemRef;

// Applies the menu system to every new document window, follows the active window, and
// answers the logic's requests to apply it again.
void BuildDocumentMenus(MainWindow& frame);

// ApplyMenuSystem(window): hides in `form`'s menu what the current menu system hides. It
// only hides: what the window's menu already lacks stays lacking.
void ApplyMenuSystem(MainWindow& frame, DocumentForm& form);

// The frame's menu entry that stands for `item`; null when the menus have none.
QAction* MenuEntry(const MainWindow& frame, const MenuItemRef& item);

}  // namespace tessarine
