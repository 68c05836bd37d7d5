// The list and table dialogs, opened from their menus and buttons and driven like a user.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTableView>
#include <QTimer>
#include <functional>

#include "core/Application.h"
#include "platform/EditControl.h"
#include "ui/MainWindow.h"
#include "ui/WindowFixture.h"
#include "ui/wizards/ShortcutBar.h"
#include "ui/wizards/TableEditorDialog.h"
#include "ui/wizards/TableWizardDialog.h"

namespace tessarine {
namespace {

class ListTableWidget : public WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    store.SaveSetting("Miscellaneous", "FirstRun", "no");
    Start();
    ASSERT_NE(app->ActiveEdit(), nullptr);
  }
  EditControl& Edit() { return *app->ActiveEdit(); }
  void Text(const std::string& text, Pos selStart, Pos selLength) {
    Edit().SetText(text);
    Edit().Select(selStart, selLength);
  }
  static void Type(QWidget* d, const char* name, const QString& text) {
    auto* e = Child<QLineEdit>(d, name);
    e->setText(text);
    emit e->textEdited(text);
  }
  static void Click(QWidget* d, const char* name) { Child<QAbstractButton>(d, name)->click(); }
  // Under TESSARINE_SHOTS the dialogs are saved as pictures there, to be looked at.
  static void Shot(QWidget* w, const char* name) {
    const QString dir = qEnvironmentVariable("TESSARINE_SHOTS");
    if (!dir.isEmpty()) w->grab().save(dir + "/" + name + ".png");
  }
};

TEST_F(ListTableWidget, BeginnerTableOfThreeByTwoFromTheMenu) {
  Text("<BODY>\r\n\r\n</BODY>", 8, 0);
  OnDialog([this](QDialog* d) {
    ASSERT_EQ(d->objectName(), "TableWizardDialog");
    auto* wizard = static_cast<ui::TableWizardDialog*>(d);
    EXPECT_FALSE(Child<QAbstractButton>(d, "previousButton")->isEnabled());
    // A blank count keeps the wizard on step 1 with a message.
    Type(d, "rowCount", "3");
    Click(d, "nextButton");
    EXPECT_EQ(wizard->Step(), 1);
    EXPECT_EQ(messages.shown().back().text, "Enter a number between 1 and 100 for table columns.");
    // A count above 100 is emptied as it is typed.
    Type(d, "columnCount", "200");
    EXPECT_EQ(Child<QLineEdit>(d, "columnCount")->text(), "");
    Type(d, "columnCount", "2");
    Shot(d, "table-step1");
    Click(d, "nextButton");
    ASSERT_EQ(wizard->Step(), 2);
    EXPECT_FALSE(Child<QComboBox>(d, "captionLocation")->isEnabled());
    Type(d, "captionText", "Pets");
    EXPECT_EQ(Child<QComboBox>(d, "captionLocation")->currentText(), "Above the table");
    Shot(d, "table-step2");
    Click(d, "nextButton");
    Shot(d, "table-step3");
    Click(d, "nextButton");
    ASSERT_EQ(wizard->Step(), 4);
    // No border: the border colours stay dimmed.
    EXPECT_FALSE(Child<QLineEdit>(d, "borderColor")->isEnabled());
    Shot(d, "table-step4");
    OnDialog([](QDialog* grid) {
      ASSERT_EQ(grid->objectName(), "TableEditorDialog");
      auto* view = Child<QTableView>(grid, "grid");
      ASSERT_EQ(view->model()->rowCount(), 3);
      ASSERT_EQ(view->model()->columnCount(), 2);
      // One cell typed in place, one through the cell text field.
      view->model()->setData(view->model()->index(0, 0), "Dog");
      view->setCurrentIndex(view->model()->index(2, 1));
      Type(grid, "cellText", "Cat & <I>Mouse</I>");
      Shot(grid, "table-grid");
      Click(grid, "doneButton");
    });
    Click(d, "nextButton");
  });
  frame->Command("mnuTableMaker")->trigger();
  const std::string empty = "\t\t<TD></TD>\r\n";
  EXPECT_EQ(Edit().Text(),
            "<BODY>\r\n<TABLE BORDER=\"0\">\r\n<CAPTION ALIGN=\"Top\">Pets</CAPTION>\r\n"
            "\t<TR>\r\n\t\t<TD>Dog</TD>\r\n" +
                empty + "\t</TR>\r\n\t<TR>\r\n" + empty + empty + "\t</TR>\r\n\t<TR>\r\n" + empty +
                "\t\t<TD>Cat & <I>Mouse</I></TD>\r\n\t</TR>\r\n</TABLE>\r\n</BODY>");
}

