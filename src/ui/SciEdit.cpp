#include "ui/SciEdit.h"

#include <Qsci/qscicommand.h>
#include <Qsci/qscicommandset.h>

#include <QEvent>

#include <algorithm>
#include <cstring>

namespace tessarine {
namespace {

constexpr Pos kAppendChunk = 1 << 20;

// Strict UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF.
bool IsValidUtf8(std::string_view s) {
  const auto* p = reinterpret_cast<const unsigned char*>(s.data());
  const auto* end = p + s.size();
  while (p < end) {
    // Runs of ASCII are the common case: eight bytes at a time.
    while (end - p >= 8) {
      std::uint64_t word;
      std::memcpy(&word, p, 8);
      if (word & 0x8080808080808080ULL) break;
      p += 8;
    }
    if (p == end) break;
    const unsigned char c = *p;
    if (c < 0x80) {
      ++p;
      continue;
    }
    int extra;
    unsigned char lo = 0x80, hi = 0xBF;
    if (c >= 0xC2 && c <= 0xDF) {
      extra = 1;
    } else if (c >= 0xE0 && c <= 0xEF) {
      extra = 2;
      if (c == 0xE0) lo = 0xA0;
      if (c == 0xED) hi = 0x9F;
    } else if (c >= 0xF0 && c <= 0xF4) {
      extra = 3;
      if (c == 0xF0) lo = 0x90;
      if (c == 0xF4) hi = 0x8F;
    } else {
      return false;
    }
    if (end - p <= extra) return false;
    if (p[1] < lo || p[1] > hi) return false;
    for (int i = 2; i <= extra; ++i)
      if ((p[i] & 0xC0) != 0x80) return false;
    p += extra + 1;
  }
  return true;
}

}  // namespace

// Collects the changes of one operation (or one input event) and reports them once, when
// the outermost operation ends and the widget is done with the text, so the handler may
// change it again.
class SciEdit::ChangeBatch {
 public:
  explicit ChangeBatch(SciEdit& edit) : edit_(edit) { ++edit_.batchDepth_; }
  ~ChangeBatch() {
    if (--edit_.batchDepth_ == 0) edit_.FinishChange();
  }
  ChangeBatch(const ChangeBatch&) = delete;
  ChangeBatch& operator=(const ChangeBatch&) = delete;

