#include "ui/wizards/ConvertTextDialog.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

namespace tessarine::ui {

ConvertTextDialog::ConvertTextDialog(Application& app, QWidget* parent)
    : WizardDialog(app, "ConvertTextDialog", "Convert", parent) {
  auto* layout = new QVBoxLayout(this);
  auto* heading = new QLabel("<b>Convert to List or Table</b>");
  heading->setObjectName("heading");
  layout->addWidget(heading);
  auto* grid = new QGridLayout;
  struct Row {
    const char* name;
    const char* caption;
    const char* sample;
    ConvertTo option;
  } rows[] = {
      {"spaceDelimited", "Space Delimited", "Dog Cat Mouse", ConvertTo::SpaceDelimited},
      {"tabDelimited", "Tab Delimited", "Dog       Cat       Mouse", ConvertTo::TabDelimited},
      {"commaDelimited", "Comma Delimited", "Dog, Cat, Mouse", ConvertTo::CommaDelimited},
      {"userDelimited", "User-defined delimiter", nullptr, ConvertTo::UserDelimited},
      {"toList", "Convert Selected Text to List", nullptr, ConvertTo::List}};
  int line = 0;
  for (const Row& r : rows) {
    auto* b = new QRadioButton(r.caption);
    b->setObjectName(r.name);
    grid->addWidget(b, line, 0);
    options_.emplace_back(b, r.option);
    if (r.sample) {
      auto* sample = new QLabel(r.sample);
      sample->setObjectName(QString(r.name) + "Sample");
      grid->addWidget(sample, line, 1);
    } else if (r.option == ConvertTo::UserDelimited) {
      userDelimiter_ = new QLineEdit;
      userDelimiter_->setObjectName("userDelimiter");
      userDelimiter_->setMaximumWidth(60);
      grid->addWidget(userDelimiter_, line, 1, Qt::AlignLeft);
    }
    ++line;
  }
  layout->addLayout(grid);
  AddButtons(layout, "okButton", [this] {
    const CheckResult failed = ConvertText_OK(app_, Model());
    FocusField(failed);
    return !failed;
  });
}

tessarine::ConvertText ConvertTextDialog::Model() const {
  tessarine::ConvertText m;
  for (const auto& [button, option] : options_)
    if (button->isChecked()) m.option = option;
  m.userDelimiter = S(userDelimiter_->text());
  return m;
}

}  // namespace tessarine::ui
