#pragma once
// Tab in a dialog's multi-line field moves the focus on, as in every other field; Ctrl+Tab
// types the tab instead. The documents themselves keep Tab for their text.

#include <QObject>

namespace tessarine {

class DialogTabKeys : public QObject {
  Q_OBJECT
 public:
  explicit DialogTabKeys(QObject* parent);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace tessarine
