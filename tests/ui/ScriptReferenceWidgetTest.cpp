// The ASP and JavaScript tabs of the side panel: built on first visit, a click describes, a
// double click inserts into the document.

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTabWidget>
#include <QTextCursor>
#include <QTextEdit>
#include <QTreeWidget>

#include "core/Application.h"
#include "platform/EditControl.h"
#include "ui/MainWindow.h"
#include "ui/WindowFixture.h"
#include "ui/panels/ScriptReferencePanel.h"

namespace tessarine {
namespace {

class ScriptReferenceWidget : public WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    store.SaveSetting("Miscellaneous", "FirstRun", "no");
    store.SaveSetting("Window", "SideBarTab", "1");
    Start();
    ASSERT_NE(app->ActiveEdit(), nullptr);
  }
  EditControl& Edit() { return *app->ActiveEdit(); }
  ScriptReferencePanel* Visit(const char* name) {
    auto* panel = frame->findChild<ScriptReferencePanel*>(name);
    EXPECT_NE(panel, nullptr) << name;
    if (!panel) return nullptr;
    frame->SidePanel()->setCurrentWidget(panel);
    QApplication::processEvents();
    return panel;
  }
  static QTreeWidgetItem* Node(QTreeWidget* tree, const QString& object, const QString& item = {}) {
    const auto roots = tree->findItems(object, Qt::MatchExactly);
    if (roots.isEmpty()) return nullptr;
    if (item.isEmpty()) return roots[0];
    for (int i = 0; i < roots[0]->childCount(); ++i)
      if (roots[0]->child(i)->text(0) == item) return roots[0]->child(i);
    return nullptr;
  }
  static void Mouse(QTreeWidget* tree, QTreeWidgetItem* node, QEvent::Type type) {
    tree->scrollToItem(node);
    const QPointF at = tree->visualItemRect(node).center();
    const Qt::MouseButtons held =
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(Qt::LeftButton);
    QMouseEvent e(type, at, tree->viewport()->mapToGlobal(at), Qt::LeftButton, held,
                  Qt::NoModifier);
    QApplication::sendEvent(tree->viewport(), &e);
  }
  static void Click(QTreeWidget* tree, QTreeWidgetItem* node) {
    Mouse(tree, node, QEvent::MouseButtonPress);
    Mouse(tree, node, QEvent::MouseButtonRelease);
  }
  static void DoubleClick(QTreeWidget* tree, QTreeWidgetItem* node) {
    Click(tree, node);
    Mouse(tree, node, QEvent::MouseButtonDblClick);
    Mouse(tree, node, QEvent::MouseButtonRelease);
  }
  static bool StartsBold(QTextEdit* box) {
    QTextCursor c(box->document());
    c.setPosition(1);
    return c.charFormat().fontWeight() >= QFont::Bold;
  }
};

TEST_F(ScriptReferenceWidget, AClickDescribesTheRowOfItsOwnObjectAndADoubleClickInsertsIt) {
  auto* panel = frame->findChild<ScriptReferencePanel*>("aspReference");
  ASSERT_NE(panel, nullptr);
  auto* tree = panel->findChild<QTreeWidget*>("aspTree");
  auto* box = panel->findChild<QTextEdit*>("aspDescription");
  ASSERT_TRUE(tree && box);
  EXPECT_EQ(tree->topLevelItemCount(), 0);  // not visited yet
  EXPECT_EQ(box->toPlainText(),
            "This ASP Tree lists the major ASP objects as well as their properties, methods and "
            "events.  Click on an item for a description.  Double-click an item to insert it into "
            "your document.");

  Visit("aspReference");
  ASSERT_EQ(tree->topLevelItemCount(), 7);
  EXPECT_EQ(tree->topLevelItem(0)->text(0), "Application");
  EXPECT_EQ(tree->topLevelItem(0)->childCount(), 9);
  EXPECT_FALSE(tree->topLevelItem(0)->icon(0).isNull());
  EXPECT_EQ(tree->topLevelItem(6)->text(0), "ObjectContext");

  app->settings.TagCaseUpper = false;
  Edit().SetText("<% x %>");
  Edit().Select(3, 1);
  QTreeWidgetItem* remove = Node(tree, "Session", "Contents.Remove");
  ASSERT_NE(remove, nullptr);
  Click(tree, remove);
  EXPECT_EQ(box->toPlainText(),
            "Contents.Remove(Item or Index)\n\nThis method deletes an item from the Contents "
            "collection of the Session object.");
  EXPECT_TRUE(StartsBold(box));
  EXPECT_EQ(panel->InsertText(), "Session.Contents.Remove(Item or Index)");
  DoubleClick(tree, remove);
  // Its own case, whatever the tag case says, in place of the selection.
  EXPECT_EQ(Edit().Text(), "<% Session.Contents.Remove(Item or Index) %>");

  // The same name under Application is Application's own row.
  Edit().SetText("");
  DoubleClick(tree, Node(tree, "Application", "Contents.Remove"));
  EXPECT_EQ(Edit().Text(), "Application.Contents.Remove(Item or Index)");
  EXPECT_TRUE(box->toPlainText().endsWith("of the Application object."));
}

