// The style editor's and the style manager's logic: names, declarations, and what OK,
// Apply and the batch write-back leave in the document.

#include <gtest/gtest.h>

#include "core/TestApp.h"
#include "styles/CSSFunctions.h"
#include "styles/StyleEditor.h"
#include "styles/StyleManager.h"

namespace tessarine {
namespace {

using testing::TestApp;

TEST(StyleEditor, SelectorRulesOfTheNamingPage) {
  const struct {
    bool custom;
    const char* element;
    const char* text;
    bool id;
    const char* selector;
  } cases[] = {
      {false, "A:hover", "ignored", true, "A:hover"},
      {true, "", "x", true, "#x"},
      {true, "", ".x", true, "#.x"},
      {true, "", "#x", false, ".#x"},
      {true, "", ".x", false, ".x"},
      {true, "", " x ", false, ". x "},
  };
  for (const auto& c : cases) {
    StyleEditorFields f;
    f.customName = c.custom;
    f.htmlElement = c.element;
    f.customText = c.text;
    f.idSelector = c.id;
    EXPECT_EQ(GetStyleSelector(f), c.selector) << c.text;
  }
  StyleEditorFields f;
  EXPECT_EQ(ValidateStyleName(f)->message, "Please select an HTML element from the list below.");
  f.customName = true;
  const CheckResult empty = ValidateStyleName(f);
  EXPECT_EQ(empty->message, "Please enter the name of the CSS style in the text box below.");
  EXPECT_EQ(empty->field, "customName");
  f.customText = "n";
  EXPECT_FALSE(ValidateStyleName(f));
}

StyleEditorFields Sample() {
  StyleEditorFields f;
  f.font = "Arial";
  f.fontSize = "12";
  f.fontSizeUnit = "em";  // the builder's units are fixed
  f.fontColor = "ff0000";
  f.bold = true;
  f.underline = f.strikethrough = true;
  f.backgroundTile = "in both directions";
  f.width = "50";
  f.widthUnit = "%";
  return f;
}

TEST(StyleEditor, BuilderIgnoresUnitBoxesAndLaysOutByFlag) {
  const StyleEditorFields f = Sample();
  EXPECT_EQ(BuildStyleDefinition(f, true),
            "\tfont-family:Arial;\r\n\tfont-size:12pt;\r\n\tcolor:ff0000;\r\n"
            "\tfont-weight:bold;\r\n\ttext-decoration:underline line-through;\r\n"
            "\tbackground-repeat:in both directions;\r\n\twidth:50px;");
  EXPECT_EQ(BuildStyleDefinition(f, false),
            "font-family:Arial; font-size:12pt; color:ff0000; font-weight:bold; "
            "text-decoration:underline line-through; background-repeat:in both directions; "
            "width:50px;");
  EXPECT_EQ(BuildStyleDefinition(StyleEditorFields{}, true), "");
  EXPECT_EQ(BuildStyleDefinition(StyleEditorFields{}, false), "");
}

TEST(StyleEditor, ControlsRoundTripThroughAStyleAndKeepItsUnknownProperties) {
  StyleState state;
  ParseStyleDefinition(state, ".x",
                       "background:url(a.gif) #fff;cursor:hand;font-variant:small-caps;"
                       "text-decoration:overline");
  CSSstyle& s = *state.CurrentStyle;
  StyleEditorFields f;
  LoadStyleControls(f, s);
  EXPECT_EQ(f.backgroundImage, "url(a.gif) #fff");
  EXPECT_TRUE(f.smallCaps);
  EXPECT_TRUE(f.overline);
  EXPECT_FALSE(f.underline);
  f.fontSize = "2";
  f.fontSizeUnit = "em";
  SaveStyleControls(f, s);
  EXPECT_EQ(s.Status, kStyleChanged);
  EXPECT_EQ(s.FontVariant, "small caps");
  EXPECT_EQ(s.Definition,
            "font-size:2em;font-variant:small-caps;text-decoration:overline ;"
            "background-image:url(a.gif) #fff;cursor:hand;\r\n");
}

TEST(StyleEditor, AddStyleWritesTheRuleAtOnceAndOverwritesWithoutAsking) {
  TestApp t;
  auto& w = t.NewWindow("<html><head>\r\n</head></html>");
  StyleEditorFields f = Sample();
  f.htmlElement = "H1";
  EXPECT_TRUE(StyleEditorOK(t.app, kAddStyleToDocument, f, ""));
  StyleEditorFields none;
  none.htmlElement = "H1";
  EXPECT_TRUE(StyleEditorOK(t.app, kAddStyleToDocument, none, ""));
  EXPECT_EQ(w.Buffer().Text(),
            "<html><head>\r\n\r\n<STYLE type=\"text/css\">\r\nH1\r\n{\r\n\r\n}\r\n\r\n\r\n"
            "</STYLE>\r\n\r\n</head></html>");
  EXPECT_TRUE(t.messages.shown().empty());
}

TEST(StyleEditor, InlineStyleWrapsTheSelectionOrFillsTheTagAtTheCaret) {
  TestApp t;
  t.app.settings.TagCaseUpper = true;  // no effect here
  auto& w = t.NewWindow("<p>word</p>");
  StyleEditorFields f;
  f.fontColor = "red";
  w.Buffer().Select(3, 4);
  StyleEditorOK(t.app, kInsertInlineStyle, f, "");
  EXPECT_EQ(w.Buffer().Text(), "<p><span style=\"color:red;\">word</span></p>");

  w.Buffer().SetText("<p>");
  w.Buffer().SetSelStart(2);
  StyleEditorOK(t.app, kInsertInlineStyle, f, "");
  EXPECT_EQ(w.Buffer().Text(), "<p style=\"color:red;\" >");

  w.Buffer().SetText("<p>x");
  w.Buffer().SetSelStart(4);
  StyleEditorOK(t.app, kInsertInlineStyle, f, "");
  EXPECT_EQ(w.Buffer().Text(), "<p>x<span style=\"color:red;\"></span>");
}

TEST(StyleManager, RemoveThenAddOfTheSameNameAsksAndKeepsTheRule) {
  TestApp t;
  auto& w = t.NewWindow("<style>\r\n.n {color:red}\r\nP {x:y}\r\n</style>");
  std::vector<std::string> listed;
  t.app.styles.StyleDialogMode = kAddStyleToDocument;
  ASSERT_TRUE(LoadStyles(t.app, listed));
  EXPECT_EQ(listed, (std::vector<std::string>{".n", "P"}));
  t.app.styles.Styles.Item(".n")->Status = kStyleDeleted;

  StyleEditorFields f;
  f.customName = true;
  f.customText = "n";
  f.fontColor = "blue";
  t.messages.Queue(MsgAnswer::Yes);
  EXPECT_FALSE(StyleEditorOK(t.app, kAddManagedStyle, f, ""));  // the editor stays open
  ASSERT_EQ(t.messages.shown().size(), 1u);
  EXPECT_EQ(t.messages.shown()[0].text,
            "A style with this name already exists.  Would you like to overwrite it?");
  SaveStyles(t.app);
  EXPECT_EQ(w.Buffer().Text(), "<style>\r\n.n {\r\n\tcolor:blue;\r\n}\r\nP {x:y}\r\n</style>");
}

TEST(StyleManager, CancelLeavesTheDocumentAndOkWritesTheBatch) {
  TestApp t;
  const std::string page = "<style>\r\nH1 {color:red}\r\n.gone {a:b}\r\n</style>";
  auto& w = t.NewWindow(page);
  std::vector<std::string> listed;
  t.app.styles.StyleDialogMode = kAddStyleToDocument;
  LoadStyles(t.app, listed);
  t.app.styles.Styles.Item(".gone")->Status = kStyleDeleted;
  StyleEditorFields f;
  f.customName = true;
  f.customText = "new";
  f.bold = true;
  std::string added;
  EXPECT_TRUE(StyleEditorOK(t.app, kAddManagedStyle, f, "", &added));
  EXPECT_EQ(added, ".new");
  EXPECT_EQ(w.Buffer().Text(), page);  // nothing reaches the text before OK

  SaveStyles(t.app);
  EXPECT_EQ(w.Buffer().Text(),
            "<style>\r\n.new\r\n{\r\n\tfont-weight:bold;\r\n}\r\n\r\nH1 {color:red}\r\n\r\n"
            "</style>");
  // The pass is one edit.
  w.Buffer().Undo();
  EXPECT_EQ(w.Buffer().Text(), page);
}

TEST(StyleManager, ApplyModeOnAPageWithoutStylesAsksToAdd) {
  TestApp t;
  t.NewWindow("<link rel=stylesheet href=\"a.css\"><p>x</p>");
  std::vector<std::string> listed;
  t.app.styles.StyleDialogMode = kApplyStyle;
  t.messages.Queue(MsgAnswer::No);
  EXPECT_FALSE(LoadStyles(t.app, listed));
  t.messages.Queue(MsgAnswer::Yes);
  EXPECT_TRUE(LoadStyles(t.app, listed));
  EXPECT_EQ(t.app.styles.StyleDialogMode, kAddStyleToDocument);
  EXPECT_EQ(t.messages.shown().size(), 2u);
}

TEST(StyleManager, ApplyWrapsOrFillsWithClassOrId) {
  TestApp t;
  auto& w = t.NewWindow("x");
  w.Buffer().Select(0, 1);
  EXPECT_FALSE(ApplyStyle(t.app, "#note", ApplyMethod::Div));
  EXPECT_EQ(w.Buffer().Text(), "<div id=\"note\">x</div>");
  w.Buffer().SetText("<td>");
  w.Buffer().SetSelStart(3);
  ApplyStyle(t.app, ".c", ApplyMethod::AtCursor);
  EXPECT_EQ(w.Buffer().Text(), "<td class=\"c\" >");
  EXPECT_EQ(ApplyStyle(t.app, ".c", ApplyMethod::None)->message,
            "Please select a method to apply this style.");
  EXPECT_FALSE(CanApplyStyle("H1"));
  EXPECT_TRUE(IsStyleSheetCaption("/w/SITE.CSS"));
  EXPECT_FALSE(IsStyleSheetCaption("/w/site.css.htm"));
}

TEST(StyleManager, RemovalsBeforeAnyChangeWriteAsInAStyleSheet) {
  CSSStyleCollection styles;
  CSSstyle gone, changed;
  gone.StyleName = "P";
  gone.Status = kStyleDeleted;
  changed.StyleName = "Q";
  changed.Status = kStyleChanged;
  changed.Definition = "a:b;";
  styles.Add(gone, "P");
  styles.Add(changed, "Q");
  styles.Add(gone, "R");
  const auto writes = SaveStylesWrites(styles, "/w/page.htm");
  ASSERT_EQ(writes.size(), 3u);
  EXPECT_FALSE(writes[0].embedded);
  EXPECT_TRUE(writes[1].embedded);
  EXPECT_TRUE(writes[2].embedded);
  EXPECT_EQ(DeclarationsAsWritten(writes[1]), "\ta:b;");
  EXPECT_FALSE(SaveStylesWrites(styles, "/w/page.css")[1].embedded);
  EXPECT_TRUE(SaveStylesWrites(styles, "/w/page.CSS")[1].embedded);  // exact this time
}

TEST(StyleManager, PreviewShowsIdsAsClassesAndKeepsElements) {
  CSSStyleCollection styles;
  CSSstyle id, element;
  id.StyleName = "#top";
  id.Definition = "color:red;";
  element.StyleName = "H1";
  element.Definition = "x:y;";
  styles.Add(id, "#top");
  styles.Add(element, "H1");
  const std::string page = ManagerPreviewPage(styles);
  EXPECT_EQ(page.substr(0, page.find("</style>")),
            "<html><head><style>\r\n.top{color:red;}\r\nH1{x:y;}\r\n");
  EXPECT_NE(page.find("<span class=\"top\">This is a preview of #top</span><br><br>\r\n<hr>"),
            std::string::npos);
  EXPECT_EQ(StylePreviewPage("#x", "\ta:b;"),
            "<html><head><style>\r\n.x {\ta:b;}</style></head><body><span class=\"x\">This is a "
            "preview of your style</span></body></html>");
}

}  // namespace
}  // namespace tessarine
