#pragma once
// The CAPS and INS panels of the status bar: lit while Caps Lock is on and while the
// active document types over its text (the Insert key toggled), dimmed otherwise.

#include <QObject>
#include <functional>

class QLabel;

namespace tessarine {

class SciEdit;

class KeyStatePanels : public QObject {
  Q_OBJECT
 public:
  KeyStatePanels(QLabel* caps, QLabel* insert, std::function<SciEdit*()> activeEdit,
                 QObject* parent);
  // Reads the active control's mode again (after a switch of documents, say).
  void Refresh();
  bool CapsLock() const { return capsLock_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QLabel* caps_;
  QLabel* insert_;
  std::function<SciEdit*()> activeEdit_;
  // The desktop tells no program the lock's state; the keys pressed do: the lock key
  // itself, and the case that a letter typed with or without Shift comes out in.
  bool capsLock_ = false;
};

}  // namespace tessarine
