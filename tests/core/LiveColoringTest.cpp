#include "core/LiveColoring.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "TestApp.h"
#include "core/Colorize.h"
#include "platform/BufferEdit.h"

namespace tessarine {
namespace {

using testing::TestApp;

std::vector<Style> WholePass(const TestApp& t, const std::string& text) {
  std::vector<Style> styles(text.size());
  ColorizeTags(text, {t.app.settings.Flags, t.app.settings.Bold}, styles.data());
  return styles;
}

std::vector<Style> StylesOf(const EditControl& e) {
  std::vector<Style> s;
  for (Pos i = 0; i < e.Length(); ++i) s.push_back(e.StyleAt(i));
  return s;
}

TEST(LiveColoring, RangeRunsFromTagEndToTagEndAroundTheEditedLine) {
  BufferEdit e;
  e.SetText("<html>\r\n<p class=\"x\">one</p>\r\ntwo <b>three\r\nfour</b> five\r\nsix");
  const Pos two = static_cast<Pos>(e.Text().find("two"));
  const TextRange r = LiveColorRange(e, two + 1, two + 2);
  // From behind "</p>" of the line before, to behind "</b>" of the line after.
  EXPECT_EQ(e.TextRange(r.start, r.length), "\r\ntwo <b>three\r\nfour</b>");

  // No tag end near: the edited line alone.
  e.SetText("plain\r\nwords here\r\nmore");
  const TextRange line = LiveColorRange(e, 9, 9);
  EXPECT_EQ(e.TextRange(line.start, line.length), "words here");
  // Out-of-range edits are clamped; an empty text gives an empty range.
  e.SetText("");
  EXPECT_EQ(LiveColorRange(e, -5, 99).length, 0);
}

TEST(LiveColoring, RecolouredLinesMatchAWholePassOfTheNewText) {
  TestApp t;
  std::string text;
  for (int i = 0; i < 200; ++i)
    text += "<tr><td class=\"c\">cell " + std::to_string(i) + "</td><!-- note --></tr>\r\n";
  auto& w = t.NewWindow(text);
  BufferEdit& e = w.Buffer();
  const std::vector<Style> before = WholePass(t, text);
  e.SetStyles(0, before.data(), static_cast<Pos>(before.size()));

  // Typed text takes the style before it: plain until coloured again.
  const Pos at = static_cast<Pos>(text.find("cell 100"));
  e.SetSelStart(at);
  e.ReplaceSel("<b>bold</b> ");
  RecolorAroundEdit(t.app, w, at, at + 12);
  EXPECT_EQ(StylesOf(e), WholePass(t, e.Text()));

  // While a whole pass holds the colours, the live pass keeps away.
  e.SetSelStart(0);
  e.ReplaceSel("<i>x</i>");
  t.app.colorizing.ColorizingInProgress = 1;
  RecolorAroundEdit(t.app, w, 0, 8);
  EXPECT_NE(StylesOf(e), WholePass(t, e.Text()));
}

}  // namespace
}  // namespace tessarine
