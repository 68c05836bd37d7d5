// The table wizard: its two first-stage pages, the grid and its spans, the properties
// dialog, and the exact table text.

#include <gtest/gtest.h>

#include "core/TestApp.h"
#include "core/TextServices.h"
#include "platform/Desktop.h"
#include "wizards/TableEditor.h"
#include "wizards/TableProperties.h"
#include "wizards/TableWizard.h"

namespace tessarine {
namespace {

using testing::TestApp;

// Counts of a text's occurrences, for the shape of a table.
int Count(const std::string& text, const std::string& what) {
  int n = 0;
  for (auto p = text.find(what); p != std::string::npos; p = text.find(what, p + 1)) ++n;
  return n;
}

std::string FirstLine(const std::string& text) {
  return text.substr(0, text.find("\r\n"));
}

TEST(TableWizardSteps, BeginnerDefaultsWriteOnlyTheBorder) {
  BeginnerTableSteps steps;
  steps.rowCount = "3";
  steps.columnCount = "2";
  ASSERT_FALSE(steps.LeaveStep1());
  const TableSetup setup = steps.Finish(true);
  ASSERT_EQ(setup.rows, 3);
  ASSERT_EQ(setup.cols, 2);
  const TableGrid grid(setup.rows, setup.cols);
  const std::string row = "\t<TR>\r\n\t\t<TD></TD>\r\n\t\t<TD></TD>\r\n\t</TR>\r\n";
  EXPECT_EQ(TableText(setup.attributes, grid, true),
            "<TABLE BORDER=\"0\">\r\n" + row + row + row + "</TABLE>");
  EXPECT_EQ(FirstLine(TableText(setup.attributes, grid, false)), "<table border=\"0\">");
}

TEST(TableWizardSteps, BeginnerStep1Refusals) {
  struct Case {
    const char* rows;
    const char* cols;
    const char* field;  // "" when accepted
  } cases[] = {{"3", "2", ""},           {"", "2", "rowCount"},    {"  ", "2", "rowCount"},
               {"0", "2", "rowCount"},   {"abc", "2", "rowCount"}, {"-3", "2", "rowCount"},
               {"0.4", "2", "rowCount"}, {"3", "", "columnCount"}, {"3", "2x", "columnCount"},
               {" 7 ", "1e1", ""}};
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.rows) + "|" + c.cols);
    BeginnerTableSteps steps;
    steps.rowCount = c.rows;
    steps.columnCount = c.cols;
    const CheckResult failed = steps.LeaveStep1();
    if (!*c.field) {
      EXPECT_FALSE(failed);
      continue;
    }
    ASSERT_TRUE(failed);
    EXPECT_EQ(failed->field, c.field);
    const bool rows = failed->field == "rowCount";
    EXPECT_EQ(failed->message, rows ? "Enter a number between 1 and 100 for table rows."
                                    : "Enter a number between 1 and 100 for table columns.");
    // The field at fault is emptied; the other keeps its text.
    EXPECT_TRUE((rows ? steps.rowCount : steps.columnCount).empty());
    EXPECT_EQ(rows ? steps.columnCount : steps.rowCount, rows ? c.cols : c.rows);
  }
  BeginnerTableSteps steps;
  steps.rowCount = " 7 ";
  steps.columnCount = "1e1";
  EXPECT_EQ(steps.Finish(true).rows, 7);
  EXPECT_EQ(steps.Finish(true).cols, 10);
}

