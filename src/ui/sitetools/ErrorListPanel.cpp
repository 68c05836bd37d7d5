#include "ui/sitetools/ErrorListPanel.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTextBlock>

#include "core/Application.h"
#include "platform/DocumentWindow.h"
#include "platform/EditControl.h"
#include "platform/MessageBoxes.h"
#include "sitetools/TidyRunner.h"
#include "ui/MainWindow.h"

namespace tessarine {

ErrorListPanel::ErrorListPanel(MainWindow& frame)
    : QObject(&frame),
      frame_(frame),
      panel_(frame.findChild<QWidget*>("picErrorList")),
      text_(frame.findChild<QPlainTextEdit*>("txtTidyErrors")) {
  if (text_) text_->viewport()->installEventFilter(this);
}

std::string ErrorListPanel::DocumentText() {
  DocumentWindow* window = frame_.ActiveDocumentWindow();
  validated_ = dynamic_cast<QWidget*>(window);
  return window ? window->Edit().Text() : std::string();
}

std::string ErrorListPanel::DocumentTitle() {
  DocumentWindow* window = frame_.ActiveDocumentWindow();
  return window ? window->Caption() : std::string();
}

void ErrorListPanel::ShowErrorPanel(const std::string* text) {
  if (panel_) panel_->show();
  if (text && text_)
    text_->setPlainText(QString::fromUtf8(text->data(), static_cast<int>(text->size())));
}

void ErrorListPanel::ShowMessage(const std::string& text) {
  if (Application* app = frame_.App())
    app->messages.Show(text, MsgButtons::OK, MsgIcon::Exclamation, app->title);
}

bool ErrorListPanel::GoToMessage(int lineNumber) {
  if (!text_) return false;
  const QTextBlock block = text_->document()->findBlockByNumber(lineNumber);
  long long line = 0, column = 0;
  if (!block.isValid() || !ParseTidyLocation(block.text().toStdString(), line, column))
    return false;
  QWidget* target =
      validated_ ? validated_.data() : dynamic_cast<QWidget*>(frame_.ActiveDocumentWindow());
  auto* window = dynamic_cast<DocumentWindow*>(target);
  if (!window) return false;
  for (QWidget* w = target; w; w = w->parentWidget()) {
    if (auto* sub = qobject_cast<QMdiSubWindow*>(w)) {
      frame_.MdiArea()->setActiveSubWindow(sub);
      break;
    }
  }
  EditControl& edit = window->Edit();
  edit.SetSelStart(static_cast<Pos>(OffsetOfTidyLocation(edit.View(), line, column)));
  edit.SetSelLength(0);
  edit.SetFocus();
  return true;
}

bool ErrorListPanel::eventFilter(QObject* watched, QEvent* event) {
  if (text_ && watched == text_->viewport() && event->type() == QEvent::MouseButtonRelease) {
    const auto* mouse = static_cast<QMouseEvent*>(event);
    if (mouse->button() == Qt::LeftButton)
      GoToMessage(text_->cursorForPosition(mouse->position().toPoint()).blockNumber());
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace tessarine
