#pragma once
// The do-it-yourself frame wizard: a layout page of four scrollbars, then one page per
// frame cell.

#include <memory>

#include "ui/framesforms/FrameFormDialog.h"

class QCheckBox;
class QLabel;
class QScrollBar;
class QStackedWidget;

namespace tessarine {
class FrameWizard;
struct FrameLayout;
}  // namespace tessarine

namespace tessarine::ui {

class FrameBoundaryPicture;

class FrameWizardDialog : public FrameFormDialog {
 public:
  FrameWizardDialog(Application& app, QWidget* parent);
  ~FrameWizardDialog() override;

 private:
  FrameLayout Layout() const;
  void Next();
  void EnterCell();
  void ShowCell();

  std::unique_ptr<FrameWizard> wizard_;
  QStackedWidget* pages_;
  FrameBoundaryPicture* picture_;
  QScrollBar* columnBoundary1_;
  QScrollBar* columnBoundary2_;
  QScrollBar* rowBoundary1_;
  QScrollBar* rowBoundary2_;
  QCheckBox* frameBorder_;
  QLineEdit* frameSpacing_;
  QLabel* cellCaption_;
  FrameBoundaryPicture* cellPicture_;
  QComboBox* url_;
  QLineEdit* name_;
  QComboBox* scrolling_;
  QCheckBox* resizeable_;
  QLineEdit* marginWidth_;
  QLineEdit* marginHeight_;
};

}  // namespace tessarine::ui
