#pragma once
// One behaviour for every edit control: the same cases run against the headless buffer and
// the widget. A factory type provides
//   using Control = ...;                                  // an EditControl
//   static std::unique_ptr<Control> Make();
//   static void Type(Control&, std::string_view text);    // as typed; "\r\n" is the Enter key
// Typed text is printable ASCII and Enter.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/EditControl.h"

namespace tessarine {

template <class Factory>
class EditConformance : public ::testing::Test {
 protected:
  using Control = typename Factory::Control;

  EditConformance() : control_(Factory::Make()) {}

  EditControl& Edit() { return *control_; }
  void Type(std::string_view text) { Factory::Type(*control_, text); }
  // Counts change notifications from now on.
  int& CountChanges() {
    changes_ = 0;
    Edit().SetChangeHandler([this] { ++changes_; });
    return changes_;
  }
  std::string Styles() {
    std::string s;
    for (Pos i = 0; i < Edit().Length(); ++i) s += static_cast<char>('0' + Edit().StyleAt(i));
    return s;
  }

 private:
  std::unique_ptr<Control> control_;
  int changes_ = 0;
};

TYPED_TEST_SUITE_P(EditConformance);

// Texts that must come out exactly as they went in.
inline std::vector<std::string> RoundTripSamples() {
  using namespace std::string_literals;
  std::vector<std::string> samples = {
      ""s,
      "plain"s,
      "nul\0in the\0middle\0"s,
      "\xE9t\xE9"s,                 // Windows-1252, not UTF-8
      "caf\xC3\xA9 \xE2\x82\xAC"s,  // valid UTF-8
      "\xC3\xA9\xC3"s,              // UTF-8 cut short
      "\xED\xA0\x80 \xC0\xAF"s,     // surrogate and overlong forms
      "one\rtwo\rthree\r"s,         // CR only
      "one\ntwo\nthree\n"s,         // LF only
      "a\r\nb\nc\rd\n\re\r\r\n"s,   // mixed
      "\r\n"s,
  };
  // Larger than one load chunk, every byte value, a UTF-8 character across the chunk edge.
  std::string big(3 << 20, '\0');
  for (size_t i = 0; i < big.size(); ++i) big[i] = static_cast<char>((i * 7 + i / 251) & 0xFF);
  samples.push_back(big);
  std::string edge((1 << 20) - 1, 'a');
  edge += "\xC3\xA9 tail\r\n";
  samples.push_back(edge);
  return samples;
}

TYPED_TEST_P(EditConformance, TextRoundTripsByteExact) {
  EditControl& e = this->Edit();
  for (const std::string& sample : RoundTripSamples()) {
    SCOPED_TRACE(sample.size() < 40 ? sample : "large sample");
    e.SetText(sample);
    EXPECT_EQ(e.Length(), static_cast<Pos>(sample.size()));
    EXPECT_TRUE(e.Text() == sample);
    const Pos third = e.Length() / 3;
    EXPECT_TRUE(e.TextRange(third, third) == sample.substr(third, third));
    EXPECT_EQ(e.SelStart(), 0);
    EXPECT_EQ(e.SelLength(), 0);
    EXPECT_FALSE(e.CanUndo());
  }
}

TYPED_TEST_P(EditConformance, EditsLeaveOtherBytesAlone) {
  using namespace std::string_literals;
  EditControl& e = this->Edit();
  // A UTF-8 text that edits make invalid, and a single-byte one that gets UTF-8.
  e.SetText("caf\xC3\xA9\r\nnext"s);
  e.ReplaceRange(5, 2, "\0\xFF\r"s);
  EXPECT_EQ(e.Text(), "caf\xC3\xA9\0\xFF\rnext"s);
  e.Select(5, 2);
  EXPECT_EQ(e.SelText(), "\0\xFF"s);
  e.ReplaceSel("\xE9\0"s);
  EXPECT_EQ(e.Text(), "caf\xC3\xA9\xE9\0\rnext"s);

  e.SetText("\xE9t\xE9\0x"s);
  e.SetSelStart(3);
  e.ReplaceSel("\xC3\xA9\n"s);
  EXPECT_EQ(e.Text(), "\xE9t\xE9\xC3\xA9\n\0x"s);
  e.Select(3, 4);
  EXPECT_EQ(e.SelText(), "\xC3\xA9\n\0"s);
  e.Undo();
  EXPECT_EQ(e.Text(), "\xE9t\xE9\0x"s);
}

TYPED_TEST_P(EditConformance, CrLfCountsAsTwo) {
  EditControl& e = this->Edit();
  e.SetText("a\r\nb\rc\nd");
  EXPECT_EQ(e.Length(), 8);
  e.Select(1, 2);
  EXPECT_EQ(e.SelText(), "\r\n");
  e.SetSelStart(3);
  e.ReplaceSel("X");
  EXPECT_EQ(e.Text(), "a\r\nXb\rc\nd");
  EXPECT_EQ(e.SelStart(), 4);
  e.Select(5, 3);
  EXPECT_EQ(e.SelText(), "\rc\n");
}

TYPED_TEST_P(EditConformance, SelectionAndSelText) {
  EditControl& e = this->Edit();
  e.SetText("abcdef");
  e.Select(1, 3);
  EXPECT_EQ(e.SelStart(), 1);
  EXPECT_EQ(e.SelLength(), 3);
  EXPECT_EQ(e.SelText(), "bcd");
  // Setting the start collapses the selection, as a rich-text control does.
  e.SetSelStart(2);
  EXPECT_EQ(e.SelStart(), 2);
  EXPECT_EQ(e.SelLength(), 0);
  EXPECT_EQ(e.SelText(), "");
  e.SetSelLength(2);
  EXPECT_EQ(e.SelText(), "cd");
  e.SetSelLength(0);
  EXPECT_EQ(e.SelStart(), 2);
  EXPECT_EQ(e.SelLength(), 0);
}

TYPED_TEST_P(EditConformance, ReplaceSelLeavesCaretBehindNewText) {
  EditControl& e = this->Edit();
  e.SetText("abcdef");
  e.Select(1, 2);
  e.ReplaceSel("XYZ");
  EXPECT_EQ(e.Text(), "aXYZdef");
  EXPECT_EQ(e.SelStart(), 4);
  EXPECT_EQ(e.SelLength(), 0);
  // Without a selection it inserts at the caret.
  e.ReplaceSel("+");
  EXPECT_EQ(e.Text(), "aXYZ+def");
  EXPECT_EQ(e.SelStart(), 5);
  // An empty text deletes the selection.
  e.Select(0, 2);
  e.ReplaceSel("");
  EXPECT_EQ(e.Text(), "YZ+def");
  EXPECT_EQ(e.SelStart(), 0);
  EXPECT_EQ(e.SelLength(), 0);
  // At the very end.
  e.SetSelStart(e.Length());
  e.ReplaceSel("!");
  EXPECT_EQ(e.Text(), "YZ+def!");
  EXPECT_EQ(e.SelStart(), 7);
}

TYPED_TEST_P(EditConformance, OutOfRangeValuesClampedNegativeIgnored) {
  EditControl& e = this->Edit();
  e.SetText("abcdef");
  e.SetSelStart(100);
  EXPECT_EQ(e.SelStart(), 6);
  e.Select(2, 1);
  e.SetSelStart(-1);  // ignored: the selection stays
  EXPECT_EQ(e.SelStart(), 2);
  EXPECT_EQ(e.SelLength(), 1);
  e.SetSelLength(-3);
  EXPECT_EQ(e.SelLength(), 1);
  e.SetSelLength(100);
  EXPECT_EQ(e.SelLength(), 4);
  EXPECT_EQ(e.SelText(), "cdef");

  EXPECT_EQ(e.TextRange(-5, 7), "abcdef");
  EXPECT_EQ(e.TextRange(4, 100), "ef");
  EXPECT_EQ(e.TextRange(100, 2), "");
  EXPECT_EQ(e.TextRange(2, -1), "");

  e.ReplaceRange(4, 100, "!");
  EXPECT_EQ(e.Text(), "abcd!");
  e.ReplaceRange(-2, 1, "<");
  EXPECT_EQ(e.Text(), "<bcd!");
  e.ReplaceRange(100, 5, ">");
  EXPECT_EQ(e.Text(), "<bcd!>");
}

TYPED_TEST_P(EditConformance, ReplaceRangeKeepsTheSelectionOnItsText) {
  EditControl& e = this->Edit();
  e.SetText("0123456789");
  // Before the range: unmoved.
  e.SetSelStart(2);
  e.ReplaceRange(5, 2, "abcd");
  EXPECT_EQ(e.Text(), "01234abcd789");
  EXPECT_EQ(e.SelStart(), 2);
  // Behind it: shifted by the change of length.
  e.SetSelStart(10);
  e.ReplaceRange(1, 3, "");
  EXPECT_EQ(e.Text(), "04abcd789");
  EXPECT_EQ(e.SelStart(), 7);
  // Inside it: to its start.
  e.SetSelStart(4);
  e.ReplaceRange(2, 4, "--");
  EXPECT_EQ(e.Text(), "04--789");
  EXPECT_EQ(e.SelStart(), 2);
  // A selection behind the range keeps its text.
  e.Select(4, 2);
  e.ReplaceRange(0, 1, "<<");
  EXPECT_EQ(e.SelText(), "78");
  EXPECT_EQ(e.SelStart(), 5);
  // One undo step.
  e.ReplaceRange(0, 7, "all new");
  e.Undo();
  EXPECT_EQ(e.Text(), "<<4--789");
}

TYPED_TEST_P(EditConformance, InsertedTextTakesStyleOfPreviousCharacter) {
  EditControl& e = this->Edit();
  e.SetText("abcd");
  const Style styles[] = {1, 1, 2, 3};
  e.SetStyles(0, styles, 4);
  e.SetSelStart(2);
  EXPECT_EQ(e.InsertionStyle(), 1);
  this->Type("x");
  EXPECT_EQ(this->Styles(), "11123");
  e.Select(3, 1);
  e.ReplaceSel("YY");
  EXPECT_EQ(e.Text(), "abxYYd");
  EXPECT_EQ(this->Styles(), "111113");
  e.ReplaceRange(6, 0, "zz");
  EXPECT_EQ(this->Styles(), "11111333");
  // At the start there is no previous character: the base style.
  e.SetBaseStyle(8);
  e.SetSelStart(0);
  EXPECT_EQ(e.InsertionStyle(), 8);
  this->Type("s");
  EXPECT_EQ(this->Styles(), "811111333");
  // A load gives every character the base style.
  e.SetText("new");
  EXPECT_EQ(this->Styles(), "888");
  e.SetText("");
  this->Type("t");
  EXPECT_EQ(this->Styles(), "8");
}

TYPED_TEST_P(EditConformance, ExplicitInsertionStyleAppliesWhereItWasSet) {
  EditControl& e = this->Edit();
  e.SetText("<a>text");
  e.FillStyle(0, 3, 1);
  e.SetSelStart(3);
  e.SetInsertionStyle(5);
  EXPECT_EQ(e.InsertionStyle(), 5);
  this->Type("q");
  // Typing on continues in it, now as the previous character's style.
  this->Type("r");
  EXPECT_EQ(e.Text(), "<a>qrtext");
  EXPECT_EQ(this->Styles(), "111550000");
  // Over a selection, and by ReplaceSel.
  e.Select(0, 3);
  e.SetInsertionStyle(2);
  e.ReplaceSel("<b>");
  EXPECT_EQ(this->Styles(), "222550000");
  // ReplaceRange at the caret where it was set.
  e.SetSelStart(9);
  e.SetInsertionStyle(6);
  e.ReplaceRange(9, 0, "!");
  EXPECT_EQ(this->Styles(), "2225500006");
}

TYPED_TEST_P(EditConformance, ExplicitInsertionStyleForgottenWhenCaretMoves) {
  EditControl& e = this->Edit();
  e.SetText("abcdef");
  e.FillStyle(0, 6, 3);
  e.SetSelStart(2);
  e.SetInsertionStyle(5);
  e.SetSelStart(4);
  EXPECT_EQ(e.InsertionStyle(), 3);
  this->Type("x");
  EXPECT_EQ(this->Styles(), "3333333");
  // Away and back again is a move too.
  e.SetSelStart(1);
  e.SetInsertionStyle(6);
  e.SetSelStart(5);
  e.SetSelStart(1);
  EXPECT_EQ(e.InsertionStyle(), 3);
  // Widening the selection from the caret is a move.
  e.SetInsertionStyle(6);
  e.SetSelLength(2);
  e.ReplaceSel("Q");
  EXPECT_EQ(e.Text(), "aQdxef");
  EXPECT_EQ(this->Styles(), "333333");
  // Text inserted elsewhere does not take it.
  e.SetSelStart(3);
  e.SetInsertionStyle(7);
  e.ReplaceRange(0, 0, "<");
  EXPECT_EQ(this->Styles(), "0333333");
  // Setting the start where the caret already stands is no move.
  e.SetSelStart(2);
  e.SetInsertionStyle(4);
  e.SetSelStart(2);
  EXPECT_EQ(e.InsertionStyle(), 4);
}

TYPED_TEST_P(EditConformance, UndoRestoresTextInInsertionStyle) {
  EditControl& e = this->Edit();
  e.SetText("abcdef");
  const Style styles[] = {1, 1, 2, 2, 3, 3};
  e.SetStyles(0, styles, 6);
  e.Select(2, 2);
  e.ReplaceSel("");
  EXPECT_EQ(e.Text(), "abef");
  e.Undo();
  EXPECT_EQ(e.Text(), "abcdef");
  EXPECT_EQ(e.SelStart(), 4);
  EXPECT_EQ(e.SelLength(), 0);
  EXPECT_EQ(this->Styles(), "111133");

  // Undo of a replacement: the old text is back, the caret behind it.
  e.Select(1, 2);
  e.ReplaceSel("XYZ");
  e.Undo();
  EXPECT_EQ(e.Text(), "abcdef");
  EXPECT_EQ(e.SelStart(), 3);
  EXPECT_FALSE(e.CanUndo());
}

TYPED_TEST_P(EditConformance, StylingIsNotAChange) {
  EditControl& e = this->Edit();
  e.SetText("<p>hello</p>");
  int& changes = this->CountChanges();
  const Style styles[] = {1, 1, 1};
  e.SetStyles(0, styles, 3);
  e.FillStyle(8, 4, 9);
  e.FillStyle(3, 2, 3);
  EXPECT_EQ(this->Styles(), "111330009999");
  EXPECT_EQ(changes, 0);
  EXPECT_FALSE(e.CanUndo());
  EXPECT_EQ(e.Text(), "<p>hello</p>");
  // A range is clamped (start first, then the count); outside the text a style reads as 0.
  e.FillStyle(10, 50, 2);
  e.SetStyles(11, styles, 3);
  e.FillStyle(-4, 5, 4);
  EXPECT_EQ(this->Styles(), "444440009921");
  EXPECT_EQ(e.StyleAt(-1), 0);
  EXPECT_EQ(e.StyleAt(12), 0);
  EXPECT_EQ(changes, 0);
}

TYPED_TEST_P(EditConformance, UndoOfTypingAndEmptyUndoBuffer) {
  EditControl& e = this->Edit();
  e.SetText("start ");
  e.SetSelStart(6);
  this->Type("abc");
  EXPECT_TRUE(e.CanUndo());
  e.Undo();
  EXPECT_EQ(e.Text(), "start ");
  EXPECT_EQ(e.SelStart(), 6);

  this->Type("typed");
  e.EmptyUndoBuffer();
  EXPECT_FALSE(e.CanUndo());
  int& changes = this->CountChanges();
  e.Undo();
  EXPECT_EQ(e.Text(), "start typed");
  EXPECT_EQ(changes, 0);

  e.SetSelStart(0);
  this->Type("x");
  e.Undo();
  EXPECT_EQ(e.Text(), "start typed");
  EXPECT_FALSE(e.CanUndo());
}

TYPED_TEST_P(EditConformance, GroupedEditsUndoAndRedoAsOneStep) {
  EditControl& e = this->Edit();
  e.SetText("a-b-c");
  {
    UndoGroup group(e);
    e.ReplaceRange(3, 1, "+");
    {
      UndoGroup inner(e);  // nested: still the one step
      e.ReplaceRange(1, 1, "+");
    }
    e.Select(0, 1);
    e.ReplaceSel("AA");
  }
  EXPECT_EQ(e.Text(), "AA+b+c");
  e.Undo();
  EXPECT_EQ(e.Text(), "a-b-c");
  EXPECT_FALSE(e.CanUndo());
  ASSERT_TRUE(e.CanRedo());
  e.Redo();
  EXPECT_EQ(e.Text(), "AA+b+c");
  EXPECT_FALSE(e.CanRedo());

  // Ungrouped edits stay separate steps, and a new edit drops what could be redone.
  e.ReplaceRange(0, 0, "1");
  e.ReplaceRange(0, 0, "2");
  e.Undo();
  EXPECT_EQ(e.Text(), "1AA+b+c");
  e.ReplaceRange(0, 0, "3");
  EXPECT_FALSE(e.CanRedo());
  e.Undo();
  e.Undo();
  EXPECT_EQ(e.Text(), "AA+b+c");
}

TYPED_TEST_P(EditConformance, SavePointFollowsTheText) {
  EditControl& e = this->Edit();
  e.SetText("saved");
  EXPECT_FALSE(e.IsModified());
  e.SetSelStart(5);
  this->Type("!");
  EXPECT_TRUE(e.IsModified());
  e.Undo();
  EXPECT_FALSE(e.IsModified()) << "undo back to the saved text";
  e.Redo();
  EXPECT_TRUE(e.IsModified());
  e.SetSavePoint();
  EXPECT_FALSE(e.IsModified());
  e.Undo();
  EXPECT_TRUE(e.IsModified()) << "undo behind the save";

  // Styling is no change; an emptied history keeps a changed text changed, even after
  // an edit and its undo.
  e.SetText("saved");
  e.FillStyle(0, 3, 2);
  EXPECT_FALSE(e.IsModified());
  e.ReplaceRange(0, 1, "S");
  e.EmptyUndoBuffer();
  EXPECT_TRUE(e.IsModified());
  e.ReplaceRange(0, 0, "x");
  e.Undo();
  EXPECT_TRUE(e.IsModified());
  e.SetSavePoint();
  e.EmptyUndoBuffer();
  EXPECT_FALSE(e.IsModified()) << "emptied while unchanged";

  // A new edit after undoing behind the save point: the saved text is out of reach.
  e.SetText("abc");
  e.ReplaceRange(0, 1, "X");
  e.SetSavePoint();
  e.Undo();
  e.ReplaceRange(2, 1, "Y");
  e.Undo();
  EXPECT_TRUE(e.IsModified());
  EXPECT_EQ(e.Text(), "abc");
}

TYPED_TEST_P(EditConformance, EnterTypesCrLf) {
  EditControl& e = this->Edit();
  e.SetText("ab");
  e.FillStyle(0, 2, 2);
  e.SetSelStart(1);
  this->Type("x\r\ny");
  EXPECT_EQ(e.Text(), "ax\r\nyb");
  EXPECT_EQ(e.Length(), 6);
  EXPECT_EQ(e.SelStart(), 5);
  EXPECT_EQ(this->Styles(), "222222");
}

TYPED_TEST_P(EditConformance, ChangeNotifications) {
  EditControl& e = this->Edit();
  std::string seen;
  int changes = 0;
  e.SetChangeHandler([&] {
    ++changes;
    seen = e.Text();
  });
  e.SetText("abc");
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(seen, "abc");
  e.SetText("");
  EXPECT_EQ(changes, 2);

  e.SetText("abc");
  changes = 0;
  e.Select(1, 1);
  e.ReplaceSel("XY");
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(seen, "aXYc");
  e.ReplaceRange(0, 1, "");
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(seen, "XYc");
  e.Undo();
  EXPECT_EQ(changes, 3);
  EXPECT_EQ(seen, "aXYc");

  changes = 0;
  this->Type("t");
  EXPECT_GE(changes, 1);
  EXPECT_EQ(seen, e.Text());

  // Nothing changed, nothing reported: moving, styling, empty replacements.
  changes = 0;
  e.Select(1, 2);
  e.SetSelStart(0);
  e.FillStyle(0, 2, 1);
  e.ReplaceSel("");
  e.ReplaceRange(2, 0, "");
  EXPECT_EQ(changes, 0);
}

TYPED_TEST_P(EditConformance, WindowProperties) {
  EditControl& e = this->Edit();
  e.SetVisible(false);
  EXPECT_FALSE(e.IsVisible());
  e.SetVisible(true);
  EXPECT_TRUE(e.IsVisible());
  e.SetWordWrap(true);
  EXPECT_TRUE(e.WordWrap());
  e.SetWordWrap(false);
  EXPECT_FALSE(e.WordWrap());
  e.SetVisible(false);
}

REGISTER_TYPED_TEST_SUITE_P(
    EditConformance, TextRoundTripsByteExact, EditsLeaveOtherBytesAlone, CrLfCountsAsTwo,
    SelectionAndSelText, ReplaceSelLeavesCaretBehindNewText, OutOfRangeValuesClampedNegativeIgnored,
    ReplaceRangeKeepsTheSelectionOnItsText, InsertedTextTakesStyleOfPreviousCharacter,
    ExplicitInsertionStyleAppliesWhereItWasSet, ExplicitInsertionStyleForgottenWhenCaretMoves,
    UndoRestoresTextInInsertionStyle, StylingIsNotAChange, UndoOfTypingAndEmptyUndoBuffer,
    EnterTypesCrLf, ChangeNotifications, WindowProperties, GroupedEditsUndoAndRedoAsOneStep,
    SavePointFollowsTheText);

}  // namespace tessarine