TEST(TableWizardSteps, CountFieldsOnEachChange) {
  // 101 in a beginner field empties it; 120 on the advanced page becomes "100".
  auto beginner = BeginnerTableSteps::RowCountChanged("101");
  ASSERT_TRUE(beginner);
  EXPECT_EQ(beginner->text, "");
  EXPECT_EQ(beginner->message, "Enter a number between 1 and 100 for the number of table rows.");
  EXPECT_FALSE(BeginnerTableSteps::ColumnCountChanged("100"));
  EXPECT_EQ(BeginnerTableSteps::ColumnCountChanged("250x")->message,
            "Enter a number between 1 and 100 for the number of table columns.");
  auto advanced = AdvancedTablePage::ColumnCountChanged("120");
  ASSERT_TRUE(advanced);
  EXPECT_EQ(advanced->text, "100");
  EXPECT_FALSE(AdvancedTablePage::RowCountChanged("60"));

  // Continue then refuses anything above 50, keeping the value.
  AdvancedTablePage page;
  page.advancedRowCount = "60";
  CheckResult failed = page.Validate();
  ASSERT_TRUE(failed);
  EXPECT_EQ(failed->message, "The maximum number of table rows is 50.");
  page.advancedRowCount = "50";
  page.advancedColumnCount = advanced->text;
  failed = page.Validate();
  ASSERT_TRUE(failed);
  EXPECT_EQ(failed->message, "The maximum number of table columns is 50.");
  EXPECT_EQ(failed->field, "advancedColumnCount");
}

TEST(TableWizardSteps, AdvancedCounts) {
  struct Case {
    const char* text;
    int count;  // under 1: refused at Continue
  } cases[] = {{"", 10}, {"0", 10}, {"abc", 10}, {"12", 12}, {" 5 ", 5}, {"5x", 0}, {"-4", -4}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    AdvancedTablePage page;
    page.advancedRowCount = c.text;
    EXPECT_EQ(page.Rows(), c.count);
    const CheckResult failed = page.Validate();
    EXPECT_EQ(static_cast<bool>(failed), c.count < 1);
    if (failed) {
      EXPECT_EQ(failed->message, "Enter a number between 1 and 100 for table rows.");
    }
  }
}

TEST(TableWizardSteps, AdvancedDefaultsAndEveryField) {
  const TableSetup plain = AdvancedTablePage{}.Finish(true);
  EXPECT_EQ(plain.rows, 10);
  EXPECT_EQ(plain.cols, 10);
  const std::string text = TableText(plain.attributes, TableGrid(plain.rows, plain.cols), true);
  EXPECT_EQ(FirstLine(text), "<TABLE>");
  EXPECT_EQ(Count(text, "<TR>"), 10);
  EXPECT_EQ(Count(text, "<TD></TD>"), 100);

  for (bool upper : {true, false}) {
    AdvancedTablePage page;
    page.advancedWidth = "80%";
    page.advancedHeight = "200";
    page.borderCheck = true;
    page.advancedBorderSize = "";
    page.advancedCellSpacing = "2";
    page.advancedCellPadding = "3";
    page.advancedBackgroundColor = "ffCC00";
    page.advancedBorderColor = "0000Ff";
    page.advancedCaption = "Prices";
    page.alignBottom = true;
    const TableSetup s = page.Finish(upper);
    EXPECT_EQ(s.attributes.caption, upper ? "\r\n<CAPTION ALIGN=\"Bottom\">Prices</CAPTION>"
                                          : "\r\n<CAPTION align=\"Bottom\">Prices</CAPTION>");
    EXPECT_EQ(FirstLine(TableText(s.attributes, TableGrid(1, 1), upper)),
              upper ? "<TABLE BORDER CELLSPACING=\"2\" CELLPADDING=\"3\" WIDTH=\"80%\" "
                      "HEIGHT=\"200\" BGCOLOR=\"ffCC00\" BORDERCOLOR=\"#0000Ff\">"
                    : "<table border cellspacing=\"2\" cellpadding=\"3\" width=\"80%\" "
                      "height=\"200\" bgcolor=\"ffcc00\" bordercolor=\"#0000ff\">");
    page.advancedBorderSize = "4";
    page.borderCheck = upper;  // clear: no border attribute at all
    EXPECT_EQ(page.Finish(upper).attributes.border, upper ? " BORDER=\"4\"" : "");
  }
}

