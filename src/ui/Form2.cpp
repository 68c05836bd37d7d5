#include "ui/Form2.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>

#include "core/Application.h"
#include "core/ColorizeRun.h"
#include "core/Styles.h"
#include "ui/SciEdit.h"

namespace tessarine {

Form2::Form2(Application& app, QWidget* parent)
    : QWidget(parent), app_(app), edit_(new SciEdit(this)), lblPleaseWait_(new QLabel(this)) {
  setAttribute(Qt::WA_DeleteOnClose, false);  // the sub-window owns and deletes us
  lblPleaseWait_->setText("Please wait while colorizing HTML tags...\r\nPress 'Escape' to cancel");
  lblPleaseWait_->setAlignment(Qt::AlignCenter);
  // The label lies behind the control and shows while a pass hides it.
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->addWidget(lblPleaseWait_, 0, 0);
  grid->addWidget(edit_, 0, 0);
  edit_->raise();
  edit_->installEventFilter(this);
  ApplySettings();
}

void Form2::ApplySettings() { edit_->ApplyStyleTable(BuildStyleTable(app_.settings)); }

EditControl& Form2::Edit() { return *edit_; }

std::string Form2::Caption() const { return windowTitle().toUtf8().toStdString(); }

void Form2::SetCaption(const std::string& caption) {
  setWindowTitle(QString::fromUtf8(caption.data(), static_cast<int>(caption.size())));
}

void Form2::SetMaximized(bool maximized) {
  if (!sub_) return;
  if (maximized) sub_->showMaximized();
  else sub_->showNormal();
}

bool Form2::IsMaximized() const { return sub_ && sub_->isMaximized(); }

void Form2::Activate() {
  if (!sub_) return;
  if (sub_->mdiArea()) sub_->mdiArea()->setActiveSubWindow(sub_);
  if (!sub_->isVisible()) sub_->show();
}

bool Form2::RequestClose() { return sub_ ? sub_->close() : close(); }

void Form2::closeEvent(QCloseEvent* event) {
  if (QueryUnload()) event->accept();
  else event->ignore();
}

bool Form2::eventFilter(QObject* watched, QEvent* event) {
  if (watched == edit_ && event->type() == QEvent::KeyPress) {
    const auto* k = static_cast<QKeyEvent*>(event);
    OnDocumentKeyPress(app_, k->key() == Qt::Key_Escape ? 27 : 0);
    if (k->key() == Qt::Key_Less && !(k->modifiers() & Qt::ControlModifier))
      OnLessThanKeyDown(app_, *this);
    else if (k->key() == Qt::Key_QuoteDbl || k->key() == Qt::Key_Apostrophe)
      OnQuoteKeyDown(app_, *this);
  } else if (watched == edit_ && event->type() == QEvent::KeyRelease) {
    const auto* k = static_cast<QKeyEvent*>(event);
    if (k->key() == Qt::Key_Greater) OnGreaterThanKeyUp(app_, *this);
    else if (k->key() == Qt::Key_QuoteDbl || k->key() == Qt::Key_Apostrophe)
      OnQuoteKeyUp(app_, *this);
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace tessarine
