#include "ui/help/HelpWindows.h"

#include <QApplication>
#include <QWidget>

#include "core/HelpTopics.h"

namespace tessarine {

const QWidget* HelpWindow(const QWidget* receiver) {
  if (const QWidget* modal = QApplication::activeModalWidget()) return modal;
  if (const QWidget* active = QApplication::activeWindow()) return active;
  return receiver ? receiver->window() : nullptr;
}

std::string HelpIdOf(const QWidget* window) {
  for (const QWidget* w = window; w;
       w = w->parentWidget() ? w->parentWidget()->window() : nullptr) {
    const std::string name = w->objectName().toStdString();
    if (HasHelpTopic(name)) return name;
  }
  return std::string(kHelpContents);
}

bool ShowHelp(Application& app, const QWidget* window) {
  return ShowHelpTopic(app, HelpIdOf(window));
}

}  // namespace tessarine