TEST(TableWizardSteps, BeginnerCaptionColoursAndBorder) {
  for (bool upper : {true, false}) {
    for (const char* where : kCaptionLocations) {
      BeginnerTableSteps steps;
      steps.rowCount = "1";
      steps.columnCount = "1";
      steps.captionText = "My Table";
      steps.captionLocation = where;
      steps.borderSize = " 2";
      steps.tableWidth = "50%";
      steps.backgroundColor = "aaBBcc";
      steps.borderShadow = "00ff00";
      steps.cellPadding = "4";
      const TableSetup s = steps.Finish(upper);
      const std::string align = where == kCaptionLocations[0] ? "Top" : "Bottom";
      const std::string text = TableText(s.attributes, TableGrid(1, 1), upper);
      // The caption stands between the TABLE line and the first row, wherever it goes.
      EXPECT_EQ(text.substr(0, text.find("\t<")),
                upper ? "<TABLE BORDER=\"2\" CELLPADDING=\"4\" WIDTH=\"50%\" "
                        "BGCOLOR=\"#aaBBcc\" BORDERCOLORDARK=\"#00ff00\">\r\n<CAPTION ALIGN=\"" +
                            align + "\">My Table</CAPTION>\r\n"
                      : "<table border=\"2\" cellpadding=\"4\" width=\"50%\" "
                        "bgcolor=\"#aabbcc\" bordercolordark=\"#00ff00\">\r\n<caption align=\"" +
                            LCase(align) + "\">My Table</caption>\r\n");
    }
  }
  // Border colours only go with a border.
  BeginnerTableSteps steps;
  steps.borderColor = "123456";
  EXPECT_FALSE(steps.BorderColorsEnabled());
  EXPECT_EQ(steps.Finish(true).attributes.borderColor, "");
  EXPECT_EQ(steps.Finish(true).attributes.border, " BORDER=\"0\"");
}

TEST(TableWizardSteps, BeginnerSettingIsReadEachTime) {
  MemorySettingsStore store;
  EXPECT_TRUE(UseBeginnerTableWizard(store));
  store.SaveSetting("Miscellaneous", "BeginnerTableWizard", "");
  EXPECT_TRUE(UseBeginnerTableWizard(store));
  store.SaveSetting("Miscellaneous", "BeginnerTableWizard", "On");
  EXPECT_FALSE(UseBeginnerTableWizard(store));
}

TEST(TableGridModel, ResizeKeepsWhatFits) {
  TableGrid grid(2, 3);
  grid.At(0, 0).text = "a";
  grid.At(1, 2).text = "f";
  grid.At(1, 0).text = "d";
  grid.Resize(3, 2);
  EXPECT_EQ(grid.At(0, 0).text, "a");
  EXPECT_EQ(grid.At(1, 0).text, "d");
  EXPECT_EQ(grid.At(2, 1).text, "");
  grid.Resize(3, 4);
  EXPECT_EQ(grid.At(1, 2).text, "");  // the removed column's data is gone
  grid.Resize(-1, 4);
  EXPECT_EQ(grid.Rows(), 0);
  CellRange r{5, 1, 0, 3};
  EXPECT_FALSE(grid.Clip(r));
}

TEST(TableGridModel, SpansAreCutAtTheEdgeAndNeverOverlap) {
  struct Case {
    std::vector<std::tuple<int, int, const char*, const char*>> spans;  // row, col, rows, cols
    std::vector<CellSpan> expected;
    SpanProblem problem;
  } cases[] = {
      {{{0, 0, "2", "2"}}, {{0, 0, 2, 2}}, SpanProblem::None},
      {{{1, 1, "5", ""}}, {{1, 1, 2, 1}}, SpanProblem::PastEdge},
      // The second span starts under the first: it is hidden.
      {{{0, 0, "", "2"}, {0, 1, "2", ""}}, {{0, 0, 1, 2}}, SpanProblem::Overlap},
      // The second span reaches into the first: it stays a single cell.
      {{{0, 1, "2", ""}, {1, 0, "", "2"}}, {{0, 1, 2, 1}}, SpanProblem::Overlap},
      {{{0, 0, "x", "1"}, {2, 0, "1", "3"}}, {{2, 0, 1, 3}}, SpanProblem::None},
  };
  for (const Case& c : cases) {
    TableGrid grid(3, 3);
    for (const auto& [r, col, rows, cols] : c.spans) {
      grid.At(r, col).rowSpan = rows;
      grid.At(r, col).colSpan = cols;
    }
    const SpanLayout layout = LayOutSpans(grid);
    ASSERT_EQ(layout.spans.size(), c.expected.size());
    for (std::size_t i = 0; i < c.expected.size(); ++i) {
      EXPECT_EQ(layout.spans[i].row, c.expected[i].row);
      EXPECT_EQ(layout.spans[i].col, c.expected[i].col);
      EXPECT_EQ(layout.spans[i].rows, c.expected[i].rows);
      EXPECT_EQ(layout.spans[i].cols, c.expected[i].cols);
    }
    EXPECT_EQ(layout.firstProblem, c.problem);
  }
}

