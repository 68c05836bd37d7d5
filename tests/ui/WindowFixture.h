#pragma once
// A main window over headless services, started as the program starts it. The services the
// tests script or watch are members of their own; the rest come from a headless platform.

#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>

#include "core/Application.h"
#include "platform/HeadlessPlatform.h"
#include "ui/Form2.h"
#include "ui/MDIForm1.h"

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
  }
  void Start(const std::string& commandLine = "") {
    frame = std::make_unique<MDIForm1>();
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
    for (int i = 1; i <= app->documents.UpperBound(); ++i) app->documents.State(i).Changed = false;
    frame->close();
    QApplication::processEvents();
  }
  Form2* Active() { return dynamic_cast<Form2*>(frame->ActiveDocumentWindow()); }
  std::string Path(const char* name) { return (dir.path() + "/" + name).toStdString(); }

  QTemporaryDir dir;
  MemorySettingsStore store;
  ScriptedMessageBoxes messages;
  ScriptedFileDialogs dialogs;
  Shell* watchedShell = nullptr;  // set before Start to watch program starts
  HeadlessPlatform headless;
  std::unique_ptr<MDIForm1> frame;
  std::unique_ptr<Application> app;
};

}  // namespace tessarine