 private:
  SciEdit& edit_;
};

SciEdit::SciEdit(QWidget* parent) : QsciScintilla(parent) {
  // Our colouring owns every style byte: container lexing, and a style-needed request is
  // answered by marking the text styled as it stands.
  if (Send(SCI_GETLEXER) != SCLEX_CONTAINER) Send(SCI_SETLEXER, SCLEX_CONTAINER);
  connect(this, &QsciScintillaBase::SCN_STYLENEEDED, this, [this](int position) {
    FlushInsertion();
    Send(SCI_STARTSTYLING, static_cast<unsigned long>(position));
  });
  connect(this, &QsciScintillaBase::SCN_MODIFIED, this,
          [this](int position, int type, const char*, int length, int, int, int, int, int, int) {
            OnModified(position, type, length);
          });
  // Only the notices sent before a change. Once the widget reports an insertion or a
  // deletion itself, it also counts the characters up to it for accessibility, which costs
  // a tenth of a second per keystroke at the end of a 50 MB text.
  Send(SCI_SETMODEVENTMASK, SC_MOD_BEFOREINSERT | SC_MOD_BEFOREDELETE);
  Send(SCI_SETEOLMODE, SC_EOL_CRLF);
  Send(SCI_SETPASTECONVERTENDINGS, 1);
  Send(SCI_SETWRAPMODE, SC_WRAP_NONE);
  // Undo and redo keys reach the Edit menu, whose commands go through Undo and Redo here.
  for (auto command : {QsciCommand::Undo, QsciCommand::Redo}) {
    if (QsciCommand* c = standardCommands()->find(command)) {
      c->setKey(0);
      c->setAlternateKey(0);
    }
  }
  // The selection looks the same whether or not the window is the active one, as it does
  // in the desktop's other editors.
  QPalette p = palette();
  for (auto role : {QPalette::Highlight, QPalette::HighlightedText})
    p.setColor(QPalette::Inactive, role, p.color(QPalette::Active, role));
  setPalette(p);
  connect(this, &QsciScintillaBase::SCN_SAVEPOINTLEFT, this, &SciEdit::ModifiedChanged);
  connect(this, &QsciScintillaBase::SCN_SAVEPOINTREACHED, this, &SciEdit::ModifiedChanged);
}

void SciEdit::ApplyStyleTable(const StyleTable& table) {
  const auto define = [this](unsigned long style, const StyleLook& look) {
    Send(SCI_STYLESETFORE, style, look.color & 0xFFFFFF);
    Send(SCI_STYLESETBOLD, style, look.bold);
    Send(SCI_STYLESETITALIC, style, look.italic);
    if (!look.fontName.empty())
      SendScintilla(SCI_STYLESETFONT, static_cast<uintptr_t>(style), look.fontName.c_str());
    if (look.fontSize > 0) Send(SCI_STYLESETSIZE, style, look.fontSize);
  };
  define(STYLE_DEFAULT, table[0]);
  Send(SCI_STYLECLEARALL);
  for (int i = 0; i < kStyleCount; ++i)
    define(static_cast<unsigned long>(i), table[static_cast<size_t>(i)]);
}

std::string_view SciEdit::View() const {
  const auto* p = static_cast<const char*>(SendScintillaPtrResult(SCI_GETCHARACTERPOINTER));
  const Pos n = Length();
  return n > 0 && p ? std::string_view(p, static_cast<size_t>(n)) : std::string_view();
}

Pos SciEdit::Length() const {
  return Send(SCI_GETLENGTH);
}

std::string SciEdit::Text() const {
  return std::string(View());
}

std::string SciEdit::TextRange(Pos start, Pos length) const {
  return std::string(RangeView(start, length));
}

std::string_view SciEdit::RangeView(Pos start, Pos length) const {
  const Pos total = Length();
  start = std::clamp<Pos>(start, 0, total);
  length = std::clamp<Pos>(length, 0, total - start);
  if (length == 0) return {};
  // The range pointer only moves the gap when the range straddles it.
  const auto* p = reinterpret_cast<const char*>(
      SendScintilla(SCI_GETRANGEPOINTER, static_cast<unsigned long>(start), length));
  return std::string_view(p, static_cast<size_t>(length));
}

Pos SciEdit::LineFromPosition(Pos pos) const {
  return Send(SCI_LINEFROMPOSITION, static_cast<unsigned long>(std::clamp<Pos>(pos, 0, Length())));
}

void SciEdit::SetText(std::string_view bytes) {
  ChangeBatch batch(*this);
  pendingInsertion_ = false;
  loading_ = true;
  // Wrapping would lay out every line as it arrives; the view wraps what it shows later.
  const long wrapMode = Send(SCI_GETWRAPMODE);
  Send(SCI_SETWRAPMODE, SC_WRAP_NONE);
  Send(SCI_SETUNDOCOLLECTION, 0);
  Send(SCI_CLEARALL);
  // Decided per load: single-byte mode keeps any byte sequence one position per byte.
  setUtf8(IsValidUtf8(bytes));
  Send(SCI_ALLOCATE, bytes.size() + 1);
  for (size_t done = 0; done < bytes.size();) {
    const size_t n = std::min<size_t>(kAppendChunk, bytes.size() - done);
    SendScintilla(SCI_APPENDTEXT, static_cast<uintptr_t>(n), bytes.data() + done);
    done += n;
  }
  Send(SCI_SETUNDOCOLLECTION, 1);
  Send(SCI_EMPTYUNDOBUFFER);
  Send(SCI_SETSAVEPOINT);
  savePointLost_ = false;
  Send(SCI_SETEOLMODE, SC_EOL_CRLF);
  // Appended text has style 0 already.
  if (baseStyle_ != 0) {
    Send(SCI_STARTSTYLING, 0);
    Send(SCI_SETSTYLING, bytes.size(), baseStyle_);
  }
  Send(SCI_GOTOPOS, 0);
  Send(SCI_SETWRAPMODE, wrapMode);
  loading_ = false;
  explicitSet_ = false;
  changePending_ = true;  // a load is a change even when both texts are empty
  emit ModifiedChanged();
}

Pos SciEdit::SelStart() const {
  return Send(SCI_GETSELECTIONSTART);
}

Pos SciEdit::SelLength() const {
  return Send(SCI_GETSELECTIONEND) - Send(SCI_GETSELECTIONSTART);
}

void SciEdit::SetSelStart(Pos start) {
  if (start < 0) return;
  Send(SCI_SETEMPTYSELECTION, static_cast<unsigned long>(std::min(start, Length())));
  ScrollCaretLater();
  ForgetInsertionStyleIfMoved();
}

void SciEdit::SetSelLength(Pos length) {
  if (length < 0) return;
  const Pos start = SelStart();
  length = std::min(length, Length() - start);
  Send(SCI_SETSELECTION, static_cast<unsigned long>(start + length), start);
  ScrollCaretLater();
  ForgetInsertionStyleIfMoved();
}

std::string SciEdit::SelText() const {
  return TextRange(SelStart(), SelLength());
}

void SciEdit::ReplaceTarget(Pos start, Pos length, std::string_view bytes) {
  PauseWrapInBursts(bytes.size());
  Send(SCI_SETTARGETRANGE, static_cast<unsigned long>(start), start + length);
  SendScintilla(SCI_REPLACETARGET, static_cast<uintptr_t>(bytes.size()),
                bytes.empty() ? "" : bytes.data());
}

void SciEdit::ReplaceSel(std::string_view bytes) {
  const Pos start = SelStart(), length = SelLength();
  if (length == 0 && bytes.empty()) return;
  ChangeBatch batch(*this);
  ReplaceTarget(start, length, bytes);
  Send(SCI_SETEMPTYSELECTION, static_cast<unsigned long>(start + static_cast<Pos>(bytes.size())));
  ScrollCaretLater();
  ForgetInsertionStyleIfMoved();
}

void SciEdit::ReplaceRange(Pos start, Pos length, std::string_view bytes) {
  const Pos total = Length();
  start = std::clamp<Pos>(start, 0, total);
  length = std::clamp<Pos>(length, 0, total - start);
  if (length == 0 && bytes.empty()) return;
  ChangeBatch batch(*this);
  ReplaceTarget(start, length, bytes);
  ForgetInsertionStyleIfMoved();
}

void SciEdit::PauseWrapInBursts(std::size_t insertedBytes) {
  // A wrapping widget lays out every changed line at once. A burst of edits made before
  // the event loop runs again (Replace All) wraps once, when it is over; so does one large
  // insertion (a generated table), whose lines are laid out as they come into view.
  constexpr int kBurst = 32;
  constexpr std::size_t kLargeInsertion = 64 * 1024;
  if (burstEdits_ == 0) {
    QMetaObject::invokeMethod(
        this,
        [this] {
          burstEdits_ = 0;
          if (!burstPaused_) return;
          burstPaused_ = false;
          if (wrapSuspended_ && !isHidden()) {
            wrapSuspended_ = false;
            Send(SCI_SETWRAPMODE, static_cast<unsigned long>(suspendedWrap_));
          }
          Send(SCI_SCROLLCARET);
        },
        Qt::QueuedConnection);
  }
  if (burstEdits_ < kBurst) ++burstEdits_;
  if (insertedBytes >= kLargeInsertion) burstEdits_ = kBurst;
  if (burstEdits_ < kBurst || wrapSuspended_ || Send(SCI_GETWRAPMODE) == SC_WRAP_NONE) return;
  suspendedWrap_ = Send(SCI_GETWRAPMODE);
  Send(SCI_SETWRAPMODE, SC_WRAP_NONE);
  wrapSuspended_ = true;
  burstPaused_ = true;
}

void SciEdit::ScrollCaretLater() {
  // Bringing the caret into view lays out its line; a loop of edits (Replace All) needs
  // that once, when it is over, not once per edit.
  if (scrollQueued_) return;
  scrollQueued_ = true;
  QMetaObject::invokeMethod(
      this,
      [this] {
        scrollQueued_ = false;
        Send(SCI_SCROLLCARET);
      },
      Qt::QueuedConnection);
}

void SciEdit::SetInsertionStyle(Style style) {
  explicitSet_ = true;
  explicitPos_ = SelStart();
  explicitEnd_ = Send(SCI_GETSELECTIONEND);
  explicitStyle_ = style;
}

Style SciEdit::InsertionStyleAt(Pos pos) const {
  if (explicitSet_ && explicitPos_ == pos && SelStart() == pos) return explicitStyle_;
  return pos > 0 ? StyleAt(pos - 1) : baseStyle_;
}

Style SciEdit::InsertionStyle() const {
  return InsertionStyleAt(SelStart());
}

void SciEdit::ForgetInsertionStyleIfMoved() {
  if (explicitSet_ && (SelStart() != explicitPos_ || Send(SCI_GETSELECTIONEND) != explicitEnd_))
    explicitSet_ = false;
}

void SciEdit::OnModified(int position, int type, int length) {
  if (!(type & (SC_MOD_BEFOREINSERT | SC_MOD_BEFOREDELETE))) return;
  // The change before this one is complete now.
  FlushInsertion();
  // The widget inserts with style 0; typed, pasted, replaced and restored text takes the
  // insertion style instead, decided now and laid once the text is in.
  if ((type & SC_MOD_BEFOREINSERT) && !loading_ && length > 0) {
    pendingStyle_ = InsertionStyleAt(position);
    pendingPos_ = position;
    pendingLength_ = length;
    pendingInsertion_ = true;
  }
  changePending_ = true;
  // A change made outside our calls and the input events (a menu command calling the
  // widget, say) is finished and reported from the event loop.
  if (batchDepth_ == 0 && !finishQueued_) {
    finishQueued_ = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
          finishQueued_ = false;
          if (batchDepth_ == 0) FinishChange();
        },
        Qt::QueuedConnection);
  }
}