TEST(TableGridModel, CellLinesInBothCases) {
  TableGrid grid(2, 2);
  TableCell& a = grid.At(0, 0);
  a.text = "Big <B>Text</B>";
  a.colSpan = "2";
  a.align = "Center";
  a.vAlign = "Top";
  a.bgColor = "FFeedd";
  a.borderColor = "00AA00";
  a.borderLight = "111111";
  a.borderDark = "222222";  // kept, never written
  a.header = true;
  a.fontFace = "Arial";
  a.fontColor = "C0C0C0";
  grid.At(0, 1).text = "hidden under the span";
  grid.At(1, 1).fontSize = "3";
  grid.At(1, 1).text = "X";
  const std::string upper = TableText({}, grid, true);
  EXPECT_EQ(upper,
            "<TABLE>\r\n\t<TR>\r\n\t\t<TH COLSPAN=\"2\" ALIGN=\"Center\" VALIGN=\"Top\" "
            "BGCOLOR=\"#FFeedd\" BORDERCOLOR=\"#00AA00\" BORDERCOLORLIGHT=\"#111111\"><FONT "
            "FACE=\"Arial\" COLOR=\"#C0C0C0\">Big <B>Text</B></FONT></TH>\r\n\t</TR>\r\n"
            "\t<TR>\r\n\t\t<TD></TD>\r\n\t\t<TD><FONT SIZE=\"3\">X</FONT></TD>\r\n\t</TR>\r\n"
            "</TABLE>");
  EXPECT_EQ(TableText({}, grid, false),
            "<table>\r\n\t<tr>\r\n\t\t<th colspan=\"2\" align=\"center\" valign=\"top\" "
            "bgcolor=\"#ffeedd\" bordercolor=\"#00aa00\" bordercolorlight=\"#111111\"><font "
            "face=\"arial\" color=\"#c0c0c0\">Big <B>Text</B></font></th>\r\n\t</tr>\r\n"
            "\t<tr>\r\n\t\t<td></td>\r\n\t\t<td><font size=\"3\">X</font></td>\r\n\t</tr>\r\n"
            "</table>");
}

struct TableDialogs : ::testing::Test {
  TestApp t;
  TableGrid grid{3, 2};
};

TEST_F(TableDialogs, FewerRowsAnsweredNoKeepsThem) {
  grid.At(2, 0).text = "last";
  TableProperties form = TableProperties::Load(grid, 0, 0);
  EXPECT_EQ(form.rowCount, "3");
  form.rowCount = "2";
  t.messages.Queue(MsgAnswer::No);
  ASSERT_FALSE(TableProperties_OK(t.app, form, grid, {0, 0, 0, 0}));
  EXPECT_EQ(grid.Rows(), 3);
  EXPECT_EQ(form.rowCount, "3");
  EXPECT_EQ(t.messages.shown().back().text,
            "The specified number of rows is smaller than the existing number of table rows.\r\n"
            "If you continue, you will lose the data contained in the removed rows.\r\n\r\n"
            "Do you wish to continue?");

  form.rowCount = "2";
  form.columnCount = "4";
  t.messages.Queue(MsgAnswer::Yes);
  ASSERT_FALSE(TableProperties_OK(t.app, form, grid, {0, 0, 0, 0}));
  EXPECT_EQ(grid.Rows(), 2);
  EXPECT_EQ(grid.Cols(), 4);
  grid.Resize(3, 4);
  EXPECT_EQ(grid.At(2, 0).text, "");
}

