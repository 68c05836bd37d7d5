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
#include "ui/DocumentForm.h"
#include "ui/MainWindow.h"
#include "ui/SciEdit.h"
#include "ui/WindowFixture.h"

namespace tessarine {

class EditFixture : public WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    Start();
    ASSERT_NE(Active(), nullptr);
  }

  SciEdit& Edit() { return Active()->Editor(); }
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
};

}  // namespace tessarine
