#pragma once
// Custom-made frames: pick one of ten layouts, give each frame a URL, then a name.

#include <array>

#include "ui/framesforms/FrameFormDialog.h"

class QLabel;
class QListWidget;
class QStackedWidget;

namespace tessarine {
struct CustomFramesInputs;
}

namespace tessarine::ui {

class FrameLayoutPicture;

class CustomFramesDialog : public FrameFormDialog {
 public:
  CustomFramesDialog(Application& app, QWidget* parent);
  CustomFramesInputs Model() const;

 private:
  void ShowStep(int step);
  void Next();

  int step_ = 0;
  QLabel* heading_;
  QLabel* stepText_;
  QStackedWidget* steps_;
  QListWidget* layouts_;
  FrameLayoutPicture* picture_;
  std::array<QComboBox*, 4> urls_{};
  std::array<QWidget*, 4> urlRows_{};
  std::array<QLineEdit*, 4> names_{};
  std::array<QWidget*, 4> nameRows_{};
  QPushButton* previous_;
  QPushButton* next_;
};

}  // namespace tessarine::ui