TEST_F(TableDialogs, BadSizesAreRefusedAndTheCellsStillChange) {
  for (const char* bad : {"", "x", "0", "101", "-2"}) {
    SCOPED_TRACE(bad);
    TableProperties form = TableProperties::Load(grid, 0, 0);
    form.columnCount = bad;
    form.horizAlign.Set("Right");
    const std::size_t before = t.messages.shown().size();
    EXPECT_FALSE(TableProperties_OK(t.app, form, grid, {0, 0, 0, 0}));
    ASSERT_EQ(t.messages.shown().size(), before + 1);
    EXPECT_EQ(t.messages.shown().back().text,
              "Enter a number between 1 and 100 for the number of table rows or columns.");
    EXPECT_EQ(form.columnCount, "2");
    EXPECT_EQ(grid.Cols(), 2);
    EXPECT_EQ(grid.At(0, 0).align, "Right");
  }
}

TEST_F(TableDialogs, SpanLargerThanTheTableAppliesNothingButTheSize) {
  TableProperties form = TableProperties::Load(grid, 0, 0);
  form.columnCount = "3";
  form.rowSpan.Set("5");
  form.backgroundColor.Set("FF0000");
  const CheckResult failed = TableProperties_OK(t.app, form, grid, {0, 0, 0, 0});
  ASSERT_TRUE(failed);
  EXPECT_EQ(failed->field, "rowSpan");
  EXPECT_EQ(failed->message,
            "Row or column span cannot be larger than the total number of rows or columns in "
            "the table.");
  EXPECT_EQ(grid.Cols(), 3);
  EXPECT_EQ(grid.At(0, 0).rowSpan, "");
  EXPECT_EQ(grid.At(0, 0).bgColor, "");
}

TEST_F(TableDialogs, SpansPastTheEdgeOrOverlappingAreRefused) {
  TableProperties form = TableProperties::Load(grid, 2, 0);
  form.rowSpan.Set("2");
  CheckResult failed = TableProperties_OK(t.app, form, grid, {2, 0, 2, 0});
  ASSERT_TRUE(failed);
  EXPECT_EQ(failed->message,
            "The span of the cell in row 3, column 1 reaches past the edge of "
            "the table.");
  EXPECT_EQ(grid.At(2, 0).rowSpan, "");

  // Two cells side by side, each told to span two columns, would overlap.
  form = TableProperties::Load(grid, 0, 0);
  form.colSpan.Set("2");
  failed = TableProperties_OK(t.app, form, grid, {0, 0, 1, 1});
  ASSERT_TRUE(failed);
  EXPECT_EQ(failed->message,
            "The span of the cell in row 1, column 2 overlaps another spanned "
            "cell.");
  ASSERT_FALSE(TableProperties_OK(t.app, form, grid, {1, 0, 1, 0}));
  EXPECT_EQ(grid.At(1, 0).colSpan, "2");
  EXPECT_EQ(LayOutSpans(grid).spans.size(), 1u);
}

TEST_F(TableDialogs, UntouchedFieldsLeaveDifferingCellsAlone) {
  TableGrid g(2, 2);
  g.At(0, 0).align = "Left";
  g.At(1, 1).align = "Right";
  g.At(0, 1).vAlign = "Top";
  TableProperties form = TableProperties::Load(g, 0, 0);
  EXPECT_EQ(form.horizAlign.text, "Left");
  form.backgroundColor.Set("00FF00");
  ASSERT_FALSE(TableProperties_OK(t.app, form, g, {0, 0, 1, 1}));
  EXPECT_EQ(g.At(0, 0).align, "Left");
  EXPECT_EQ(g.At(1, 1).align, "Right");
  EXPECT_EQ(g.At(0, 1).vAlign, "Top");
  for (int r = 0; r < 2; ++r)
    for (int c = 0; c < 2; ++c) EXPECT_EQ(g.At(r, c).bgColor, "00FF00");
}

