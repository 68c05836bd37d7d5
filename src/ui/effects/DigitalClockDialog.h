#pragma once
// The digital clock wizard: four pages, what to show, the date format, the time format and
// the look. Done leaves the script in HeadInsert and the markup in BodyInsert.

#include "effects/DigitalClock.h"
#include "ui/effects/EffectDialog.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
class QSpinBox;
class QStackedWidget;

namespace tessarine::ui {

class DigitalClockDialog : public EffectDialog {
 public:
  DigitalClockDialog(Application& app, QWidget* parent);
  tessarine::DigitalClock Model() const;
  int Page() const { return page_; }

 private:
  void ShowPage(int page);
  void Next();
  void Previous();
  void PickInto(QLabel* swatch, std::string& color);

  int page_ = 1;
  std::string backgroundColor_, fontColor_;
  QLabel* heading_;
  QLabel* subHeading_ = nullptr;
  QStackedWidget* pages_;
  QButtonGroup* showsGroup_;
  QListWidget* dateFormatList_;
  QCheckBox* dayOfWeekCheck_;
  QCheckBox* militaryTimeCheck_;
  QCheckBox* showSecondsCheck_;
  QCheckBox* showAmPmCheck_;
  QCheckBox* timeBeforeDateCheck_;
  QLabel* backgroundSwatch_;
  QLabel* fontColorSwatch_;
  QComboBox* fontCombo_;
  QComboBox* fontSizeCombo_;
  QComboBox* fontStyleCombo_;
  QSpinBox* paddingSpin_;
};

}  // namespace tessarine::ui
