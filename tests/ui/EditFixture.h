#pragma once
// A started main window on the headless services, and keys typed into its document the way
// the window system delivers them.

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QTemporaryDir>
#include <memory>

#include "core/Application.h"
#include "platform/HeadlessPlatform.h"
#include "ui/Form2.h"
#include "ui/MDIForm1.h"
#include "ui/SciEdit.h"

namespace tessarine {

class EditFixture : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(dir.isValid());
    qputenv("XDG_DATA_HOME", (dir.path() + "/data").toUtf8());
    frame = std::make_unique<MDIForm1>();
    // The frame is the window's own, the other services headless.
    app = std::make_unique<Application>(
        Platform{*frame, h.messages, h.store, h.fileDialogs, h.colorDialog, h.shell, h.clipboard,
                 h.images, h.clock, h.checkedQuestions, &h.defaultBrowser},
        dir.path().toStdString());
    frame->show();
    frame->Load(*app, "");
    QApplication::processEvents();
    ASSERT_NE(Active(), nullptr);
  }
  void TearDown() override {
    for (int i = 1; i <= app->documents.UpperBound(); ++i) app->documents.State(i).Changed = false;
    frame->close();
    QApplication::processEvents();
  }

  Form2* Active() { return dynamic_cast<Form2*>(frame->ActiveDocumentWindow()); }
  SciEdit& Edit() { return Active()->RichTextBox1(); }
  // A fresh text in the active document, as after opening it.
  SciEdit& Document(const std::string& text) {
    Edit().SetText(text);
    Edit().setFocus();
    return Edit();
  }
  QString Panel(int i) {
    return frame->findChild<QLabel*>(QString("StatusBar1Panel%1").arg(i))->text();
  }

  static void Press(QWidget* w, int key, Qt::KeyboardModifiers mods = {},
                    const QString& text = {}) {
    QKeyEvent e(QEvent::KeyPress, key, mods, text);
    QApplication::sendEvent(w, &e);
  }
  static void Release(QWidget* w, int key, Qt::KeyboardModifiers mods = {},
                      const QString& text = {}) {
    QKeyEvent e(QEvent::KeyRelease, key, mods, text);
    QApplication::sendEvent(w, &e);
  }
  static void Key(QWidget* w, int key, Qt::KeyboardModifiers mods = {}, const QString& text = {}) {
    Press(w, key, mods, text);
    Release(w, key, mods, text);
  }

  QTemporaryDir dir;
  HeadlessPlatform h;
  std::unique_ptr<MDIForm1> frame;
  std::unique_ptr<Application> app;
};

}  // namespace tessarine
