#pragma once
// The headless edit control: a byte string, a selection, a style byte per character and an
// undo history. Behaves as the widget does under the conformance suite.

#include <string>
#include <vector>

#include "platform/EditControl.h"

namespace tessarine {

class BufferEdit : public EditControl {
 public:
  Pos Length() const override { return static_cast<Pos>(text_.size()); }
  std::string Text() const override { return text_; }
  std::string_view View() const override { return text_; }
  std::string TextRange(Pos start, Pos length) const override;
  std::string_view RangeView(Pos start, Pos length) const override;
  Pos LineFromPosition(Pos pos) const override;
  void SetText(std::string_view bytes) override;

  Pos SelStart() const override { return selStart_; }
  Pos SelLength() const override { return selLength_; }
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

  void SetVisible(bool visible) override { visible_ = visible; }
  bool IsVisible() const override { return visible_; }
  void SetFocus() override { ++focusCount_; }
  void SetWordWrap(bool wrap) override { wordWrap_ = wrap; }
  bool WordWrap() const override { return wordWrap_; }

  void EmptyUndoBuffer() override;
  bool CanUndo() const override { return !undo_.empty(); }
  void Undo() override;
  bool CanRedo() const override { return !redo_.empty(); }
  void Redo() override;
  void BeginUndoGroup() override { ++groupDepth_; }
  void EndUndoGroup() override {
    if (groupDepth_ > 0 && --groupDepth_ == 0) groupStarted_ = false;
  }
  bool IsModified() const override;
  void SetSavePoint() override;

  // Typing as a user does: replaces the selection, one undo step per call.
  void Type(std::string_view bytes) { ReplaceSel(bytes); }
  int FocusCount() const { return focusCount_; }

 private:
  struct UndoStep {
    Pos start;
    std::string removed;
    Pos insertedLength;
    bool joinsPrevious;  // undone together with the step before it (one group)
  };
  // Undoes the last step of `from` and records its inverse on `to`; true if the step was
  // part of a group with the one before it.
  bool Revert(std::vector<UndoStep>& from, std::vector<UndoStep>& to);
  // Replaces a range, moving the selection with its text as the widget does; no notice.
  void Replace(Pos start, Pos length, std::string_view bytes, bool recordUndo);
  // An insertion style set on another selection no longer holds.
  void ForgetInsertionStyleIfMoved();

  std::string text_;
  std::vector<Style> styles_;
  Pos selStart_ = 0;
  Pos selLength_ = 0;
  Style baseStyle_ = 0;
  bool insertionStyleSet_ = false;
  Pos insertionStylePos_ = 0;  // the selection it was set on
  Pos insertionStyleEnd_ = 0;
  Style insertionStyle_ = 0;
  bool visible_ = true;
  bool wordWrap_ = false;
  int focusCount_ = 0;
  std::vector<UndoStep> undo_;
  std::vector<UndoStep> redo_;
  int groupDepth_ = 0;
  bool groupStarted_ = false;
  // The undo depth of the saved text; -1 when no undo or redo can reach it any more.
  std::int64_t savedDepth_ = 0;
};

}  // namespace tessarine
