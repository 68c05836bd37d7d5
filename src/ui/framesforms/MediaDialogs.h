#pragma once
// The background sound and embedded media dialogs.

#include "ui/framesforms/FrameFormDialog.h"

class QCheckBox;

namespace tessarine {
struct BackgroundSoundInputs;
struct EmbeddedMediaInputs;
}  // namespace tessarine

namespace tessarine::ui {

class BackgroundSoundDialog : public FrameFormDialog {
 public:
  BackgroundSoundDialog(Application& app, QWidget* parent);
  BackgroundSoundInputs Model() const;

 private:
  QLineEdit* soundFile_;
  QComboBox* loop_;
};

class EmbeddedMediaDialog : public FrameFormDialog {
 public:
  EmbeddedMediaDialog(Application& app, QWidget* parent);
  EmbeddedMediaInputs Model() const;

 private:
  QLineEdit* mediaFile_;
  QLineEdit* width_;
  QLineEdit* height_;
  QLineEdit* altText_;
  QComboBox* controls_;
  QComboBox* align_;
  QCheckBox* autostart_;
  QCheckBox* loop_;
};

}  // namespace tessarine::ui
