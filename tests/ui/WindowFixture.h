#pragma once
// A main window over headless services, started as the program starts it. The services the
// tests script or watch are members of their own; the rest come from a headless platform.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTemporaryDir>
#include <QTimer>
#include <fstream>
#include <functional>
#include <memory>
#include <sstream>
#include <string>

#include "core/Application.h"
#include "core/Documents.h"
#include "platform/HeadlessPlatform.h"
#include "ui/DocumentForm.h"
#include "ui/MainWindow.h"

namespace tessarine {

inline std::string Slurp(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

class WindowFixture : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(dir.isValid());
    qputenv("XDG_DATA_HOME", (dir.path() + "/data").toUtf8());
    // The start screen would wait for an answer; its own tests turn it on.
    store.SaveSetting("Miscellaneous", "MainMenuBox", "off");
    // No tip window over the documents; a test that wants it turns it on.
    store.SaveSetting("Miscellaneous", "TipOfTheDay", "off");
  }
  void Start(const std::string& commandLine = "") {
    frame = std::make_unique<MainWindow>();
    app = std::make_unique<Application>(
        Platform{*frame, messages, store, dialogs, headless.colorDialog,
                 watchedShell ? *watchedShell : headless.shell, headless.clipboard, headless.images,
                 headless.clock, headless.checkedQuestions, &headless.defaultBrowser},
        dir.path().toStdString());
    frame->show();
    frame->Load(*app, commandLine);
    QApplication::processEvents();
  }
  void TearDown() override {
    if (!frame) return;
    // Nothing left to ask about: close quietly.
    for (int i = 1; i <= app->documents.UpperBound(); ++i) MarkDocumentUnchanged(*app, i);
    frame->close();
    QApplication::processEvents();
  }
  DocumentForm* Active() { return dynamic_cast<DocumentForm*>(frame->ActiveDocumentWindow()); }
  // Acts on the next modal dialog once it is up.
  void OnDialog(std::function<void(QDialog*)> act) {
    QTimer::singleShot(0, frame.get(), [act] {
      auto* d = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(d, nullptr);
      act(d);
    });
  }
  template <class T>
  static T* Child(QWidget* parent, const char* name) {
    T* w = parent->findChild<T*>(name);
    EXPECT_NE(w, nullptr) << name;
    return w;
  }
  std::string Path(const char* name) { return (dir.path() + "/" + name).toStdString(); }

  QTemporaryDir dir;
  MemorySettingsStore store;
  ScriptedMessageBoxes messages;
  ScriptedFileDialogs dialogs;
  Shell* watchedShell = nullptr;  // set before Start to watch program starts
  HeadlessPlatform headless;
  std::unique_ptr<MainWindow> frame;
  std::unique_ptr<Application> app;
};

}  // namespace tessarine
