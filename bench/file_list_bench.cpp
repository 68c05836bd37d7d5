// The side panel's file list on a folder of 50,000 pages: the time from pointing it at the
// folder to the first paint that shows files, the time until the whole folder is listed,
// and the longest the event loop went without turning meanwhile (the window's freeze).
// Run under QT_QPA_PLATFORM=offscreen or on a display.

#include <QApplication>
#include <QElapsedTimer>
#include <QFileSystemModel>
#include <QListView>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>
#include <fstream>
#include <memory>

#include "core/Application.h"
#include "platform/HeadlessPlatform.h"
#include "ui/MainWindow.h"
#include "ui/panels/FileListPanel.h"

using namespace tessarine;

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication qapp(argc, argv);
  const int files = argc > 1 ? std::atoi(argv[1]) : 50000;
  QTemporaryDir dir;
  qputenv("XDG_DATA_HOME", (dir.path() + "/data").toUtf8());
  const QString folder = dir.path() + "/big";
  QDir().mkpath(folder);
  for (int i = 0; i < files; ++i) {
    std::ofstream(QString("%1/page%2.html").arg(folder).arg(i, 5, 10, QChar('0')).toStdString())
        << "<p>" << i;
  }
  HeadlessPlatform h;
  auto frame = std::make_unique<MainWindow>();
  Application app(Platform{*frame, h.messages, h.store, h.fileDialogs, h.colorDialog, h.shell,
                           h.clipboard, h.images, h.clock, h.checkedQuestions, &h.defaultBrowser},
                  dir.path().toStdString());
  frame->resize(1000, 700);
  frame->show();
  frame->Load(app, "");
  QApplication::processEvents();
  auto* panel = frame->findChild<FileListPanel*>("fileListPanel");
  if (!panel) {
    std::fprintf(stderr, "no file list\n");
    return 1;
  }

  QElapsedTimer clock;
  qint64 firstPaint = -1, allListed = -1, lastTick = 0, longestStall = 0;
  QTimer ticker;
  ticker.setInterval(5);
  QObject::connect(&ticker, &QTimer::timeout, [&] {
    const qint64 now = clock.elapsed();
    longestStall = std::max(longestStall, now - lastTick);
    lastTick = now;
    const int rows = panel->FileCount();
    if (firstPaint < 0 && rows > 0) {
      panel->FileList()->viewport()->repaint();  // the paint that shows the first files
      firstPaint = clock.elapsed();
    }
    if (rows >= files && allListed < 0) allListed = clock.elapsed();
    if (allListed >= 0 || now > 60000) qapp.quit();
  });
  clock.start();
  panel->SetFolder(folder);
  ticker.start();
  qapp.exec();
  std::printf("folder of %d files\n", files);
  std::printf("  first paint with files      %6lld ms\n", static_cast<long long>(firstPaint));
  std::printf("  whole folder listed         %6lld ms\n", static_cast<long long>(allListed));
  std::printf("  longest event-loop stall    %6lld ms\n", static_cast<long long>(longestStall));
  return 0;
}