void SciEdit::FlushInsertion() const {
  if (!pendingInsertion_) return;
  pendingInsertion_ = false;
  const Pos total = Send(SCI_GETLENGTH);
  const Pos start = std::min(pendingPos_, total);
  const Pos count = std::min(pendingLength_, total - start);
  if (count <= 0) return;
  Send(SCI_STARTSTYLING, static_cast<unsigned long>(start));
  Send(SCI_SETSTYLING, static_cast<unsigned long>(count), pendingStyle_);
}

void SciEdit::FinishChange() {
  FlushInsertion();
  if (!changePending_) return;
  changePending_ = false;
  NotifyChanged();
}

void SciEdit::SetStyles(Pos start, const Style* styles, Pos count) {
  FlushInsertion();
  const Pos total = Length();
  start = std::clamp<Pos>(start, 0, total);
  count = std::clamp<Pos>(count, 0, total - start);
  if (count == 0) return;
  Send(SCI_STARTSTYLING, static_cast<unsigned long>(start));
  SendScintilla(SCI_SETSTYLINGEX, static_cast<uintptr_t>(count),
                reinterpret_cast<const char*>(styles));
}

void SciEdit::FillStyle(Pos start, Pos count, Style style) {
  FlushInsertion();
  const Pos total = Length();
  start = std::clamp<Pos>(start, 0, total);
  count = std::clamp<Pos>(count, 0, total - start);
  if (count == 0) return;
  Send(SCI_STARTSTYLING, static_cast<unsigned long>(start));
  Send(SCI_SETSTYLING, static_cast<unsigned long>(count), style);
}

