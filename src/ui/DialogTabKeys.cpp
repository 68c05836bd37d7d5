#include "ui/DialogTabKeys.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace tessarine {

DialogTabKeys::DialogTabKeys(QObject* parent) : QObject(parent) {
  qApp->installEventFilter(this);
}

bool DialogTabKeys::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type != QEvent::KeyPress && type != QEvent::FocusIn && type != QEvent::ShortcutOverride)
    return false;
  auto* text = qobject_cast<QTextEdit*>(watched);
  auto* plain = qobject_cast<QPlainTextEdit*>(watched);
  if (!text && !plain) return false;
  if (!qobject_cast<QDialog*>(static_cast<QWidget*>(watched)->window())) return false;
  if (type == QEvent::FocusIn) {
    // Tab leaves the field like any other; the widget does the moving.
    if (text) text->setTabChangesFocus(true);
    if (plain) plain->setTabChangesFocus(true);
    return false;
  }
  const auto* k = static_cast<QKeyEvent*>(event);
  if (k->key() != Qt::Key_Tab || (k->modifiers() & ~Qt::KeypadModifier) != Qt::ControlModifier)
    return false;
  if (type == QEvent::ShortcutOverride) {
    event->accept();  // the field's key, not a shortcut's
    return true;
  }
  if (text && !text->isReadOnly()) text->insertPlainText("\t");
  if (plain && !plain->isReadOnly()) plain->insertPlainText("\t");
  return true;
}

}  // namespace tessarine
