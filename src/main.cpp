// The editor: the main window over the logic, its whole command line one path.
#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QStringList>

#include "core/Application.h"
#include "core/Startup.h"
#include "platform/DefaultBrowser.h"
#include "platform/Platform.h"
#include "ui/MainWindow.h"
#include "ui/QtPlatform.h"
#include "ui/wizards/QtCheckedQuestions.h"

int main(int argc, char** argv) {
  QApplication qapp(argc, argv);
  QApplication::setApplicationName("Tessarine");
  QApplication::setOrganizationName("Tessarine");

  // The whole command line is one path: no quotes stripped, no second file looked for.
  QStringList args = QApplication::arguments();
  args.removeFirst();
  const std::string commandLine = args.join(' ').toStdString();

  const std::string folder = tessarine::PrepareApplicationFolder(TESSARINE_DATA_DIR);
  // Every window of the program shows its icon.
  QApplication::setWindowIcon(QIcon(QString::fromStdString(folder + "/tessarine.svg")));
  tessarine::QtSettingsStore store;
  tessarine::QtMessageBoxes messages;
  tessarine::QtFileDialogs dialogs;
  tessarine::QtColorDialog colors;
  tessarine::QtShell shell;
  tessarine::QtClipboard clipboard;
  tessarine::QtImageInfo images;
  tessarine::SystemClock clock;
  tessarine::XdgDefaultBrowser browser;
  tessarine::QtCheckedQuestions questions;
  tessarine::MainWindow frame;
  messages.SetParent(&frame);
  dialogs.SetParent(&frame);
  colors.SetParent(&frame);
  shell.SetParent(&frame);
  questions.SetParent(&frame);
  tessarine::Application app({frame, messages, store, dialogs, colors, shell, clipboard, images,
                              clock, questions, &browser},
                             folder);
  app.defaultDocumentFolder = QDir::homePath().toStdString();
  frame.show();
  frame.Load(app, commandLine);
  return qapp.exec();
}