Style SciEdit::StyleAt(Pos pos) const {
  FlushInsertion();
  if (pos < 0 || pos >= Length()) return 0;
  return static_cast<Style>(Send(SCI_GETSTYLEAT, static_cast<unsigned long>(pos)) & 0xFF);
}

void SciEdit::SetVisible(bool visible) {
  // A hidden control has no lines to lay out: without this, the widget's idle wrapping of
  // a large text runs in every yield of a pass.
  if (!visible && !wrapSuspended_) {
    suspendedWrap_ = Send(SCI_GETWRAPMODE);
    Send(SCI_SETWRAPMODE, SC_WRAP_NONE);
    wrapSuspended_ = true;
  } else if (visible && wrapSuspended_) {
    wrapSuspended_ = false;
    Send(SCI_SETWRAPMODE, static_cast<unsigned long>(suspendedWrap_));
  }
  setVisible(visible);
}

void SciEdit::SetWordWrap(bool wrap) {
  const long mode = wrap ? SC_WRAP_WORD : SC_WRAP_NONE;
  if (wrapSuspended_)
    suspendedWrap_ = mode;
  else
    Send(SCI_SETWRAPMODE, static_cast<unsigned long>(mode));
}

bool SciEdit::WordWrap() const {
  return (wrapSuspended_ ? suspendedWrap_ : Send(SCI_GETWRAPMODE)) != SC_WRAP_NONE;
}

