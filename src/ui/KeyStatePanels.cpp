#include "ui/KeyStatePanels.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>

#include "ui/SciEdit.h"

namespace tessarine {

KeyStatePanels::KeyStatePanels(QLabel* caps, QLabel* insert, std::function<SciEdit*()> activeEdit,
                               QObject* parent)
    : QObject(parent), caps_(caps), insert_(insert), activeEdit_(std::move(activeEdit)) {
  qApp->installEventFilter(this);
  Refresh();
}

void KeyStatePanels::Refresh() {
  caps_->setEnabled(capsLock_);
  SciEdit* edit = activeEdit_ ? activeEdit_() : nullptr;
  insert_->setEnabled(edit && edit->SendScintilla(QsciScintillaBase::SCI_GETOVERTYPE) != 0);
}

bool KeyStatePanels::eventFilter(QObject* watched, QEvent* event) {
  // A key passes the filter once for every object on its way: the focus widget's copy is
  // read, once.
  if ((event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) &&
      watched == QApplication::focusWidget()) {
    const auto* k = static_cast<QKeyEvent*>(event);
    if (event->type() == QEvent::KeyPress && !k->isAutoRepeat()) {
      if (k->key() == Qt::Key_CapsLock) {
        capsLock_ = !capsLock_;
      } else if (k->text().size() == 1 && k->text()[0].isLetter() &&
                 k->text()[0].isUpper() != k->text()[0].isLower()) {
        const bool shift = k->modifiers() & Qt::ShiftModifier;
        capsLock_ = k->text()[0].isUpper() != shift;
      }
    }
    // The control switches its mode on the press; the panels follow once it has.
    if (event->type() == QEvent::KeyRelease)
      QMetaObject::invokeMethod(
          this, [this] { Refresh(); }, Qt::QueuedConnection);
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace tessarine
