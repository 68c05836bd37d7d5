#include "ui/help/StartScreenDialog.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/Application.h"
#include "core/HelpTopics.h"

namespace tessarine {

StartScreenDialog::StartScreenDialog(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), dontShowAgain_(new QCheckBox("&Don't show this screen again")) {
  setObjectName("StartScreen");
  setWindowTitle("Tessarine Main Menu");
  auto* layout = new QVBoxLayout(this);
  auto* heading = new QLabel("<b>Welcome to Tessarine</b>");
  heading->setObjectName("startHeading");
  heading->setAlignment(Qt::AlignCenter);
  layout->addWidget(heading);

  auto add = [&](const char* name, const QString& caption) {
    auto* b = new QPushButton(caption);
    b->setObjectName(name);
    b->setMinimumHeight(b->sizeHint().height() + 8);
    layout->addWidget(b);
    return b;
  };
  QPushButton* start = add("startButton", "&Start Tessarine");
  QPushButton* beginners = add("beginnersButton", "For &beginners");
  QPushButton* tutorial = add("tutorialButton", "HTML &Tutorial");
  QPushButton* howTo = add("howToButton", "&How to use Tessarine");
  start->setDefault(true);
  dontShowAgain_->setObjectName("dontShowAgain");
  layout->addSpacing(6);
  layout->addWidget(dontShowAgain_);

  connect(start, &QPushButton::clicked, this, &QDialog::accept);
  // The help pages open beside the screen, which stays for the way in.
  connect(beginners, &QPushButton::clicked, this, [this] { ShowHelpTopic(app_, kHelpBeginners); });
  connect(tutorial, &QPushButton::clicked, this, [this] { ShowHelpTopic(app_, kHelpTutorial); });
  connect(howTo, &QPushButton::clicked, this, [this] { ShowHelpTopic(app_, kHelpHowToUse); });
  setMinimumWidth(300);
}

void StartScreenDialog::done(int result) {
  // Any way of closing counts: the button, Esc or the window's own close.
  CloseStartScreen(app_.store, dontShowAgain_->isChecked());
  QDialog::done(result);
}

}  // namespace tessarine
