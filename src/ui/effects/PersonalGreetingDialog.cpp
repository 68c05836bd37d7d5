#include "ui/effects/PersonalGreetingDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace tessarine::ui {

PersonalGreetingDialog::PersonalGreetingDialog(Application& app, QWidget* parent)
    : EffectDialog(app, "PersonalGreetingDialog", "Personal Greeting", parent) {
  auto* layout = new QVBoxLayout(this);
  AddHeading(layout, "Personalize your Web page",
             "Display your visitor's name when they visit your Web page.  Also, show how many "
             "times they've visited your page and the date and time of their last visit.");
  pages_ = new QStackedWidget;
  pages_->setObjectName("greetingPages");
  layout->addWidget(pages_, 1);

  auto* askPage = new QWidget;
  auto* ask = new QFormLayout(askPage);
  askText_ = new QLineEdit("Please enter your name:");
  askText_->setObjectName("askText");
  ask->addRow("Ask the visitor for their name:", askText_);
  askMethodCombo_ = new QComboBox;
  askMethodCombo_->setObjectName("askMethodCombo");
  for (const std::string& m : GreetingAskMethods()) askMethodCombo_->addItem(Q(m));
  ask->addRow("Ask the visitor using a:", askMethodCombo_);
  pages_->addWidget(askPage);

  auto* greetPage = new QWidget;
  auto* greet = new QFormLayout(greetPage);
  greetingText_ = new QLineEdit("Hello, ");
  greetingText_->setObjectName("greetingText");
  greet->addRow("Greeting:", greetingText_);
  pages_->addWidget(greetPage);

  auto* morePage = new QWidget;
  auto* more = new QVBoxLayout(morePage);
  visitsCheck_ = new QCheckBox("Show the number of times the user has visited your Web page");
  visitsCheck_->setObjectName("visitsCheck");
  lastVisitCheck_ =
      new QCheckBox("Show the date and time of the user's last visit to your Web page");
  lastVisitCheck_->setObjectName("lastVisitCheck");
  more->addWidget(visitsCheck_);
  more->addWidget(lastVisitCheck_);
  more->addStretch();
  pages_->addWidget(morePage);

  AddPageButtons(layout);
  connect(nextButton_, &QPushButton::clicked, this, [this] { Next(); });
  connect(previousButton_, &QPushButton::clicked, this, [this] { ShowPage(page_ - 1); });
  ShowPage(1);
  setMinimumSize(460, 260);
}

void PersonalGreetingDialog::ShowPage(int page) {
  page_ = std::clamp(page, 1, kGreetingPages);
  pages_->setCurrentIndex(page_ - 1);
  previousButton_->setEnabled(page_ > 1);
  nextButton_->setText(page_ == kGreetingPages ? "&Done" : "&Next >>");
}

void PersonalGreetingDialog::Next() {
  const tessarine::PersonalGreeting greeting = Model();
  if (Refuse(greeting.CheckPage(page_))) return;
  if (page_ < kGreetingPages) {
    ShowPage(page_ + 1);
    return;
  }
  PersonalGreeting_Done(app_, greeting);
  accept();
}

tessarine::PersonalGreeting PersonalGreetingDialog::Model() const {
  tessarine::PersonalGreeting m;
  m.askText = S(askText_->text());
  m.askMethod = S(askMethodCombo_->currentText());
  m.greeting = S(greetingText_->text());
  m.showVisits = visitsCheck_->isChecked();
  m.showLastVisit = lastVisitCheck_->isChecked();
  return m;
}

}  // namespace tessarine::ui
