#include "ui/Form2.h"

#include <QCloseEvent>

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <algorithm>

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
  // No gutter: the text starts 60 twips in, as the rich-text control had it.
  for (int margin = 0; margin < 5; ++margin)
    edit_->SendScintilla(QsciScintillaBase::SCI_SETMARGINWIDTHN, margin, 0L);
  edit_->SendScintilla(QsciScintillaBase::SCI_SETMARGINLEFT, 0UL, 60L / 15);
  edit_->installEventFilter(this);
  ApplySettings();
}

void Form2::ApplySettings() {
  edit_->ApplyStyleTable(BuildStyleTable(app_.settings));
  // Tab stops every 200 twips, in characters of the document font.
  const int stop = 200 / 15;
  const long space = edit_->SendScintilla(QsciScintillaBase::SCI_TEXTWIDTH, 0UL, " ");
  edit_->SendScintilla(QsciScintillaBase::SCI_SETTABWIDTH,
                       std::max(1L, (stop + space / 2) / std::max(1L, space)));
}

EditControl& Form2::Edit() {
  return *edit_;
}

std::string Form2::Caption() const {
  return windowTitle().toUtf8().toStdString();
}

void Form2::SetCaption(const std::string& caption) {
  setWindowTitle(QString::fromUtf8(caption.data(), static_cast<int>(caption.size())));
}

void Form2::SetMaximized(bool maximized) {
  if (!sub_) return;
  if (maximized)
    sub_->showMaximized();
  else
    sub_->showNormal();
}

bool Form2::IsMaximized() const {
  return sub_ && sub_->isMaximized();
}

void Form2::Activate() {
  if (!sub_) return;
  if (sub_->mdiArea()) sub_->mdiArea()->setActiveSubWindow(sub_);
  if (!sub_->isVisible()) sub_->show();
}

bool Form2::RequestClose() {
  return sub_ ? sub_->close() : close();
}

void Form2::closeEvent(QCloseEvent* event) {
  if (QueryUnload())
    event->accept();
  else
    event->ignore();
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
    if (k->key() == Qt::Key_Greater)
      OnGreaterThanKeyUp(app_, *this);
    else if (k->key() == Qt::Key_QuoteDbl || k->key() == Qt::Key_Apostrophe)
      OnQuoteKeyUp(app_, *this);
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace tessarine