TEST_F(ScriptReferenceWidget, TheJavaScriptTreeDescribesObjectsAndKeepsCaseInUpperCaseToo) {
  auto* panel = Visit("jsReference");
  ASSERT_NE(panel, nullptr);
  auto* tree = panel->findChild<QTreeWidget*>("jsTree");
  auto* box = panel->findChild<QTextEdit*>("jsDescription");
  ASSERT_TRUE(tree && box);
  ASSERT_EQ(tree->topLevelItemCount(), 10);
  // Visiting again does not add a second set of nodes.
  Visit("aspReference");
  Visit("jsReference");
  EXPECT_EQ(tree->topLevelItemCount(), 10);

  app->settings.TagCaseUpper = true;
  Edit().SetText("ab");
  Edit().SetSelStart(1);
  QTreeWidgetItem* date = Node(tree, "Date");
  ASSERT_NE(date, nullptr);
  Click(tree, date);
  EXPECT_EQ(box->toPlainText(),
            "Date object\n\nThis object holds a date and time, and has methods to read and change "
            "their parts.");
  EXPECT_TRUE(StartsBold(box));
  DoubleClick(tree, date);
  EXPECT_EQ(Edit().Text(), "aDateb");

  tree->expandItem(Node(tree, "Math"));
  DoubleClick(tree, Node(tree, "Math", "random"));
  EXPECT_EQ(Edit().Text(), "aDateMath.random()b");
  app->settings.TagCaseUpper = false;
  tree->expandItem(Node(tree, "window"));
  DoubleClick(tree, Node(tree, "window", "setTimeout"));
  EXPECT_EQ(Edit().Text(), "aDateMath.random()window.setTimeout(expression, msec)b");
}

TEST_F(ScriptReferenceWidget, TheKeyboardDescribesAndEnterInserts) {
  auto* panel = Visit("aspReference");
  ASSERT_NE(panel, nullptr);
  QTreeWidget* tree = panel->Tree();
  Click(tree, Node(tree, "Request"));
  EXPECT_TRUE(panel->DescriptionBox()->toPlainText().startsWith("Request object"));
  auto key = [tree](int k) {
    QKeyEvent press(QEvent::KeyPress, k, Qt::NoModifier);
    QApplication::sendEvent(tree, &press);
  };
  key(Qt::Key_Down);
  EXPECT_TRUE(panel->DescriptionBox()->toPlainText().startsWith("Response object"));
  key(Qt::Key_Right);  // open it
  key(Qt::Key_Down);
  EXPECT_TRUE(panel->DescriptionBox()->toPlainText().startsWith("Buffer\n"));
  Edit().SetText("");
  key(Qt::Key_Return);
  EXPECT_EQ(Edit().Text(), "Response.Buffer");
}

TEST_F(ScriptReferenceWidget, ADoubleClickBeforeAnyClickInsertsNothing) {
  auto* panel = Visit("aspReference");
  ASSERT_NE(panel, nullptr);
  Edit().SetText("keep");
  Edit().Select(0, 4);
  panel->DoubleClickNode();
  EXPECT_EQ(Edit().Text(), "keep");
  Edit().SetSelStart(4);
  panel->DoubleClickNode();
  EXPECT_EQ(Edit().Text(), "keep");
}

}  // namespace
}  // namespace tessarine
