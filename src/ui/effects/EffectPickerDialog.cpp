#include "ui/effects/EffectPickerDialog.h"

#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "conventions/SaveWarning.h"
#include "core/Application.h"
#include "ui/effects/DigitalClockDialog.h"
#include "ui/effects/InlineFrameDialog.h"
#include "ui/effects/JumpMenuDialog.h"
#include "ui/effects/MarqueeDialog.h"
#include "ui/effects/PersonalGreetingDialog.h"

namespace tessarine::ui {

EffectPickerDialog::EffectPickerDialog(Application& app, std::function<void()> openBackgroundSound,
                                       QWidget* parent)
    : EffectDialog(app, "EffectPickerDialog", "Special Effects", parent),
      openBackgroundSound_(std::move(openBackgroundSound)) {
  auto* layout = new QVBoxLayout(this);
  AddHeading(layout, kSpecialEffectsHeading, kSpecialEffectsPrompt);
  effectList_ = new QListWidget;
  effectList_->setObjectName("effectList");
  for (const std::string& name : SpecialEffectNames()) effectList_->addItem(Q(name));
  if (!openBackgroundSound_) {
    QListWidgetItem* sound = effectList_->item(static_cast<int>(SpecialEffect::BackgroundSound));
    sound->setFlags(sound->flags() & ~Qt::ItemIsEnabled);
  }
  layout->addWidget(effectList_, 1);
  AddPageButtons(layout);
  previousButton_->hide();
  connect(nextButton_, &QPushButton::clicked, this, [this] { Next(); });
  connect(effectList_, &QListWidget::itemDoubleClicked, this, [this] { Next(); });
  setMinimumSize(380, 300);
}

void EffectPickerDialog::Next() {
  QListWidgetItem* item = effectList_->currentItem();
  const int row = item && item->isSelected() && (item->flags() & Qt::ItemIsEnabled)
                      ? effectList_->row(item)
                      : -1;
  if (Refuse(CheckSpecialEffect(row))) return;
  const SpecialEffect effect = SpecialEffectAt(row);
  if (effect == SpecialEffect::BackgroundSound) {
    CheckSaveWarning(app_);
    accept();
    openBackgroundSound_();
    return;
  }
  RunWizard(effect);
  accept();
  InsertSpecialEffect(app_, effect);
}

void EffectPickerDialog::RunWizard(SpecialEffect effect) {
  // A wizard that is cancelled leaves both texts empty.
  app_.wizards.HeadInsert.clear();
  app_.wizards.BodyInsert.clear();
  switch (effect) {
    case SpecialEffect::DigitalClock:
      DigitalClockDialog(app_, this).exec();
      break;
    case SpecialEffect::JumpMenu:
      JumpMenuDialog(app_, this).exec();
      break;
    case SpecialEffect::InlineFrame:
      InlineFrameDialog(app_, this).exec();
      break;
    case SpecialEffect::Marquee:
      MarqueeDialog(app_, this).exec();
      break;
    case SpecialEffect::PersonalGreeting:
      PersonalGreetingDialog(app_, this).exec();
      break;
    case SpecialEffect::BackgroundSound:
      break;
  }
}

}  // namespace tessarine::ui
