#pragma once
// The document window's edit control as the logic sees it. Positions are byte offsets;
// CR LF counts as two. One style byte per character (see core/Styles.h for the table).

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace tessarine {

using Pos = std::int64_t;
using Style = std::uint8_t;

class EditControl {
 public:
  virtual ~EditControl() = default;

  // Text. Bytes in, bytes out: no line-end or code page conversion.
  virtual Pos Length() const = 0;
  virtual std::string Text() const = 0;
  // The text without a copy; valid until the next change.
  virtual std::string_view View() const = 0;
  virtual std::string TextRange(Pos start, Pos length) const = 0;
  // A range in place, clamped, valid until the next change: searches read a large text
  // without copying it.
  virtual std::string_view RangeView(Pos start, Pos length) const = 0;
  // Zero-based line of a position; CR LF, a lone CR and a lone LF each end a line.
  virtual Pos LineFromPosition(Pos pos) const = 0;
  // Replaces the whole text (as a load does): styles become the base style, the caret goes
  // to 0, the undo history is emptied.
  virtual void SetText(std::string_view bytes) = 0;

  // Selection. SetSelStart collapses the selection, as a rich-text control does.
  // Out-of-range values are clamped; a negative start is ignored.
  virtual Pos SelStart() const = 0;
  virtual Pos SelLength() const = 0;
  virtual void SetSelStart(Pos start) = 0;
  virtual void SetSelLength(Pos length) = 0;
  void Select(Pos start, Pos length) {
    SetSelStart(start);
    SetSelLength(length);
  }
  virtual std::string SelText() const = 0;
  // Replaces the selection (or inserts at the caret); the caret ends behind the new text,
  // which takes the insertion style. Undoable.
  virtual void ReplaceSel(std::string_view bytes) = 0;
  // Replaces a range without moving through the selection; one undo step.
  virtual void ReplaceRange(Pos start, Pos length, std::string_view bytes) = 0;

  // Insertion style: the style that inserted text takes. Unless set since the caret last
  // moved, it is the style of the character before the caret (the base style at 0).
  virtual void SetInsertionStyle(Style style) = 0;
  virtual Style InsertionStyle() const = 0;
  // The style a load gives and a text without colour has (plain, maybe bold).
  virtual void SetBaseStyle(Style style) = 0;

  // Styling by ranges. Does not count as a change of the text.
  virtual void SetStyles(Pos start, const Style* styles, Pos count) = 0;
  virtual void FillStyle(Pos start, Pos count, Style style) = 0;
  virtual Style StyleAt(Pos pos) const = 0;

  // Window-ish properties.
  virtual void SetVisible(bool visible) = 0;
  virtual bool IsVisible() const = 0;
  virtual void SetFocus() = 0;
  virtual void SetWordWrap(bool wrap) = 0;
  virtual bool WordWrap() const = 0;

  // Undo and redo. Edits between BeginUndoGroup and the matching EndUndoGroup are one
  // step (groups nest; only the outermost counts).
  virtual void EmptyUndoBuffer() = 0;
  virtual bool CanUndo() const = 0;
  virtual void Undo() = 0;
  virtual bool CanRedo() const = 0;
  virtual void Redo() = 0;
  virtual void BeginUndoGroup() = 0;
  virtual void EndUndoGroup() = 0;

  // The save point: whether the text differs from what was last loaded or saved, whoever
  // changed it and whether or not anybody was told. Undo and redo back to the saved text
  // make it unmodified again, unless the history that led there was emptied.
  virtual bool IsModified() const = 0;
  virtual void SetSavePoint() = 0;

  // Called after every change of the text, whoever made it (typing, ReplaceSel, undo).
  void SetChangeHandler(std::function<void()> handler) { changeHandler_ = std::move(handler); }

 protected:
  void NotifyChanged() {
    if (changeHandler_) changeHandler_();
  }

 private:
  std::function<void()> changeHandler_;
};

// Makes the edits of one scope a single undo step, however the scope is left.
class UndoGroup {
 public:
  explicit UndoGroup(EditControl& edit) : edit_(edit) { edit_.BeginUndoGroup(); }
  ~UndoGroup() { edit_.EndUndoGroup(); }
  UndoGroup(const UndoGroup&) = delete;
  UndoGroup& operator=(const UndoGroup&) = delete;

 private:
  EditControl& edit_;
};

}  // namespace tessarine