TEST_F(ListTableWidget, AdvancedPageFromTheShortcutBarRefusesAboveFifty) {
  store.SaveSetting("Miscellaneous", "BeginnerTableWizard", "off");
  Text("", 0, 0);
  OnDialog([this](QDialog* d) {
    EXPECT_EQ(static_cast<ui::TableWizardDialog*>(d)->Step(), 0);
    Type(d, "advancedRowCount", "120");
    EXPECT_EQ(Child<QLineEdit>(d, "advancedRowCount")->text(), "100");
    EXPECT_FALSE(Child<QRadioButton>(d, "alignTop")->isEnabled());
    Shot(d, "table-advanced");
    Click(d, "continueButton");
    EXPECT_TRUE(d->isVisible());
    EXPECT_EQ(messages.shown().back().text, "The maximum number of table rows is 50.");
    Click(d, "cancelButton");
  });
  auto* bar = frame->findChild<ui::ShortcutBar*>("ShortcutBar");
  ASSERT_NE(bar, nullptr);
  ASSERT_TRUE(bar->ClickKey("TableWizard"));
  EXPECT_EQ(Edit().Text(), "");
}

TEST_F(ListTableWidget, ListsFromTheToolbarAndConversionFromTheMenus) {
  Text("[first]", 1, 5);
  OnDialog([](QDialog* d) {
    // The selection is the first item's text.
    EXPECT_EQ(Child<QLineEdit>(d, "itemText")->text(), "first");
    Click(d, "addItem");
    Type(d, "itemText", "second");
    Child<QComboBox>(d, "numberType")->setCurrentIndex(3);
    Shot(d, "numbered-list");
    Click(d, "doneButton");
  });
  frame->Button("tbrInsert", "Numbered List")->trigger();
  EXPECT_EQ(Edit().Text(), "[\r\n<OL TYPE=\"I\">\r\n\t<LI> first\r\n\t<LI> second\r\n</OL>\r\n]");

  Text("Dog Cat", 0, 7);
  OnDialog([this](QDialog* d) {
    Click(d, "okButton");
    EXPECT_EQ(messages.shown().back().text, "Select an Option.");
    Child<QRadioButton>(d, "spaceDelimited")->setChecked(true);
    Shot(d, "convert");
    Click(d, "okButton");
  });
  frame->Command("TblCnvrt")->trigger();
  EXPECT_EQ(Edit().Text(),
            "\r\n<TABLE>\t<TR>\r\n\t\t<TD>Dog</TD>\r\n\t\t<TD>Cat</TD></TR>\r\n</TABLE>");

  // Ten megabytes of lines become a list in one edit of the document.
  std::string big;
  while (big.size() < 10u << 20) big += "a line of text\r\n";
  Text(big, 0, static_cast<Pos>(big.size()));
  OnDialog([](QDialog* d) {
    Child<QRadioButton>(d, "toList")->setChecked(true);
    Click(d, "okButton");
  });
  frame->Command("HTMLCnvrt")->trigger();
  const std::string list = Edit().Text();
  EXPECT_EQ(list.size(), 4 + big.size() / 16 * 20 + 7);
  EXPECT_EQ(list.substr(0, 26), "<UL>\r\n<LI>a line of text\r\n");
  EXPECT_EQ(list.substr(list.size() - 7), "\r\n</UL>");

  Text("x", 0, 1);
  OnDialog([](QDialog* d) {
    Child<QRadioButton>(d, "squareBullet")->setChecked(true);
    Click(d, "doneButton");
  });
  frame->Command("mnuBulletedList")->trigger();
  EXPECT_EQ(Edit().Text(), "\r\n<UL TYPE=\"SQUARE\">\r\n\t<LI> x\r\n</UL>");
}

TEST_F(ListTableWidget, OverlappingSpansAreRefusedAndResizingFollowsTheGrid) {
  TableSetup setup;
  setup.rows = 2;
  setup.cols = 3;
  ui::TableEditorDialog editor(*app, setup, frame.get());
  QTableView* view = editor.Grid();
  view->selectionModel()->select(
      QItemSelection(view->model()->index(0, 0), view->model()->index(0, 1)),
      QItemSelectionModel::ClearAndSelect);
  OnDialog([this](QDialog* d) {
    Shot(d, "table-properties");
    Type(d, "colSpan", "2");
    Click(d, "okButton");
    EXPECT_TRUE(d->isVisible());
    EXPECT_EQ(messages.shown().back().text,
              "The span of the cell in row 1, column 2 overlaps another spanned cell.");
    // The table grows in the same OK, though the span is refused.
    Type(d, "rowCount", "4");
    Type(d, "colSpan", "1");
    Child<QComboBox>(d, "horizAlign")->setCurrentText("Center");
    Click(d, "okButton");
  });
  editor.OpenCellProperties();
  EXPECT_EQ(view->model()->rowCount(), 4);
  EXPECT_EQ(editor.Editor().grid.At(0, 1).align, "Center");
  EXPECT_EQ(view->columnSpan(0, 0), 1);

  view->selectionModel()->select(view->model()->index(1, 0), QItemSelectionModel::ClearAndSelect);
  OnDialog([](QDialog* d) {
    Type(d, "rowSpan", "3");
    Click(d, "okButton");
  });
  editor.OpenCellProperties();
  EXPECT_EQ(view->rowSpan(1, 0), 3);
  Shot(&editor, "table-grid-span");
}

}  // namespace
}  // namespace tessarine
