#include "platform/BufferEdit.h"

#include <algorithm>

namespace tessarine {

std::string BufferEdit::TextRange(Pos start, Pos length) const {
  start = std::clamp<Pos>(start, 0, Length());
  length = std::clamp<Pos>(length, 0, Length() - start);
  return text_.substr(static_cast<size_t>(start), static_cast<size_t>(length));
}

std::string_view BufferEdit::RangeView(Pos start, Pos length) const {
  start = std::clamp<Pos>(start, 0, Length());
  length = std::clamp<Pos>(length, 0, Length() - start);
  return std::string_view(text_).substr(static_cast<size_t>(start), static_cast<size_t>(length));
}

Pos BufferEdit::LineFromPosition(Pos pos) const {
  const auto end = static_cast<size_t>(std::clamp<Pos>(pos, 0, Length()));
  Pos line = 0;
  for (size_t i = 0; i < end; ++i) {
    if (text_[i] == '\n') ++line;
    // A CR ends a line unless an LF follows it, which then ends it.
    else if (text_[i] == '\r' && (i + 1 >= text_.size() || text_[i + 1] != '\n'))
      ++line;
  }
  return line;
}

void BufferEdit::SetText(std::string_view bytes) {
  text_.assign(bytes);
  styles_.assign(text_.size(), baseStyle_);
  selStart_ = selLength_ = 0;
  insertionStyleSet_ = false;
  undo_.clear();
  redo_.clear();
  savedDepth_ = 0;
  NotifyChanged();
}

void BufferEdit::SetSelStart(Pos start) {
  if (start < 0) return;
  selStart_ = std::min(start, Length());
  selLength_ = 0;
  ForgetInsertionStyleIfMoved();
}

void BufferEdit::SetSelLength(Pos length) {
  if (length < 0) return;
  selLength_ = std::min(length, Length() - selStart_);
  ForgetInsertionStyleIfMoved();
}

std::string BufferEdit::SelText() const {
  return TextRange(selStart_, selLength_);
}

void BufferEdit::SetInsertionStyle(Style style) {
  insertionStyle_ = style;
  insertionStyleSet_ = true;
  insertionStylePos_ = selStart_;
  insertionStyleEnd_ = selStart_ + selLength_;
}

Style BufferEdit::InsertionStyle() const {
  if (insertionStyleSet_) return insertionStyle_;
  return selStart_ > 0 ? styles_[static_cast<size_t>(selStart_ - 1)] : baseStyle_;
}

void BufferEdit::ForgetInsertionStyleIfMoved() {
  if (selStart_ != insertionStylePos_ || selStart_ + selLength_ != insertionStyleEnd_)
    insertionStyleSet_ = false;
}

void BufferEdit::Replace(Pos start, Pos length, std::string_view bytes, bool recordUndo) {
  const auto inserted = static_cast<Pos>(bytes.size());
  // Both ends of the selection follow the deletion, then the insertion; an end at the
  // insertion point stays in front of the new text.
  const auto afterDelete = [&](Pos p) {
    return p <= start ? p : p <= start + length ? start : p - length;
  };
  Pos anchor = afterDelete(selStart_), caret = afterDelete(selStart_ + selLength_);
  const Style style = insertionStyleSet_ && insertionStylePos_ == start && anchor == start
                          ? insertionStyle_
                      : start > 0 ? styles_[static_cast<size_t>(start - 1)]
                                  : baseStyle_;
  const auto s = static_cast<size_t>(start), l = static_cast<size_t>(length);
  if (recordUndo) {
    // A new edit below the saved state makes that state unreachable.
    if (savedDepth_ > static_cast<std::int64_t>(undo_.size())) savedDepth_ = -1;
    redo_.clear();
    undo_.push_back({start, text_.substr(s, l), inserted, groupDepth_ > 0 && groupStarted_});
    if (groupDepth_ > 0) groupStarted_ = true;
  }
  text_.replace(s, l, bytes);
  styles_.erase(styles_.begin() + static_cast<std::ptrdiff_t>(s),
                styles_.begin() + static_cast<std::ptrdiff_t>(s + l));
  styles_.insert(styles_.begin() + static_cast<std::ptrdiff_t>(s), bytes.size(), style);
  if (anchor > start) anchor += inserted;
  if (caret > start) caret += inserted;
  selStart_ = anchor;
  selLength_ = caret - anchor;
}

void BufferEdit::ReplaceSel(std::string_view bytes) {
  if (selLength_ == 0 && bytes.empty()) return;
  const Pos start = selStart_;
  Replace(start, selLength_, bytes, true);
  selStart_ = start + static_cast<Pos>(bytes.size());
  selLength_ = 0;
  ForgetInsertionStyleIfMoved();
  NotifyChanged();
}

void BufferEdit::ReplaceRange(Pos start, Pos length, std::string_view bytes) {
  start = std::clamp<Pos>(start, 0, Length());
  length = std::clamp<Pos>(length, 0, Length() - start);
  if (length == 0 && bytes.empty()) return;
  Replace(start, length, bytes, true);
  ForgetInsertionStyleIfMoved();
  NotifyChanged();
}

void BufferEdit::SetStyles(Pos start, const Style* styles, Pos count) {
  start = std::clamp<Pos>(start, 0, Length());
  count = std::clamp<Pos>(count, 0, Length() - start);
  std::copy(styles, styles + count, styles_.begin() + static_cast<std::ptrdiff_t>(start));
}

void BufferEdit::FillStyle(Pos start, Pos count, Style style) {
  start = std::clamp<Pos>(start, 0, Length());
  count = std::clamp<Pos>(count, 0, Length() - start);
  std::fill_n(styles_.begin() + static_cast<std::ptrdiff_t>(start), count, style);
}

Style BufferEdit::StyleAt(Pos pos) const {
  if (pos < 0 || pos >= Length()) return 0;
  return styles_[static_cast<size_t>(pos)];
}

bool BufferEdit::Revert(std::vector<UndoStep>& from, std::vector<UndoStep>& to) {
  const UndoStep step = std::move(from.back());
  from.pop_back();
  const auto s = static_cast<size_t>(step.start);
  to.push_back({step.start, text_.substr(s, static_cast<size_t>(step.insertedLength)),
                static_cast<Pos>(step.removed.size()), false});
  Replace(step.start, step.insertedLength, step.removed, false);
  selStart_ = step.start + static_cast<Pos>(step.removed.size());
  selLength_ = 0;
  return step.joinsPrevious;
}

void BufferEdit::Undo() {
  if (undo_.empty()) return;
  // A group's redo steps lie in reverse: its first step on top, redone first, with the
  // rest of the group below it.
  const std::size_t firstRedo = redo_.size();
  while (!undo_.empty() && Revert(undo_, redo_)) {
  }
  for (std::size_t i = firstRedo; i < redo_.size(); ++i) redo_[i].joinsPrevious = i > firstRedo;
  ForgetInsertionStyleIfMoved();
  NotifyChanged();
}

void BufferEdit::Redo() {
  if (redo_.empty()) return;
  bool more = true;
  bool first = true;
  while (more && !redo_.empty()) {
    more = redo_.back().joinsPrevious;
    Revert(redo_, undo_);
    undo_.back().joinsPrevious = !first;
    first = false;
  }
  ForgetInsertionStyleIfMoved();
  NotifyChanged();
}

void BufferEdit::EmptyUndoBuffer() {
  // Once the way back is gone, a text that differs from the saved one stays modified.
  savedDepth_ = IsModified() ? -1 : 0;
  undo_.clear();
  redo_.clear();
}

bool BufferEdit::IsModified() const {
  return savedDepth_ != static_cast<std::int64_t>(undo_.size());
}

void BufferEdit::SetSavePoint() {
  savedDepth_ = static_cast<std::int64_t>(undo_.size());
}

}  // namespace tessarine
