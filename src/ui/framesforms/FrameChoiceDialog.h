#pragma once
// "How do you want to make your Frames?": do-it-yourself or a custom-made template.

#include <QDialog>

namespace tessarine::ui {

class FrameChoiceDialog : public QDialog {
 public:
  enum Choice { None, DoItYourself, CustomMade };
  explicit FrameChoiceDialog(QWidget* parent);
  Choice Chosen() const { return chosen_; }

 private:
  Choice chosen_ = None;
};

}  // namespace tessarine::ui
