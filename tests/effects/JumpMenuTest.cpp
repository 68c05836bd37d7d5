// The jump menu's script and form, byte for byte, and the editing of its rows.

#include "effects/JumpMenu.h"

#include <gtest/gtest.h>

#include "effects/EffectsTestSupport.h"

namespace tessarine {
namespace {

using testing::CrLf;

JumpMenu ThreeRows() {
  JumpMenu m;
  m.rows = {{"Home", "index.html"}, {kJumpMenuSeparator, ""}, {"News", "http://www.example.com/"}};
  return m;
}

TEST(JumpMenuText, FormListsRowsAndSeparators) {
  JumpMenu m = ThreeRows();
  EXPECT_EQ(m.Form(), CrLf("<FORM METHOD=POST ACTION=\"#\" onSubmit=\"return false\">\n"
                           "    <SELECT>\n"
                           "          <OPTION VALUE=\"index.html\">Home\n"
                           "          <OPTION VALUE=\"#\">--------------------\n"
                           "          <OPTION VALUE=\"http://www.example.com/\">News\n"
                           "\n"
                           "    </SELECT>\n"
                           "  <INPUT TYPE=Submit NAME=\"Submit\" VALUE=\"Go to\" "
                           "onClick=\"JumpTo(this.form)\">\n"
                           "</FORM>"));
  m.display = JumpMenuDisplay::AllItems;
  EXPECT_NE(m.Form().find("\r\n    <SELECT SIZE=\"3\">\r\n"), std::string::npos);
}

TEST(JumpMenuText, TargetDecidesTheJumpLine) {
  const std::string open = "    window.open(form.elements[0].options[i].value, 'newWin', '')}\n";
  auto frame = [](const std::string& name) {
    return "    window.parent.frames['" + name +
           "'].location = form.elements[0].options[i].value;\n}\n";
  };
  const std::pair<const char*, std::string> cases[] = {
      {"blank - Open in new window", open},
      {"blank", open},
      {"  blankety", open},       // the first five characters, trimmed
      {"BLANK", frame("BLANK")},  // exact comparison: a frame of that name
      {"main", frame("main")},
      {"self", frame("self")},
      {"top", frame("top")},
      {"", frame("self")},
      {"   ", frame("self")},
  };
  for (const auto& [target, jump] : cases) {
    JumpMenu m = ThreeRows();
    m.target = target;
    EXPECT_EQ(m.Script(), CrLf("<SCRIPT LANGUAGE=\"JavaScript\">\n<!--\n\nfunction JumpTo(form)\n"
                               "{\n   i = form.elements[0].selectedIndex;\n" +
                               jump + "//-->\n</SCRIPT>"))
        << "target '" << target << "'";
  }
}

TEST(JumpMenuRows, ChecksRefuseInTheirOrder) {
  JumpMenu empty;
  EXPECT_EQ(empty.Validate()->message, "Please enter 1 or more menu items in the list below.");
  EXPECT_EQ(empty.CheckEdit(-1)->message,
            "The list of menu items is empty.  Please add a menu item before editing it.");
  EXPECT_EQ(empty.CheckRemove(-1)->message,
            "The list of Menu items is empty.  Please add a menu item before removing it.");

  JumpMenu m = ThreeRows();
  EXPECT_FALSE(m.Validate());
  EXPECT_EQ(m.CheckEdit(1)->message,
            "The separator can't be edited.  It can only be added or removed.");
  EXPECT_EQ(m.CheckEdit(-1)->message, "Select a menu item from the list in order to edit it.");
  EXPECT_FALSE(m.CheckEdit(2));
  EXPECT_EQ(m.CheckRemove(-1)->message, "Select a menu item from the list in order to remove it.");
  EXPECT_FALSE(m.CheckRemove(1));

  const std::string up =
      "Select an item in the Menu item list.  You cannot move the first menu item upward.";
  const std::string down =
      "Select an item in the Menu item list.  You cannot move the last menu item downward.";
  EXPECT_EQ(m.CheckMoveUp(0)->message, up);
  EXPECT_EQ(m.CheckMoveUp(-1)->message, up);
  EXPECT_EQ(m.CheckMoveDown(2)->message, down);
  EXPECT_EQ(m.CheckMoveDown(-1)->message, down);
}

TEST(JumpMenuRows, MovesSwapNeighboursAndSelectionFollows) {
  JumpMenu m = ThreeRows();
  EXPECT_EQ(m.MoveUp(2), 1);
  EXPECT_EQ(m.rows[1].text, "News");
  EXPECT_EQ(m.rows[1].url, "http://www.example.com/");
  EXPECT_EQ(m.rows[2].text, kJumpMenuSeparator);
  EXPECT_EQ(m.MoveDown(0), 1);
  EXPECT_EQ(m.rows[0].text, "News");
  EXPECT_EQ(m.rows[1].text, "Home");
  EXPECT_EQ(m.MoveUp(0), 0);  // refused: nothing moves
  EXPECT_EQ(m.rows[0].text, "News");
  m.Remove(2);
  m.AddSeparator();
  ASSERT_EQ(m.rows.size(), 3u);
  EXPECT_EQ(m.rows[2].text, "--------------------");
  EXPECT_EQ(m.rows[2].url, "");
}

TEST(JumpMenuRows, ItemDialogChecksAndPrefixesWww) {
  JumpMenuItem item;
  EXPECT_EQ(item.Validate()->message,
            "Enter menu item text in the text input box or click Cancel.");
  item.text = "Home";
  EXPECT_EQ(item.Validate()->message,
            "Enter a Web page URL in the text input box or click Cancel.");
  const std::pair<const char*, const char*> urls[] = {{"www.example.com", "http://www.example.com"},
                                                      {"WWW.Example.com", "http://WWW.Example.com"},
                                                      {"wwwx.com", "wwwx.com"},
                                                      {"index.html", "index.html"}};
  for (const auto& [typed, stored] : urls) {
    item.url = typed;
    EXPECT_FALSE(item.Validate());
    EXPECT_EQ(item.Row().url, stored);
  }
}

}  // namespace
}  // namespace tessarine