void SciEdit::EmptyUndoBuffer() {
  // The widget takes an emptied history for the save point; a text that differs from the
  // saved one must stay modified.
  if (IsModified()) savePointLost_ = true;
  Send(SCI_EMPTYUNDOBUFFER);
}

bool SciEdit::CanRedo() const {
  return Send(SCI_CANREDO) != 0;
}

void SciEdit::Redo() {
  UndoOrRedo(SCI_REDO);
}

void SciEdit::BeginUndoGroup() {
  Send(SCI_BEGINUNDOACTION);
}

void SciEdit::EndUndoGroup() {
  Send(SCI_ENDUNDOACTION);
}

bool SciEdit::IsModified() const {
  return savePointLost_ || Send(SCI_GETMODIFY) != 0;
}

void SciEdit::SetSavePoint() {
  savePointLost_ = false;
  Send(SCI_SETSAVEPOINT);
  emit ModifiedChanged();
}

bool SciEdit::CanUndo() const {
  return Send(SCI_CANUNDO) != 0;
}

void SciEdit::UndoOrRedo(unsigned int message) {
  ChangeBatch batch(*this);
  // A wrapping widget lays out the lines of every step of a group as it goes (seconds for
  // a Replace All of many matches); without wrap the group is undone at once, and the
  // view then wraps what it shows.
  const long wrap = wrapSuspended_ ? static_cast<long>(SC_WRAP_NONE) : Send(SCI_GETWRAPMODE);
  if (wrap != SC_WRAP_NONE) Send(SCI_SETWRAPMODE, SC_WRAP_NONE);
  Send(message);
  if (wrap != SC_WRAP_NONE) Send(SCI_SETWRAPMODE, static_cast<unsigned long>(wrap));
  ForgetInsertionStyleIfMoved();
}

void SciEdit::Undo() {
  UndoOrRedo(SCI_UNDO);
}

namespace {

bool IsEditingInput(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Drop:
    case QEvent::ContextMenu:
      return true;
    default:
      return false;
  }
}

}  // namespace

template <typename Handler>
bool SciEdit::DeliverEvent(QEvent* e, Handler base) {
  // Other events may delete the widget (DeferredDelete): touch nothing after them.
  if (!IsEditingInput(e->type())) return base();
  ChangeBatch batch(*this);
  const bool handled = base();
  ForgetInsertionStyleIfMoved();
  return handled;
}

bool SciEdit::event(QEvent* e) {
  return DeliverEvent(e, [&] { return QsciScintilla::event(e); });
}

bool SciEdit::viewportEvent(QEvent* e) {
  return DeliverEvent(e, [&] { return QsciScintilla::viewportEvent(e); });
}

}  // namespace tessarine