class OpenedFiles : public PosixShell {
 public:
  bool OpenInDefaultViewer(const std::string& path) override {
    opened.push_back(path);
    return true;
  }
};

TEST(TableEditorModel, CellsFontsHeadersImagesAndPreview) {
  testing::TempDir dir;
  HeadlessPlatform platform;
  OpenedFiles shell;
  Platform p = platform.Get();
  Application app{Platform{p.frame, p.messages, p.store, p.fileDialogs, p.colorDialog, shell,
                           p.clipboard, p.images, p.clock, p.checkedQuestions, p.defaultBrowser},
                  dir.path().string()};
  app.LoadSettings();
  app.settings.TagCaseUpper = false;

  TableSetup setup;
  setup.rows = 2;
  setup.cols = 2;
  setup.attributes.border = " BORDER=\"0\"";
  TableEditor editor(setup);
  EXPECT_FALSE(editor.SetCellText(0, 0, std::string(255, 'x')));
  EXPECT_TRUE(editor.SetCellText(0, 0, std::string(256, 'x')));
  EXPECT_FALSE(editor.SetCellText(0, 0, std::string(257, 'x')));
  EXPECT_EQ(editor.grid.At(0, 0).text.size(), 257u);
  editor.SetCellText(0, 0, "A");
  editor.SetFont({0, 0, 1, 0}, TableEditor::FontField::Face, "Arial");
  editor.SetHeader({1, 1, 0, 1}, true);  // a selection made upwards
  EXPECT_EQ(editor.grid.At(1, 0).fontFace, "Arial");
  EXPECT_EQ(editor.grid.At(0, 1).fontFace, "");
  EXPECT_TRUE(editor.grid.At(0, 1).header && editor.grid.At(1, 1).header);

  // From an untitled document the image is named bare.
  HeadlessDocumentWindow* window = static_cast<HeadlessDocumentWindow*>(NewDocumentWindow(app));
  platform.fileDialogs.Queue(dir / "pics.gif");
  EXPECT_EQ(TableImageTag(app), "<IMG SRC=\"pics.gif\">");
  EXPECT_EQ(TableImageTag(app), "");

  // The preview is upper case whatever the tag case, and replaces an older one.
  testing::WriteAll(dir / "tsrntabl.htm", "an older, longer preview of another table");
  ASSERT_TRUE(PreviewTable(app, editor));
  const std::string preview = testing::ReadAll(dir / "tsrntabl.htm");
  EXPECT_EQ(FirstLine(preview), "<TABLE BORDER=\"0\">");
  EXPECT_EQ(Count(preview, "<TH>"), 2);
  ASSERT_EQ(shell.opened.size(), 1u);
  EXPECT_EQ(shell.opened[0], dir / "tsrntabl.htm");

  window->Buffer().SetText("<p>[]</p>");
  window->Buffer().SetSelStart(4);
  TableEditor_Done(app, editor);
  const std::string text = window->Buffer().Text();
  EXPECT_EQ(text.substr(0, 4 + 18), "<p>[<table border=\"0\">");
  EXPECT_EQ(text.substr(text.size() - 13), "</table>]</p>");
  EXPECT_EQ(Count(text, "<td><font face=\"arial\">A</font></td>"), 1);
  EXPECT_FALSE(window->Buffer().CanUndo());
}

TEST(TableEditorModel, PreviewThatCannotBeWrittenSaysSo) {
  HeadlessPlatform platform;
  Application app{platform.Get(), "/nonexistent/tessarine"};
  app.LoadSettings();
  TableSetup setup;
  setup.rows = setup.cols = 1;
  EXPECT_FALSE(PreviewTable(app, TableEditor(setup)));
  ASSERT_EQ(platform.messages.shown().size(), 1u);
  EXPECT_NE(platform.messages.shown()[0].text.find("tsrntabl.htm"), std::string::npos);
  EXPECT_TRUE(platform.shell.opened.empty());
}

}  // namespace
}  // namespace tessarine
