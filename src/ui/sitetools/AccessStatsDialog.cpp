#include "ui/sitetools/AccessStatsDialog.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "core/Application.h"
#include "platform/FileDialogs.h"
#include "platform/MessageBoxes.h"
#include "sitetools/AccessStatsWizard.h"

#include "ui/sitetools/StepButtons.h"
namespace tessarine {

namespace {

QLabel* Text(const QString& text, const char* name, int pointSize = 0) {
  auto* label = new QLabel(text);
  label->setObjectName(name);
  label->setWordWrap(true);
  if (pointSize) {
    QFont f = label->font();
    f.setPointSize(pointSize);
    f.setBold(true);
    label->setFont(f);
  }
  return label;
}

}  // namespace

AccessStatsDialog::AccessStatsDialog(Application& app, QWidget* parent)
    : QDialog(parent), app_(app) {
  setObjectName("AccessStatsDialog");
  setWindowTitle("Web Page Statistics");
  pages_ = new QStackedWidget;

  auto* intro = new QWidget;
  auto* introLayout = new QVBoxLayout(intro);
  introLayout->addWidget(Text("Web page statistics", "introHeading", 14));
  introLayout->addWidget(
      Text("Tessarine Ambra allows you to analyze traffic to your Web page.", "introText"));
  introLayout->addWidget(
      Text("The access log script on your Web server records for every visit:\n"
           "    \u2022  the hour, the day of the week and the month\n"
           "    \u2022  the visitor's browser and its version\n"
           "    \u2022  the visitor's operating system\n"
           "    \u2022  the visitor's host name and domain",
           "gatheredList"));
  introLayout->addStretch();

  auto* steps = new QWidget;
  auto* stepsLayout = new QVBoxLayout(steps);
  stepsLayout->addWidget(Text("Analyzing your Web page statistics", "stepsHeading", 14));
  stepsLayout->addWidget(Text(
      "Follow the instructions below to analyze your collected Web page visitor data.  The "
      "resulting statistics will be presented to you in a series of charts in your Web browser.",
      "stepsText"));
  stepsLayout->addWidget(
      Text("1.  The Access Log text file (accesslog.txt) contains all the data about your Web page "
           "traffic.  Download the Access Log text file (accesslog.txt) from your Web server onto "
           "your computer's hard drive.",
           "stepOne"));
  stepsLayout->addWidget(
      Text("2.  In the box below, type the path and filename of the Access Log text file "
           "(accesslog.txt).",
           "stepTwo"));
  auto* pathRow = new QHBoxLayout;
  logPathText_ = new QLineEdit;
  logPathText_->setObjectName("logPathText");
  auto* browse = new QPushButton("Browse for file...");
  browse->setObjectName("browseButton");
  pathRow->addWidget(logPathText_, 1);
  pathRow->addWidget(browse);
  stepsLayout->addLayout(pathRow);
  stepsLayout->addWidget(
      Text("3.  Click the 'View Statistics' button to view the Web page statistics in your default "
           "Web browser.",
           "stepThree"));
  stepsLayout->addStretch();

  pages_->addWidget(intro);
  pages_->addWidget(steps);

  const StepButtons row = MakeStepButtons();
  QHBoxLayout* buttons = row.row;
  QPushButton* help = row.help;
  QPushButton* cancel = row.cancel;
  previousButton_ = row.previous;
  nextButton_ = row.next;
  // Wide enough for the second page's caption.
  nextButton_->setMinimumWidth(nextButton_->fontMetrics().horizontalAdvance("View statistics") +
                               24);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(pages_, 1);
  layout->addLayout(buttons);
  resize(520, 360);

  connect(nextButton_, &QPushButton::clicked, this, [this] { OnNext(); });
  connect(previousButton_, &QPushButton::clicked, this, [this] { ShowPage(page_ - 1); });
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(browse, &QPushButton::clicked, this, [this] { OnBrowse(); });
  connect(help, &QPushButton::clicked, this, [this] {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
    QCoreApplication::sendEvent(parentWidget() ? parentWidget() : this, &press);
  });
  ShowPage(0);
}

void AccessStatsDialog::ShowPage(int page) {
  page_ = std::max(0, std::min(1, page));
  pages_->setCurrentIndex(page_);
  previousButton_->setEnabled(page_ > 0);
  nextButton_->setText(page_ == 0 ? "&Next >>" : "View statistics");
  if (page_ == 1) logPathText_->setFocus();
}

void AccessStatsDialog::OnNext() {
  if (page_ == 0) return ShowPage(1);
  const AccessStatsInput input{logPathText_->text().toStdString()};
  if (const CheckResult check = ValidateAccessStats(input)) {
    app_.messages.Show(check->message, MsgButtons::OK, MsgIcon::Exclamation, app_.title);
    logPathText_->setFocus();
    return;
  }
  RunAccessStats(app_, input, app_.programFolder);
}

void AccessStatsDialog::OnBrowse() {
  FileDialogRequest request;
  request.title = "Open";
  request.filter = "Text Files (*.txt)|*.txt|All Files (*.*)|*.*";
  const std::string path = app_.fileDialogs.Show(request).path;
  if (!path.empty()) logPathText_->setText(QString::fromStdString(path));
}

}  // namespace tessarine
