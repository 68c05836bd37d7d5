#pragma once
// The document window's edit control on QScintilla. Talks to the widget in byte positions
// through SendScintilla only: QScintilla's QString and line/index conveniences convert the
// text, stop at NUL bytes or walk long lines character by character.

#include <Qsci/qsciscintilla.h>

#include <string_view>

#include "core/Styles.h"
#include "platform/EditControl.h"

namespace tessarine {

class SciEdit : public QsciScintilla, public EditControl {
  Q_OBJECT

 public:
  explicit SciEdit(QWidget* parent = nullptr);

  // Defines styles 0..31 (and the default style, from entry 0) from the table.
  void ApplyStyleTable(const StyleTable& table);
  // The text in place, valid until the next change; no copy of a large document.
  std::string_view View() const;

  Pos Length() const override;
  std::string Text() const override;
  std::string TextRange(Pos start, Pos length) const override;
  std::string_view RangeView(Pos start, Pos length) const override;
  Pos LineFromPosition(Pos pos) const override;
  void SetText(std::string_view bytes) override;

  Pos SelStart() const override;
  Pos SelLength() const override;
  void SetSelStart(Pos start) override;
  void SetSelLength(Pos length) override;
  std::string SelText() const override;
  void ReplaceSel(std::string_view bytes) override;
  void ReplaceRange(Pos start, Pos length, std::string_view bytes) override;

  void SetInsertionStyle(Style style) override;
  Style InsertionStyle() const override;
  void SetBaseStyle(Style style) override { baseStyle_ = style; }

  void SetStyles(Pos start, const Style* styles, Pos count) override;
  void FillStyle(Pos start, Pos count, Style style) override;
  Style StyleAt(Pos pos) const override;

  void SetVisible(bool visible) override;
  bool IsVisible() const override { return !isHidden(); }
  void SetFocus() override { setFocus(); }
  void SetWordWrap(bool wrap) override;
  bool WordWrap() const override;

  void EmptyUndoBuffer() override;
  bool CanUndo() const override;
  void Undo() override;
  bool CanRedo() const override;
  void Redo() override;
  void BeginUndoGroup() override;
  void EndUndoGroup() override;
  bool IsModified() const override;
  void SetSavePoint() override;

 signals:
  // IsModified may have changed.
  void ModifiedChanged();

 protected:
  // User input arrives here; edits made while handling one event are reported once, after
  // the widget has finished with it.
  bool event(QEvent* e) override;
  bool viewportEvent(QEvent* e) override;

 private:
  template <typename Handler>
  bool DeliverEvent(QEvent* e, Handler base);
  class ChangeBatch;

  long Send(unsigned int msg, unsigned long wParam = 0, long lParam = 0) const {
    return SendScintilla(msg, wParam, lParam);
  }
  void OnModified(int position, int type, int length);
  // Lays the insertion style on the last inserted text, once it is in.
  void FlushInsertion() const;
  void FinishChange();
  void UndoOrRedo(unsigned int message);
  Style InsertionStyleAt(Pos pos) const;
  void ReplaceTarget(Pos start, Pos length, std::string_view bytes);
  void ForgetInsertionStyleIfMoved();
  void ScrollCaretLater();
  void PauseWrapInBursts(std::size_t insertedBytes);

  Style baseStyle_ = 0;
  // While hidden (a colouring pass) the widget's wrap mode waits here.
  bool wrapSuspended_ = false;
  long suspendedWrap_ = 0;
  bool explicitSet_ = false;
  Pos explicitPos_ = 0;  // the selection it was set on
  Pos explicitEnd_ = 0;
  Style explicitStyle_ = 0;
  bool loading_ = false;
  // The history that led back to the saved text was emptied while the text differed.
  bool savePointLost_ = false;
  int batchDepth_ = 0;
  bool changePending_ = false;
  bool finishQueued_ = false;
  bool scrollQueued_ = false;
  int burstEdits_ = 0;
  bool burstPaused_ = false;
  mutable bool pendingInsertion_ = false;
  Pos pendingPos_ = 0;
  Pos pendingLength_ = 0;
  Style pendingStyle_ = 0;
};

}  // namespace tessarine
