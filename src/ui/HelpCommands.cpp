// The Help menu, F1 everywhere, and the start screen.

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>

#include "core/Application.h"
#include "core/HelpTopics.h"
#include "ui/Commands.h"
#include "ui/MainWindow.h"
#include "ui/help/HelpWindows.h"
#include "ui/help/StartScreenDialog.h"

namespace tessarine {

namespace {

// F1 is taken before any widget sees it, so that a dialog's help button (which sends F1)
// and the key itself both reach the page of the window in front.
class HelpKeyFilter : public QObject {
 public:
  explicit HelpKeyFilter(MainWindow& frame) : QObject(&frame), frame_(frame) {}

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier) return false;
    if (!frame_.App()) return false;
    if (key->isAutoRepeat()) return true;  // a held key opens the page once
    ShowHelp(*frame_.App(), HelpWindow(qobject_cast<QWidget*>(watched)));
    return true;
  }

 private:
  MainWindow& frame_;
};

}  // namespace

void BuildHelpCommands(MainWindow& frame) {
  MainWindow* f = &frame;
  qApp->installEventFilter(new HelpKeyFilter(frame));

  auto topic = [f](std::string_view id) {
    return [f, id] {
      if (f->App()) ShowHelpTopic(*f->App(), id);
    };
  };
  QMenu* help = frame.Menu("mnuHelp");
  // Above About, which the frame put there first.
  QAction* first = help->actions().value(0);
  const std::pair<const char*, const char*> entries[] = {
      {"mnuHelpContents", "&Contents\tF1"},
      {"mnuHelpBeginners", "For &Beginners"},
      {"mnuHelpTutorial", "&HTML Tutorial"},
      {"mnuHelpHowToUse", "How to &Use Tessarine"}};
  const std::string_view ids[] = {kHelpContents, kHelpBeginners, kHelpTutorial, kHelpHowToUse};
  for (int i = 0; i < 4; ++i) {
    QAction* a = frame.AddCommand(help, entries[i].first, entries[i].second, false, topic(ids[i]));
    help->removeAction(a);
    help->insertAction(first, a);
  }
  if (first) help->insertSeparator(first);

}

void ShowStartScreenAtStart(MainWindow& frame) {
  Application* app = frame.App();
  if (!app || !StartScreenWanted(app->store)) return;
  StartScreenDialog screen(*app, &frame);
  screen.exec();
}

}  // namespace tessarine
