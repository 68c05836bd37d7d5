#include "ui/files/RecentFileMenu.h"

#include <QAction>
#include <QMenu>

#include "core/Application.h"
#include "core/RecentFiles.h"
#include "ui/MainWindow.h"

namespace tessarine {

namespace {
QString Name(int i) {
  return QString("mnuRecentFile%1").arg(i);
}
}  // namespace

void AddRecentFileEntries(MainWindow& frame, QMenu* menu) {
  MainWindow* f = &frame;
  QAction* separator = frame.AddCommand(menu, Name(0), "", false, [] {});
  separator->setSeparator(true);
  separator->setVisible(false);
  for (int i = 1; i <= RecentFileMenu::kEntries; ++i) {
    QAction* a = frame.AddCommand(menu, Name(i), "", false, [f, i] {
      if (Application* app = f->App()) {
        // The frame shows a document window's menu while one is open.
        ChooseRecentFile(*app, i, app->ActiveDocument() != nullptr);
        f->UpdateMenusForDocumentCount();
      }
    });
    a->setVisible(false);
  }
}

void ShowRecentFileEntries(MainWindow& frame) {
  Application* app = frame.App();
  if (!app) return;
  const RecentFileMenu& menu = app->files.recentMenu;
  for (int i = 0; i <= RecentFileMenu::kEntries; ++i) {
    QAction* a = frame.Command(Name(i));
    if (!a) continue;
    const std::string& caption = menu.captions[static_cast<std::size_t>(i)];
    if (i > 0) {
      QString text = QString::fromUtf8(caption.data(), static_cast<int>(caption.size()));
      text.replace('&', "&&");  // a path shows its ampersands
      a->setText(text);
    }
    a->setVisible(menu.visible[static_cast<std::size_t>(i)]);
  }
}

}  // namespace tessarine
