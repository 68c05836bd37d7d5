#include "ui/DocumentForm.h"

#include <QCloseEvent>
#include <QCursor>
#include <QDropEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMimeData>
#include <QUrl>
#include <algorithm>

#include "core/Application.h"
#include "core/ColorizeRun.h"
#include "core/Documents.h"
#include "core/Editing.h"
#include "core/Styles.h"
#include "ui/MainWindow.h"
#include "ui/SciEdit.h"

namespace tessarine {

DocumentForm::DocumentForm(Application& app, QWidget* parent)
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
  // Wrapped lines end 300 twips short of the control's right edge.
  edit_->SendScintilla(QsciScintillaBase::SCI_SETMARGINRIGHT, 0UL, 300L / 15);
  edit_->installEventFilter(this);
  edit_->viewport()->installEventFilter(this);
  edit_->viewport()->setMouseTracking(true);
  edit_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(edit_, &QWidget::customContextMenuRequested, this, [this] { ShowEditMenu(); });
  connect(edit_, &SciEdit::ModifiedChanged, this, [this] { RefreshModifiedMark(); });
  ApplySettings();
}

void DocumentForm::ApplySettings() {
  edit_->ApplyStyleTable(BuildStyleTable(app_.settings));
  // Tab stops every 200 twips, in characters of the document font.
  const int stop = 200 / 15;
  const long space = edit_->SendScintilla(QsciScintillaBase::SCI_TEXTWIDTH, 0UL, " ");
  edit_->SendScintilla(QsciScintillaBase::SCI_SETTABWIDTH,
                       std::max(1L, (stop + space / 2) / std::max(1L, space)));
}

EditControl& DocumentForm::Edit() {
  return *edit_;
}

std::string DocumentForm::Caption() const {
  return caption_;
}

void DocumentForm::SetCaption(const std::string& caption) {
  caption_ = caption;
  // "[*]" is where the title shows its mark; a caption's own "[*]" is doubled to stay text.
  QString title = QString::fromUtf8(caption.data(), static_cast<int>(caption.size()));
  title.replace("[*]", "[*][*]");
  setWindowTitle(title + "[*]");
}

void DocumentForm::RefreshModifiedMark() {
  const bool modified = DocumentNeedsSaving(app_, app_.documents.SlotOf(this));
  setWindowModified(modified);
  if (app_.ActiveDocument() == this) app_.frame.SetSaveButtonEnabled(modified);
}

void DocumentForm::SetMaximized(bool maximized) {
  if (!sub_) return;
  if (maximized)
    sub_->showMaximized();
  else
    sub_->showNormal();
}

bool DocumentForm::IsMaximized() const {
  return sub_ && sub_->isMaximized();
}

void DocumentForm::Activate() {
  if (!sub_) return;
  if (sub_->mdiArea()) sub_->mdiArea()->setActiveSubWindow(sub_);
  if (!sub_->isVisible()) sub_->show();
}

bool DocumentForm::RequestClose() {
  return sub_ ? sub_->close() : close();
}

void DocumentForm::closeEvent(QCloseEvent* event) {
  if (QueryUnload())
    event->accept();
  else
    event->ignore();
}

namespace {

// The key codes of the editing rules for Qt's keys. "<" and ">" are the shifted comma and
// period keys whatever the layout; other keys keep a code no rule looks at.
int KeyCodeOf(const QKeyEvent& k, bool& shift) {
  shift = k.modifiers() & Qt::ShiftModifier;
  switch (k.key()) {
    case Qt::Key_Backtab:
      shift = true;
      return kKeyTab;
    case Qt::Key_Tab:
      return kKeyTab;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return kKeyEnter;
    case Qt::Key_Space:
      return kKeySpace;
    case Qt::Key_Less:
      shift = true;
      return kKeyLessComma;
    case Qt::Key_Comma:
      return kKeyLessComma;
    case Qt::Key_Greater:
      shift = true;
      return kKeyGreaterPeriod;
    case Qt::Key_Period:
      return kKeyGreaterPeriod;
    case Qt::Key_QuoteDbl:
    case Qt::Key_Apostrophe:
      return kKeyQuote;
    default:
      return -1;
  }
}

// The first local file a drag carries.
QString DraggedFile(const QMimeData* data) {
  if (!data || !data->hasUrls()) return {};
  for (const QUrl& url : data->urls())
    if (url.isLocalFile()) return url.toLocalFile();
  return {};
}

}  // namespace

bool DocumentForm::eventFilter(QObject* watched, QEvent* event) {
  if (watched == edit_ && EditEvent(event)) return true;
  if (watched == edit_->viewport() && ViewportEvent(event)) return true;
  return QWidget::eventFilter(watched, event);
}

bool DocumentForm::EditEvent(QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress: {
      const auto* k = static_cast<QKeyEvent*>(event);
      OnDocumentKeyPress(app_, k->key() == Qt::Key_Escape ? 27 : 0);
      keysDown_.insert(k->key());
      bool shift = false;
      const int code = KeyCodeOf(*k, shift);
      const bool ctrl = k->modifiers() & Qt::ControlModifier;
      if (EditKeyDown(app_, *this, code, shift, ctrl)) return true;
      // A tab replaces the selection, whatever it spans, as the rich-text control types it.
      if (code == kKeyTab && !ctrl && !app_.editing.SuppressEditKeys) {
        edit_->ReplaceSel("\t");
        return true;
      }
      return false;
    }
    case QEvent::KeyRelease: {
      const auto* k = static_cast<QKeyEvent*>(event);
      if (k->isAutoRepeat() || !keysDown_.remove(k->key())) return false;
      bool shift = false;
      const int code = KeyCodeOf(*k, shift);
      EditKeyUp(app_, *this, code, shift);
      return false;
    }
    case QEvent::FocusIn:
      app_.editing.SuppressEditKeys = false;
      return false;
    default:
      return false;
  }
}

bool DocumentForm::ViewportEvent(QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseMove:
      OnEditMouseMove(app_);
      return false;
    case QEvent::MouseButtonRelease:
      if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
        UpdateLinePanel(app_, *this);
      return false;
    case QEvent::DragEnter:
    case QEvent::DragMove: {
      auto* drag = static_cast<QDropEvent*>(event);
      if (DraggedFile(drag->mimeData()).isEmpty()) return false;
      drag->acceptProposedAction();
      return true;
    }
    case QEvent::Drop: {
      auto* drop = static_cast<QDropEvent*>(event);
      const QString file = DraggedFile(drop->mimeData());
      if (file.isEmpty()) return false;
      drop->acceptProposedAction();
      // A name that makes no markup still hands the focus to the text.
      if (!DropFile(app_, *this, file.toStdString())) edit_->setFocus();
      return true;
    }
    default:
      return false;
  }
}

void DocumentForm::ShowEditMenu() {
  auto* frame = qobject_cast<MainWindow*>(window());
  QMenu* menu = frame ? frame->Menu("mnuEdit") : nullptr;
  if (menu) menu->popup(QCursor::pos());
}

}  // namespace tessarine
