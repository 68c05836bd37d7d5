// The list dialogs and the conversion of a selection: the exact bytes each writes.

#include <gtest/gtest.h>

#include "core/TestApp.h"
#include "wizards/BulletedList.h"
#include "wizards/ConvertText.h"
#include "wizards/DescriptiveList.h"
#include "wizards/NumberedList.h"

namespace tessarine {
namespace {

using testing::TestApp;

struct Lists : ::testing::Test {
  TestApp t;
  BufferEdit* edit = nullptr;
  void Open(const std::string& text, bool upper) {
    t.app.settings.TagCaseUpper = upper;
    edit = &t.NewWindow(text).Buffer();
  }
};

TEST_F(Lists, NumberedListInBothCases) {
  struct Case {
    bool upper;
    const char* type;
    const char* start;
    const char* expected;
  } cases[] = {
      // The default row still writes its type.
      {true, "Numbers (default)", "1",
       "\r\n<OL TYPE=\"1\">\r\n\t<LI> one\r\n\t<LI> two\r\n</OL>\r\n"},
      {false, "Lowercase letters (a)", "3",
       "\r\n<ol type=\"a\" start=\"3\">\r\n\t<li> one\r\n\t<li> two\r\n</ol>\r\n"},
      {true, "Small Roman numerals (i)", "01",
       "\r\n<OL TYPE=\"i\" START=\"01\">\r\n\t<LI> one\r\n\t<LI> two\r\n</OL>\r\n"},
      {true, "typed by hand", "1", "\r\n<OL>\r\n\t<LI> one\r\n\t<LI> two\r\n</OL>\r\n"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.expected);
    Open("ab", c.upper);
    edit->Select(1, 0);
    NumberedList form;
    form.itemText = "one";
    ASSERT_FALSE(NumberedList_Add(t.app, form));
    EXPECT_TRUE(form.itemText.empty());
    // The item still in the field goes in without the add button.
    form.itemText = "two";
    form.numberType = c.type;
    form.startNumber = c.start;
    ASSERT_FALSE(NumberedList_Done(t.app, form));
    EXPECT_EQ(edit->Text(), std::string("a") + c.expected + "b");
  }
}

TEST_F(Lists, NumberedListRefusals) {
  Open("x", true);
  NumberedList form;
  CheckResult failed = NumberedList_Add(t.app, form);
  ASSERT_TRUE(failed);
  EXPECT_EQ(failed->field, "itemText");
  EXPECT_EQ(t.messages.shown().back().text, "Please enter text for a Numbered List item.");
  for (const char* start : {"", "0", "-2", "0.5", "x"}) {
    form.startNumber = start;
    failed = NumberedList_Done(t.app, form);
    ASSERT_TRUE(failed) << start;
    EXPECT_EQ(failed->field, "startNumber");
    EXPECT_EQ(t.messages.shown().back().text,
              "The Start value must be equal to or greater than 1.");
  }
  EXPECT_EQ(edit->Text(), "x");
}

TEST_F(Lists, BulletedListHasNoLineEndBehindIt) {
  Open("", true);
  BulletedList form;
  form.itemText = "item";
  form.bulletType = "Disc";
  BulletedList_Done(t.app, form);
  EXPECT_EQ(edit->Text(), "\r\n<UL TYPE=\"DISC\">\r\n\t<LI> item\r\n</UL>");

  BulletedList lower;
  lower.bulletType = "Square";
  lower.itemText = "A";
  ASSERT_FALSE(lower.AddItem(false));
  lower.itemText = "B";
  ASSERT_FALSE(lower.AddItem(false));
  EXPECT_EQ(lower.Build(false), "\r\n<ul type=\"square\">\r\n\t<li> A\r\n\t<li> B\r\n</ul>");
  lower.bulletType.clear();
  EXPECT_EQ(lower.Build(true), "\r\n<UL>\r\n\t<li> A\r\n\t<li> B\r\n</UL>");

  BulletedList empty;
  const CheckResult failed = BulletedList_Add(t.app, empty);
  ASSERT_TRUE(failed);
  EXPECT_EQ(t.messages.shown().back().text, "Please enter text for a Bulleted List item.");
}

TEST_F(Lists, DescriptiveListTopicsNestAndBothFieldsAreNeeded) {
  Open("", false);
  DescriptiveList form;
  form.topic = "Tea";
  form.WrapTopic("B");
  form.WrapTopic("I");
  EXPECT_EQ(form.topic, "<I><B>Tea</B></I>");
  CheckResult failed = DescriptiveList_Add(t.app, form);
  ASSERT_TRUE(failed);
  EXPECT_EQ(failed->field, "description");
  EXPECT_EQ(t.messages.shown().back().text, "Please enter text for the Descriptive list Text.");
  form.description = "a drink";
  ASSERT_FALSE(DescriptiveList_Add(t.app, form));
  EXPECT_TRUE(form.topic.empty() && form.description.empty());
  failed = form.AddItem(false);
  ASSERT_TRUE(failed);
  EXPECT_EQ(failed->message, "Please enter text for a Descriptive list Topic.");
  // Only a whole pair left in the fields is taken at Done.
  form.topic = "half";
  DescriptiveList_Done(t.app, form);
  EXPECT_EQ(edit->Text(), "\r\n<dl>\r\n\t<dt> <I><B>Tea</B></I>\r\n\t\t<dd> a drink\r\n</dl>\r\n");
}

TEST_F(Lists, ConvertToTableAndList) {
  struct Case {
    ConvertTo option;
    const char* delimiter;
    const char* selection;
    const char* expected;
  } cases[] = {
      {ConvertTo::SpaceDelimited, "", "Dog Cat",
       "\r\n<TABLE>\t<TR>\r\n\t\t<TD>Dog</TD>\r\n\t\t<TD>Cat</TD></TR>\r\n</TABLE>"},
      {ConvertTo::TabDelimited, "", "a\tb\r\nc\r\n",
       "\r\n<TABLE>\t<TR>\r\n\t\t<TD>a</TD>\r\n\t\t<TD>b</TD></TR>\r\n"
       "\t<TR>\r\n\t\t<TD>c</TD></TR>\r\n</TABLE>"},
      {ConvertTo::CommaDelimited, "", "Dog, Cat,",
       "\r\n<TABLE>\t<TR>\r\n\t\t<TD>Dog</TD>\r\n\t\t<TD> Cat,</TD></TR>\r\n</TABLE>"},
      // A delimiter of two characters never matches: each line stays one cell.
      {ConvertTo::UserDelimited, "::", "a::b",
       "\r\n<TABLE>\t<TR>\r\n\t\t<TD>a::b</TD></TR>\r\n</TABLE>"},
      {ConvertTo::UserDelimited, ";", "a;;b\r\n\r\nc",
       "\r\n<TABLE>\t<TR>\r\n\t\t<TD>a</TD>\r\n\t\t<TD></TD>\r\n\t\t<TD>b</TD></TR>\r\n"
       "\t<TR>\r\n\t\t<TD></TD></TR>\r\n\t<TR>\r\n\t\t<TD>c</TD></TR>\r\n</TABLE>"},
      {ConvertTo::SpaceDelimited, "", "", "\r\n<TABLE></TABLE>"},
      {ConvertTo::List, "", "", "<UL>\r\n<LI>\r\n</UL>"},
      {ConvertTo::List, "", "one\r\ntwo", "<UL>\r\n<LI>one\r\n<LI>two\r\n</UL>"},
      {ConvertTo::List, "", "one\r\n", "<UL>\r\n<LI>one\r\n</UL>"},
      {ConvertTo::List, "", "a\nb\r", "<UL>\r\n<LI>a\nb\r\r\n</UL>"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.selection);
    // Lower tag case changes nothing here.
    Open(std::string("[") + c.selection + "]", false);
    edit->Select(1, static_cast<Pos>(std::string(c.selection).size()));
    ConvertText form;
    form.option = c.option;
    form.userDelimiter = c.delimiter;
    ASSERT_FALSE(ConvertText_OK(t.app, form));
    EXPECT_EQ(edit->Text(), std::string("[") + c.expected + "]");
  }
}

TEST_F(Lists, ConvertWithoutAnOptionAndOnALargeSelection) {
  Open("keep", true);
  edit->Select(0, 4);
  const CheckResult failed = ConvertText_OK(t.app, ConvertText{});
  ASSERT_TRUE(failed);
  EXPECT_EQ(t.messages.shown().back().text, "Select an Option.");
  EXPECT_EQ(edit->Text(), "keep");

  // Ten megabytes of short lines convert in one linear pass.
  std::string big;
  while (big.size() < 10u << 20) big += "alpha beta gamma\r\n";
  const std::size_t lines = big.size() / 18;
  const std::string table = ConvertToTable(big, " ");
  std::size_t rows = 0;
  for (std::size_t p = table.find("<TR>"); p != std::string::npos; p = table.find("<TR>", p + 1))
    ++rows;
  EXPECT_EQ(rows, lines);
  EXPECT_EQ(table.substr(table.size() - 48),
            "\t\t<TD>beta</TD>\r\n\t\t<TD>gamma</TD></TR>\r\n</TABLE>");
  const std::string list = ConvertToList(big);
  EXPECT_EQ(list.size(), 4 + lines * (6 + 16) + 7);
}

}  // namespace
}  // namespace tessarine
