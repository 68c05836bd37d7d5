#include "ui/effects/DigitalClockDialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "conventions/TagConventions.h"
#include "core/Application.h"

namespace tessarine::ui {

namespace {

// A label that selects its choice when clicked, as the description beside a radio button.
class ChoiceLabel : public QLabel {
 public:
  ChoiceLabel(const QString& text, QRadioButton* choice) : QLabel(text), choice_(choice) {
    setWordWrap(true);
    setIndent(24);
    setCursor(Qt::PointingHandCursor);
  }

 protected:
  void mousePressEvent(QMouseEvent*) override { choice_->setChecked(true); }

 private:
  QRadioButton* choice_;
};

// A colour label that opens the colour dialog when clicked.
class ColorLabel : public QLabel {
 public:
  ColorLabel(const QString& text, std::function<void()> onClick)
      : QLabel(text), onClick_(std::move(onClick)) {
    setCursor(Qt::PointingHandCursor);
    setFrameStyle(QFrame::Panel | QFrame::Sunken);
    setMinimumWidth(90);
  }

 protected:
  void mousePressEvent(QMouseEvent*) override { onClick_(); }

 private:
  std::function<void()> onClick_;
};

QComboBox* Combo(const char* name, const std::vector<std::string>& items, bool editable) {
  auto* c = new QComboBox;
  c->setObjectName(name);
  c->setEditable(editable);
  for (const std::string& item : items) c->addItem(Q(item));
  return c;
}

}  // namespace

DigitalClockDialog::DigitalClockDialog(Application& app, QWidget* parent)
    : EffectDialog(app, "DigitalClockDialog", "Digital Clock", parent) {
  auto* layout = new QVBoxLayout(this);
  heading_ = AddHeading(layout, "", "", &subHeading_);
  pages_ = new QStackedWidget;
  pages_->setObjectName("clockPages");
  layout->addWidget(pages_, 1);

  // 1: what to show.
  auto* showsPage = new QWidget;
  auto* showsLayout = new QVBoxLayout(showsPage);
  showsGroup_ = new QButtonGroup(this);
  const char* choices[] = {"Show the Date", "Show the Time", "Show both the Date and Time"};
  const char* names[] = {"showDate", "showTime", "showDateAndTime"};
  const char* descriptions[] = {"Only today's date, in the format you choose next.",
                                "Only the time, updated every second.",
                                "The date and the time side by side, updated every second."};
  for (int i = 0; i < 3; ++i) {
    auto* choice = new QRadioButton(choices[i]);
    choice->setObjectName(names[i]);
    showsGroup_->addButton(choice, i);
    showsLayout->addWidget(choice);
    auto* description = new ChoiceLabel(descriptions[i], choice);
    description->setObjectName(QString(names[i]) + "Description");
    showsLayout->addWidget(description);
  }
  showsGroup_->button(0)->setChecked(true);
  showsLayout->addStretch();
  pages_->addWidget(showsPage);

  // 2: the date format.
  auto* datePage = new QWidget;
  auto* dateLayout = new QVBoxLayout(datePage);
  dateFormatList_ = new QListWidget;
  dateFormatList_->setObjectName("dateFormatList");
  for (const std::string& f : DigitalClockDateFormats()) dateFormatList_->addItem(Q(f));
  dateLayout->addWidget(dateFormatList_);
  dayOfWeekCheck_ = new QCheckBox("Show the day of the week (Monday, Tuesday, etc.)");
  dayOfWeekCheck_->setObjectName("dayOfWeekCheck");
  dateLayout->addWidget(dayOfWeekCheck_);
  pages_->addWidget(datePage);

  // 3: the time format.
  auto* timePage = new QWidget;
  auto* timeLayout = new QVBoxLayout(timePage);
  auto check = [&](const char* name, const char* caption) {
    auto* c = new QCheckBox(caption);
    c->setObjectName(name);
    timeLayout->addWidget(c);
    return c;
  };
  militaryTimeCheck_ = check("militaryTimeCheck", "24 hour clock (military time)");
  showSecondsCheck_ = check("showSecondsCheck", "Show seconds");
  showAmPmCheck_ = check("showAmPmCheck", "Show AM/PM");
  timeBeforeDateCheck_ = check("timeBeforeDateCheck", "Show Time before Date");
  timeLayout->addStretch();
  pages_->addWidget(timePage);

  // 4: colours and font.
  auto* lookPage = new QWidget;
  auto* look = new QFormLayout(lookPage);
  backgroundSwatch_ =
      new ColorLabel("(none)", [this] { PickInto(backgroundSwatch_, backgroundColor_); });
  backgroundSwatch_->setObjectName("backgroundColorLabel");
  look->addRow("Background color:", backgroundSwatch_);
  fontColorSwatch_ = new ColorLabel("(none)", [this] { PickInto(fontColorSwatch_, fontColor_); });
  fontColorSwatch_->setObjectName("fontColorLabel");
  look->addRow("Font color:", fontColorSwatch_);
  fontCombo_ = Combo("fontCombo", DigitalClockFonts(), true);
  fontCombo_->setCurrentText("Arial");
  auto* moreFonts = new QPushButton("more...");
  moreFonts->setObjectName("moreFontsButton");
  auto* fontRow = new QHBoxLayout;
  fontRow->addWidget(fontCombo_, 1);
  fontRow->addWidget(moreFonts);
  look->addRow("Font:", fontRow);
  fontSizeCombo_ = Combo("fontSizeCombo", DigitalClockFontSizes(), true);
  fontSizeCombo_->setCurrentText("12");
  look->addRow("Font size:", fontSizeCombo_);
  fontStyleCombo_ = Combo("fontStyleCombo", DigitalClockFontStyles(), false);
  look->addRow("Font style:", fontStyleCombo_);
  paddingSpin_ = new QSpinBox;
  paddingSpin_->setObjectName("paddingSpin");
  paddingSpin_->setRange(0, 99);
  paddingSpin_->setValue(2);
  look->addRow("Padding:", paddingSpin_);
  pages_->addWidget(lookPage);
  connect(moreFonts, &QPushButton::clicked, this, [this, moreFonts] {
    const QString current = fontCombo_->currentText();
    for (const QString& family : QFontDatabase::families())
      if (fontCombo_->findText(family) < 0) fontCombo_->addItem(family);
    fontCombo_->setCurrentText(current);
    moreFonts->setEnabled(false);
  });

  AddPageButtons(layout);
  connect(nextButton_, &QPushButton::clicked, this, [this] { Next(); });
  connect(previousButton_, &QPushButton::clicked, this, [this] { Previous(); });
  ShowPage(1);
  setMinimumSize(460, 380);
}

void DigitalClockDialog::PickInto(QLabel* swatch, std::string& color) {
  PickColor(app_);
  if (app_.wizards.ColorCancelled) return;
  color = "#" + app_.wizards.PickedColorHex;
  swatch->setText(Q(color));
  swatch->setStyleSheet(QString("background-color:%1;color:%2")
                            .arg(Q(color), QColor(Q(color)).lightness() < 128 ? "white" : "black"));
}

void DigitalClockDialog::ShowPage(int page) {
  page_ = page;
  const ClockShows shows = Model().shows;
  heading_->setText(Q(ClockHeading(page, shows)));
  subHeading_->setText(Q(ClockSubHeading(page)));
  pages_->setCurrentIndex(page - 1);
  previousButton_->setEnabled(page > 1);
  nextButton_->setText(page == kClockLastPage ? "&Done" : "&Next >>");
}

void DigitalClockDialog::Next() {
  const tessarine::DigitalClock clock = Model();
  const int next = NextClockPage(page_, clock.shows);
  if (const CheckResult failed = CheckClockPage(next, clock)) {
    ShowPage(2);
    Refuse(failed);
    return;
  }
  if (next < kClockFinished) {
    ShowPage(next);
    return;
  }
  app_.wizards.HeadInsert = clock.Script();
  app_.wizards.BodyInsert = clock.Markup();
  accept();
}

void DigitalClockDialog::Previous() {
  ShowPage(PreviousClockPage(page_, Model().shows));
}

tessarine::DigitalClock DigitalClockDialog::Model() const {
  tessarine::DigitalClock m;
  m.shows = static_cast<ClockShows>(std::max(0, showsGroup_->checkedId()));
  if (QListWidgetItem* item = dateFormatList_->currentItem(); item && item->isSelected())
    m.dateFormat = S(item->text());
  m.dayOfWeek = dayOfWeekCheck_->isChecked();
  m.militaryTime = militaryTimeCheck_->isChecked();
  m.showSeconds = showSecondsCheck_->isChecked();
  m.showAmPm = showAmPmCheck_->isChecked();
  m.timeBeforeDate = timeBeforeDateCheck_->isChecked();
  m.backgroundColor = backgroundColor_;
  m.fontColor = fontColor_;
  m.font = S(fontCombo_->currentText());
  m.fontSize = S(fontSizeCombo_->currentText());
  m.fontStyle = S(fontStyleCombo_->currentText());
  m.padding = std::to_string(paddingSpin_->value());
  return m;
}

}  // namespace tessarine::ui
