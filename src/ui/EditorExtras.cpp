#include "ui/EditorExtras.h"

#include <QTimer>
#include <algorithm>
#include <string>

#include "core/LiveColoring.h"
#include "core/TagMatch.h"
#include "ui/DocumentForm.h"
#include "ui/SciEdit.h"

namespace tessarine {
namespace {

constexpr int kMatchIndicator = 8;    // clear of the indicators the widget itself uses
constexpr int kRecolorPauseMs = 400;  // typing on: colour once the user stops
constexpr Pos kMatchWindow = 2 * kTagMatchReach + 8192;

}  // namespace

EditorExtras::EditorExtras(Application& app, DocumentForm& form)
    : QObject(&form), app_(app), form_(form), recolorTimer_(new QTimer(this)) {
  setObjectName("EditorExtras");
  SciEdit& e = form.Editor();
  e.SendScintilla(QsciScintillaBase::SCI_INDICSETSTYLE, kMatchIndicator,
                  QsciScintillaBase::INDIC_STRAIGHTBOX);
  e.SendScintilla(QsciScintillaBase::SCI_INDICSETFORE, kMatchIndicator, 0x0090E0L);
  e.SendScintilla(QsciScintillaBase::SCI_INDICSETALPHA, kMatchIndicator, 90L);
  e.SendScintilla(QsciScintillaBase::SCI_INDICSETUNDER, kMatchIndicator, 1L);
  e.SendScintilla(QsciScintillaBase::SCI_SETCARETLINEBACK, 0xF7EFE8L);  // BGR: a pale blue
  e.SendScintilla(QsciScintillaBase::SCI_SETMARGINTYPEN, 0UL,
                  static_cast<long>(QsciScintillaBase::SC_MARGIN_NUMBER));
  recolorTimer_->setSingleShot(true);
  recolorTimer_->setInterval(kRecolorPauseMs);
  connect(recolorTimer_, &QTimer::timeout, this, [this] { RecolorPending(); });
  connect(&e, &QsciScintillaBase::SCN_UPDATEUI, this, [this](int updated) {
    if (updated & (QsciScintillaBase::SC_UPDATE_SELECTION | QsciScintillaBase::SC_UPDATE_CONTENT))
      HighlightMatchingTag();
  });
  connect(&e, &QsciScintillaBase::SCN_MODIFIED, this,
          [this](int position, int type, const char*, int length, int, int, int, int, int, int) {
            if (type & QsciScintillaBase::SC_MOD_BEFOREINSERT) NoteEdit(position, length);
            if (type & QsciScintillaBase::SC_MOD_BEFOREDELETE) NoteEdit(position, 0);
          });
  connect(&e, &SciEdit::ModifiedChanged, this, [this] { UpdateLineNumberWidth(); });
}

EditorExtras& EditorExtras::Of(Application& app, DocumentForm& form) {
  if (auto* extras = form.findChild<EditorExtras*>("EditorExtras", Qt::FindDirectChildrenOnly))
    return *extras;
  return *new EditorExtras(app, form);
}

void EditorExtras::Apply(const EditorViewOptions& options) {
  options_ = options;
  SciEdit& e = form_.Editor();
  e.SendScintilla(QsciScintillaBase::SCI_SETCARETLINEVISIBLE, options.currentLine ? 1UL : 0UL);
  numberDigits_ = 0;
  UpdateLineNumberWidth();
  HighlightMatchingTag();
  if (!options.colorAsYouType) {
    recolorTimer_->stop();
    dirtyStart_ = dirtyEnd_ = -1;
  }
}

void EditorExtras::UpdateLineNumberWidth() {
  SciEdit& e = form_.Editor();
  if (!options_.lineNumbers) {
    e.SendScintilla(QsciScintillaBase::SCI_SETMARGINWIDTHN, 0UL, 0L);
    return;
  }
  // Room for five digits at least, more once the text has more lines.
  const long lines = e.SendScintilla(QsciScintillaBase::SCI_GETLINECOUNT);
  const int digits = std::max(5, static_cast<int>(std::to_string(lines).size()));
  if (digits == numberDigits_) return;
  numberDigits_ = digits;
  const std::string sample = "_" + std::string(static_cast<std::size_t>(digits), '9');
  const long width = e.SendScintilla(
      QsciScintillaBase::SCI_TEXTWIDTH,
      static_cast<unsigned long>(QsciScintillaBase::STYLE_LINENUMBER), sample.c_str());
  e.SendScintilla(QsciScintillaBase::SCI_SETMARGINWIDTHN, 0UL, width);
}

void EditorExtras::HighlightMatchingTag() {
  SciEdit& e = form_.Editor();
  e.SendScintilla(QsciScintillaBase::SCI_SETINDICATORCURRENT, kMatchIndicator);
  e.SendScintilla(QsciScintillaBase::SCI_INDICATORCLEARRANGE, 0UL, e.Length());
  if (!options_.matchingTags || !e.isVisible()) return;
  const Pos caret = e.SelStart();
  const Pos from = std::max<Pos>(0, caret - kMatchWindow / 2);
  const std::string_view window = e.RangeView(from, kMatchWindow);
  const TagMatch m = FindMatchingTag(window, from, caret);
  if (!m.found) return;
  for (auto [start, length] : {std::pair{m.tagStart, m.tagLength}, {m.matchStart, m.matchLength}})
    e.SendScintilla(QsciScintillaBase::SCI_INDICATORFILLRANGE, static_cast<unsigned long>(start),
                    static_cast<long>(length));
}

void EditorExtras::NoteEdit(Pos position, Pos insertedLength) {
  if (!options_.colorAsYouType) return;
  if (dirtyStart_ < 0) {
    dirtyStart_ = position;
    dirtyEnd_ = position + insertedLength;
  } else {
    // Later edits shift earlier ones a little; the range widens to whole lines anyway.
    dirtyStart_ = std::min(dirtyStart_, position);
    dirtyEnd_ = std::max(dirtyEnd_, position + insertedLength);
  }
  recolorTimer_->start();
}

void EditorExtras::RecolorPending() {
  if (dirtyStart_ < 0) return;
  const Pos start = dirtyStart_, end = dirtyEnd_;
  dirtyStart_ = dirtyEnd_ = -1;
  RecolorAroundEdit(app_, form_, start, end);
}

}  // namespace tessarine
