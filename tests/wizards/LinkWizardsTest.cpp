// The hyperlink, anchor and mail link dialogs: checks in order, and the exact text.

#include <gtest/gtest.h>

#include "core/TestApp.h"
#include "core/TextServices.h"
#include "wizards/Anchor.h"
#include "wizards/Hyperlink.h"
#include "wizards/LinkBrowse.h"
#include "wizards/MailLink.h"

namespace tessarine {
namespace {

using testing::TestApp;

const char* const kPage = "<HTML><HEAD><TITLE>t</TITLE></HEAD><BODY>\r\nab\r\n</BODY></HTML>";
constexpr Pos kInHead = 12;  // just behind <HEAD>
constexpr Pos kInBody = 44;  // between a and b

struct LinkWizards : ::testing::Test {
  TestApp t;
  BufferEdit* edit = nullptr;
  void Open(const std::string& text, bool upper) {
    t.app.settings.TagCaseUpper = upper;
    edit = &t.NewWindow(text).Buffer();
  }
  std::string LastMessage() const {
    return t.messages.shown().empty() ? "" : t.messages.shown().back().text;
  }
};

TEST_F(LinkWizards, HyperlinkChecksInOrderAndTheHttpAnchorPassesThrough) {
  struct Case {
    std::string text, url;
    bool anchor;
    std::string anchorName, message, field;
  } cases[] = {
      {"", "", false, "", "Please enter text to be linked in the box below.", "linkText"},
      {"t", "", false, "", "Please enter the URL you wish to link to.", "urlCombo"},
      {"t", "http://", false, "", "Please enter Web site to be linked in the appropriate box",
       "urlCombo"},
      {"t", "x.htm", true, "", "Please enter the bookmark name you wish to link to.", ""},
      {"t", "", true, "", "Please enter the bookmark name you wish to link to.", ""},
      {"t", "http://", true, "", "", ""},
      {"t", "", true, "top", "", ""},
  };
  for (const Case& c : cases) {
    Hyperlink h;
    h.linkText = c.text;
    h.url = c.url;
    h.linkToAnchor = c.anchor;
    h.anchorName = c.anchorName;
    const CheckResult r = h.Validate();
    EXPECT_EQ(r ? r->message : "", c.message) << c.url;
    EXPECT_EQ(r ? r->field : "", c.field) << c.url;
  }
}

TEST_F(LinkWizards, HyperlinkAddressForms) {
  Hyperlink h;
  h.linkText = "Go";
  h.linkToAnchor = true;
  h.anchorName = "top";
  EXPECT_EQ(h.Build(true), "<A HREF=\"#top\">Go</A>");
  h.url = "http://";
  h.anchorName.clear();
  EXPECT_EQ(h.Build(false), "<a href=\"#\">Go</a>");
  h.url = "page.htm";
  h.anchorName = "part2";
  EXPECT_EQ(h.Build(false), "<a href=\"page.htm#part2\">Go</a>");
  // The anchor name is only used while the box is set.
  h.linkToAnchor = false;
  EXPECT_EQ(h.Build(false), "<a href=\"page.htm\">Go</a>");
}

TEST_F(LinkWizards, HyperlinkAttributeOrderAndCaseInBothModes) {
  Hyperlink h;
  h.linkText = "Home";
  h.url = "Index.HTM";
  h.targetFrame = "_top";
  h.statusText = "Back home";
  h.toolTip = "The Start";
  const std::string script =
      " OnMouseOver=\"window.status='Back home'; return true\""
      " OnMouseOut=\"window.status=' '; return true\"";
  EXPECT_EQ(h.Build(true),
            "<A HREF=\"Index.HTM\" TARGET=\"_top\"" + script + " TITLE=\"The Start\">Home</A>");
  EXPECT_EQ(h.Build(false),
            "<a href=\"Index.HTM\" target=\"_top\"" + script + " title=\"The Start\">Home</a>");
}

TEST_F(LinkWizards, HyperlinkOkRemembersARefusedUrlAndWritesAtTheCaretEvenInTheHead) {
  Open(kPage, true);
  Hyperlink refused;
  refused.url = "http://refused.example/";
  EXPECT_TRUE(Hyperlink_OK(t.app, refused));
  EXPECT_EQ(LastMessage(), "Please enter text to be linked in the box below.");
  EXPECT_EQ(t.store.GetSetting("Favorite URLs", "URL1", ""), "http://refused.example/");
  const std::vector<std::string> choices = UrlChoices(t.app);
  ASSERT_EQ(choices.size(), 21u);
  EXPECT_EQ(choices[0], "http://");
  EXPECT_EQ(choices[1], "http://refused.example/");
  EXPECT_EQ(edit->Text(), kPage);

  edit->SetSelStart(kInHead);
  edit->SetSelLength(0);
  Hyperlink h;
  h.linkText = "x";
  h.url = "a.htm";
  EXPECT_FALSE(Hyperlink_OK(t.app, h));
  EXPECT_EQ(edit->Text().substr(kInHead, 24), "<A HREF=\"a.htm\">x</A><TI");

  // The selection is the text offered, and is what the link replaces.
  Open("say hello", false);
  edit->Select(4, 5);
  Hyperlink opened = Hyperlink_Open(t.app);
  EXPECT_EQ(opened.linkText, "hello");
  opened.url = "h.htm";
  EXPECT_FALSE(Hyperlink_OK(t.app, opened));
  EXPECT_EQ(edit->Text(), "say <a href=\"h.htm\">hello</a>");
}

TEST_F(LinkWizards, LongValuesAreWrittenAsTyped) {
  Hyperlink h;
  h.linkText = std::string(100000, 't');
  h.url = std::string(100000, 'u');
  const std::string built = h.Build(false);
  EXPECT_EQ(built.size(), 9u + 100000 + 2 + 100000 + 4);
  EXPECT_EQ(built.substr(9, 100000), h.url);
}

TEST_F(LinkWizards, AnchorNeedsANameAndLandsInTheBody) {
  Open(kPage, false);
  edit->SetSelStart(kInHead);
  Anchor a;
  a.text = "Start";
  EXPECT_TRUE(Anchor_OK(t.app, a));
  EXPECT_EQ(LastMessage(), "Please enter Anchor/Bookmark name in the box below.");
  EXPECT_EQ(edit->Text(), kPage);

  a.name = "Top";
  EXPECT_FALSE(Anchor_OK(t.app, a));
  // From the head it goes behind the BODY tag.
  EXPECT_NE(edit->Text().find("<BODY>\r\n\r\n<a name=\"Top\">Start</a>\r\nab"), std::string::npos)
      << edit->Text();

  Open(kPage, true);
  edit->Select(kInBody, 1);
  Anchor fromSelection = Anchor_Open(t.app);
  EXPECT_EQ(fromSelection.text, "b");
  fromSelection.name = "n";
  Anchor_OK(t.app, fromSelection);
  EXPECT_NE(edit->Text().find("a<A NAME=\"n\">b</A>\r\n</BODY>"), std::string::npos)
      << edit->Text();
  Anchor empty;
  empty.name = "e";
  EXPECT_EQ(empty.Build(false), "<a name=\"e\"></a>");
}

TEST_F(LinkWizards, MailLinkChecksSubjectAndRemembersTheAddress) {
  MailLink m;
  m.linkText = "Write";
  ASSERT_TRUE(m.Validate());
  EXPECT_EQ(m.Validate()->field, "emailAddress");
  m.address = "me@example.org";
  m.linkText.clear();
  EXPECT_EQ(m.Validate()->message,
            "Please enter Text to link to your Email Address in the box below.");
  m.linkText = "Write";
  m.subject = "   ";
  EXPECT_EQ(m.Build(true), "<A HREF=\"mailto:me@example.org\">Write</A>");
  m.subject = "  Hello there ";
  EXPECT_EQ(m.Build(false), "<a href=\"mailto:me@example.org?subject=Hello there\">Write</a>");

  Open(kPage, false);
  edit->SetSelStart(kInBody);
  t.store.SaveSetting("Miscellaneous", "EmailAddress", "old@example.org");
  EXPECT_EQ(MailLink_Open(t.app).address, "old@example.org");
  EXPECT_FALSE(MailLink_OK(t.app, m));
  MailLink_Finish(t.app);
  EXPECT_NE(edit->Text().find("a<a href=\"mailto:me@example.org?subject=Hello there\">Write</a>b"),
            std::string::npos);
  EXPECT_EQ(t.store.GetSetting("Miscellaneous", "EmailAddress", ""), "me@example.org");

  // Cancel after opening: nothing left to write.
  const std::string before = edit->Text();
  MailLink_Open(t.app);
  MailLink_Finish(t.app);
  EXPECT_EQ(edit->Text(), before);
}

TEST_F(LinkWizards, BrowsingGivesThePathFromTheDocument) {
  Open("", false);
  t.dialogs.Queue("/site/pics/a.gif");
  EXPECT_EQ(BrowseRelativeFile(t.app), "a.gif");  // untitled: the bare name
  t.app.ActiveDocument()->SetCaption("/site/docs/page.htm");
  t.dialogs.Queue("/site/pics/b.gif");
  EXPECT_EQ(BrowseRelativeFile(t.app, "GIF Files (*.gif)|*.gif"), "../pics/b.gif");
  EXPECT_EQ(t.dialogs.requests().back().filter, "GIF Files (*.gif)|*.gif");
  EXPECT_EQ(BrowseRelativeFile(t.app), "");  // Cancel
}

TEST_F(LinkWizards, RolloverLookIsReadFromAndWrittenToThePageStyleSheet) {
  const std::string page =
      "<HTML><HEAD><STYLE>\r\nA:hover {color: red; font-weight: Bold}\r\n"
      "A:link {font-weight: bold; color: blue}\r\n</STYLE></HEAD><BODY>\r\nx\r\n</BODY></HTML>";
  Open(page, false);
  edit->SetSelStart(static_cast<Pos>(page.find("x\r\n</BODY")));
  Hyperlink h = Hyperlink_Open(t.app);
  EXPECT_TRUE(h.boldOnHover);
  EXPECT_FALSE(h.underlineOnHover);
  int r = 0, g = 0, b = 0;
  ASSERT_TRUE(HyperlinkHoverSwatch(t.app, r, g, b));
  EXPECT_EQ(std::vector<int>({r, g, b}), std::vector<int>({255, 0, 0}));

  h.linkText = "Go";
  h.url = "go.htm";
  h.underlineOnHover = true;
  EXPECT_FALSE(Hyperlink_OK(t.app, h));
  HyperlinkStyles_Close(t.app);
  const std::string text = edit->Text();
  EXPECT_NE(text.find("<a href=\"go.htm\">Go</a>x"), std::string::npos) << text;
  // Every link of the page rolls over the same way; A:link loses its own weight.
  const std::size_t hover = text.find("A:hover");
  const std::size_t link = text.find("A:link");
  const std::size_t visited = text.find("A:visited");
  ASSERT_NE(hover, std::string::npos);
  ASSERT_NE(link, std::string::npos);
  ASSERT_NE(visited, std::string::npos) << text;
  const std::string hoverRule = text.substr(hover, text.find('}', hover) - hover);
  const std::string linkRule = text.substr(link, text.find('}', link) - link);
  const std::string visitedRule = text.substr(visited, text.find('}', visited) - visited);
  EXPECT_NE(hoverRule.find("underline"), std::string::npos) << hoverRule;
  EXPECT_NE(LCase(hoverRule).find("bold"), std::string::npos) << hoverRule;
  EXPECT_EQ(linkRule.find("bold"), std::string::npos) << linkRule;
  EXPECT_NE(linkRule.find("none"), std::string::npos) << linkRule;
  EXPECT_NE(linkRule.find("blue"), std::string::npos) << linkRule;
  EXPECT_NE(visitedRule.find("none"), std::string::npos) << visitedRule;
}

TEST_F(LinkWizards, SwatchReadsAHashColourOnePlaceLateAndAPickIsWrittenWithTheLink) {
  const std::string page =
      "<HTML><HEAD><STYLE>\r\nA:hover {color: #00FF00}\r\n</STYLE></HEAD><BODY>\r\n</BODY>"
      "</HTML>";
  Open(page, true);
  edit->SetSelStart(static_cast<Pos>(page.find("</BODY")));
  Hyperlink h = Hyperlink_Open(t.app);
  EXPECT_FALSE(h.boldOnHover);
  int r = 0, g = 0, b = 0;
  ASSERT_TRUE(HyperlinkHoverSwatch(t.app, r, g, b));
  EXPECT_EQ(std::vector<int>({r, g, b}), std::vector<int>({0, 15, 240}));

  // A refused OK writes no style.
  HyperlinkSetHoverColor(t.app, "123456");
  EXPECT_TRUE(Hyperlink_OK(t.app, h));
  EXPECT_EQ(edit->Text(), page);
  h.linkText = "x";
  h.url = "y";
  EXPECT_FALSE(Hyperlink_OK(t.app, h));
  EXPECT_NE(edit->Text().find("#123456"), std::string::npos) << edit->Text();
  EXPECT_EQ(edit->Text().find("#00FF00"), std::string::npos) << edit->Text();

  // A page without a sheet and clear boxes: the link alone, no STYLE block.
  Open("<HTML><BODY>\r\n</BODY></HTML>", false);
  Hyperlink plain = Hyperlink_Open(t.app);
  EXPECT_FALSE(HyperlinkHoverSwatch(t.app, r, g, b));
  plain.linkText = "a";
  plain.url = "b";
  EXPECT_FALSE(Hyperlink_OK(t.app, plain));
  EXPECT_EQ(edit->Text(), "<a href=\"b\">a</a><HTML><BODY>\r\n</BODY></HTML>");
}

}  // namespace
}  // namespace tessarine
