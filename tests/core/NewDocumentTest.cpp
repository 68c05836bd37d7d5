// New documents: every skeleton byte for byte, the caret rule, the blank page, the XML
// dialog's text and the template chooser.

#include <gtest/gtest.h>

#include "core/NewDocument.h"
#include "core/Styles.h"
#include "core/TestApp.h"

namespace tessarine {
namespace {

using testing::TempDir;
using testing::TestApp;
using testing::WriteAll;
using testing::At;

const char* const kDoctype =
    "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0 Transitional//EN\" "
    "\"http://www.w3.org/TR/REC-html40/loose.dtd\">\r\n\r\n";

struct NewDocumentTest : ::testing::Test {
  TestApp t;
  void SetUp() override { t.platform.clock.Set(At(2002, 1, 5, 15, 7)); }
  HeadlessDocumentWindow& Make(const std::string& kind) {
    NewDocument(t.app, kind);
    return *t.frame.Windows().back();
  }
};

TEST_F(NewDocumentTest, HtmlInUpperCase) {
  auto& w = Make("HTML");
  const std::string text = std::string(kDoctype) +
                           "<HTML>\r\n\r\n<HEAD>\r\n\t<TITLE>Document Title should be typed "
                           "here</TITLE>\r\n\t<META Name=\"Generator\" Value=\"Tessarine for "
                           "Windows - http://www.tessarine.org\">\r\n</HEAD>\r\n\r\n\r\n<!-- "
                           "Created on January 05, 2002  at 03:07 PM -->\r\n\r\n<BODY>"
                           "\r\n\r\n\r\n\r\n</BODY>\r\n</HTML>";
  EXPECT_EQ(w.Buffer().Text(), text);
  EXPECT_EQ(w.Buffer().SelStart(), static_cast<Pos>(text.size()) - 22);
  EXPECT_EQ(w.Buffer().TextRange(w.Buffer().SelStart() - 8, 8), "<BODY>\r\n");
  EXPECT_EQ(w.Caption(), "Untitled:1");
  EXPECT_FALSE(t.Changed(w));
  EXPECT_FALSE(t.frame.saveButtonEnabled);
  EXPECT_EQ(w.Buffer().StyleAt(static_cast<Pos>(text.find("<BODY>"))), MakeStyle(StyleKind::Tag));
  EXPECT_EQ(t.app.files.DocumentTitle, "Document Title should be typed here");
  EXPECT_EQ(t.app.files.NewDocumentInProgress, 0);
}

TEST_F(NewDocumentTest, HtmlInLowerCaseFoldsTitleDateAndGeneratorButNotTheDoctype) {
  t.store.SaveSetting("Miscellaneous", "TagCase", "lower");
  t.app.LoadSettings();
  auto& w = Make("HTMLTemplate");
  const std::string text = std::string(kDoctype) +
                           "<html>\r\n<head>\r\n\t<title>document title should be typed "
                           "here</title>\r\n\t<meta name=\"generator\" value=\"tessarine for "
                           "windows - http://www.tessarine.org\">\r\n</head>\r\n\r\n\r\n<!-- "
                           "created on january 05, 2002 at 03:07 pm -->\r\n\r\n<body>"
                           "\r\n\r\n\r\n\r\n</body>\r\n</html>";
  EXPECT_EQ(w.Buffer().Text(), text);
  EXPECT_EQ(w.Buffer().SelStart(), static_cast<Pos>(text.size()) - 22);
}

TEST_F(NewDocumentTest, BlankNewDocLeavesOnlyHtmlEmpty) {
  t.store.SaveSetting("Miscellaneous", "BlankNewDoc", "1");
  t.app.LoadSettings();
  auto& html = Make("HTML");
  EXPECT_EQ(html.Buffer().Text(), "");
  EXPECT_EQ(html.Buffer().SelStart(), 0);
  EXPECT_FALSE(t.Changed(html));

  const std::string asp =
      "<%@ Language=VBScript %>\r\n<html>\r\n<head>\r\n\t\t<meta name=\"generator\" "
      "Content=\"Tessarine created by Orlenda Software\">\r\n</head>\r\n\r\n<body>"
      "\r\n\r\n\r\n\r\n</body>\r\n</html>";
  auto& a = Make("ASP");
  EXPECT_EQ(a.Buffer().Text(), asp);
  EXPECT_EQ(a.Buffer().SelStart(), static_cast<Pos>(asp.size()) - 22);

  const std::string xsl =
      "<?xml version=\"1.0\" ?>\r\n<xsl:stylesheet "
      "xmnls:xsl=\"http://www.w3.org/TR/WD-xsl\">\r\n\r\n<xsl:template "
      "match=\"/\">\r\n\r\n\r\n</xsl:template>\r\n</xsl:stylesheet>";
  auto& x = Make("XSL");
  EXPECT_EQ(x.Buffer().Text(), xsl);
  // 37 from the end falls between a CR and its LF, as it always has.
  EXPECT_EQ(x.Buffer().SelStart(), static_cast<Pos>(xsl.size()) - 37);
  EXPECT_EQ(x.Buffer().TextRange(x.Buffer().SelStart() - 1, 2), "\r\n");
}

TEST_F(NewDocumentTest, XmlAndCssComeFromTheirDialogsAndOtherKindsStayEmpty) {
  XmlDocInputs given;
  given.cboVersion = "  ";
  given.txtStyleSheetFilename = "a.CSS";
  t.app.files.showXmlDocDialog = [&](XmlDocInputs& in) {
    in = given;
    return true;
  };
  int styleManager = 0;
  t.app.files.showStyleManager = [&](DocumentWindow&) { ++styleManager; };
  auto& xml = Make("XML");
  const std::string text =
      "<?xml version=\"1.0\" standalone=\"no\"?>\r\n"
      "<?xml-stylesheet type=\"text/xsl\" href=\"a.CSS\"?>\r\n\r\n";
  EXPECT_EQ(xml.Buffer().Text(), text);
  EXPECT_EQ(xml.Buffer().SelStart(), static_cast<Pos>(text.size()) - 1);

  auto& css = Make("CSS");
  EXPECT_EQ(styleManager, 1);
  EXPECT_EQ(css.Buffer().Text(), "");
  EXPECT_EQ(Make("html").Buffer().Text(), "");  // kinds are case-sensitive

  t.app.files.showXmlDocDialog = [](XmlDocInputs&) { return false; };
  EXPECT_EQ(Make("XML").Buffer().Text(), "");
}

TEST(XmlDoc, VersionStandaloneAndTheStyleSheetLink) {
  XmlDocInputs in;
  EXPECT_EQ(BuildXmlDocText(in), "<?xml version=\"1.0\" standalone=\"no\"?>\r\n\r\n");
  in.cboVersion = " 1.1 ";
  in.chkStandalone = true;
  in.txtStyleSheetFilename = "my.css.xsl";
  EXPECT_EQ(BuildXmlDocText(in),
            "<?xml version=\"1.1\" standalone=\"yes\"?>\r\n"
            "<?xml-stylesheet type=\"text/css\" href=\"my.css.xsl\"?>\r\n\r\n");
}

TEST(Templates, ListsTztFilesAndOpensThemUntitled) {
  TempDir dir;
  WriteAll(dir / "b.tzt", "<P>b\r\n");
  WriteAll(dir / "A.TZT", "<P>a");
  WriteAll(dir / "c.tzt.bak", "no");
  std::filesystem::create_directory(dir.path() / "d.tzt");
  EXPECT_EQ(ListTemplates(dir.path().string()), (std::vector<std::string>{"A.TZT", "b.tzt"}));
  EXPECT_TRUE(ListTemplates(dir / "missing").empty());

  EXPECT_EQ(TemplatePath("/opt/t", "x.tzt", false), "/opt/t/x.tzt");
  EXPECT_EQ(TemplatePath("/", "x.tzt", false), "/x.tzt");
  EXPECT_EQ(TemplatePath("/", "x.tzt", true), "//x.tzt");

  TestApp t;
  Application app(t.platform.Get(), dir.path().string());
  app.LoadSettings();
  OpenTemplate(app, "b.tzt", true);
  ASSERT_EQ(t.frame.Windows().size(), 1u);
  EXPECT_EQ(t.frame.Windows()[0]->Caption(), "Untitled:1");
  EXPECT_EQ(t.frame.Windows()[0]->Buffer().Text(), "<P>b");
  OpenTemplate(app, "", false);
  EXPECT_EQ(t.frame.Windows()[1]->Buffer().Text().compare(0, 9, "<!DOCTYPE"), 0);
}

}  // namespace
}  // namespace tessarine
