// The editing rules on the real control: keys typed into a document window, the Edit menu,
// the right button and a dropped file.

#include <QAction>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QUrl>
#include <fstream>

#include "EditFixture.h"
#include "core/Styles.h"
#include "platform/BufferEdit.h"
#include "platform/Desktop.h"

namespace tessarine {
namespace {

using EditWidget = EditFixture;

TEST_F(EditWidget, TabAndShiftTabIndentABlock) {
  SciEdit& e = Document("one\r\ntwo\r\nthree");
  e.Select(5, 8);
  Key(&e, Qt::Key_Tab, {}, "\t");
  EXPECT_EQ(e.Text(), "one\r\n\ttwo\r\n\tthree");
  EXPECT_EQ(e.SelStart(), 5);
  EXPECT_EQ(e.SelText(), "\ttwo\r\n\tth");
  Key(&e, Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(e.Text(), "one\r\ntwo\r\nthree");
  EXPECT_EQ(e.SelText(), "two\r\nthr");
  // Within a line the tab simply replaces the selection.
  e.Select(6, 2);
  Key(&e, Qt::Key_Tab, {}, "\t");
  EXPECT_EQ(e.Text(), "one\r\nt\t\r\nthree");
  EXPECT_EQ(e.SelStart(), 7);
}

TEST_F(EditWidget, EnterIndentsLikeTheLineBefore) {
  SciEdit& e = Document("<UL>\r\n\t\t<LI>item");
  e.SetSelStart(e.Length());
  Key(&e, Qt::Key_Return, {}, "\r");
  EXPECT_EQ(e.Text(), "<UL>\r\n\t\t<LI>item\r\n\t\t");
  EXPECT_EQ(e.SelStart(), e.Length());
  EXPECT_EQ(Panel(4), "Line: 3");
  EXPECT_EQ(Panel(3), QString("%1 bytes").arg(e.Length()));
  Key(&e, 'X', Qt::ShiftModifier, "X");
  Key(&e, Qt::Key_Return, {}, "\r");
  EXPECT_EQ(e.Text(), "<UL>\r\n\t\t<LI>item\r\n\t\tX\r\n\t\t");

  SciEdit& odd = Document("text\tmore");
  odd.SetSelStart(9);
  Key(&odd, Qt::Key_Return, {}, "\r");
  EXPECT_EQ(odd.Text(), "text\tmore\r\n\t\t\t\t\t");
}

TEST_F(EditWidget, ControlKeysWriteMarkupAndTypedLessThanStaysBlack) {
  SciEdit& e = Document("<B>x</B> word");
  e.FillStyle(0, 8, MakeStyle(StyleKind::Tag));
  e.Select(9, 4);
  Key(&e, Qt::Key_Space, Qt::ControlModifier, " ");
  EXPECT_EQ(e.Text(), "<B>x</B> &nbsp;");
  e.Select(3, 1);
  Key(&e, Qt::Key_Comma, Qt::ControlModifier);
  EXPECT_EQ(e.Text(), "<B><%x%></B> &nbsp;");
  EXPECT_EQ(e.SelText(), "x");
  Key(&e, Qt::Key_Less, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(e.Text(), "<B><%<%=x%>%></B> &nbsp;");

  e.SetSelStart(3);
  Key(&e, Qt::Key_Less, Qt::ShiftModifier, "<");
  EXPECT_EQ(e.TextRange(0, 5), "<B><<");
  EXPECT_EQ(KindOf(e.StyleAt(3)), StyleKind::Plain);
}

TEST_F(EditWidget, EnterInTheFindBoxTypesNothingIntoTheDocument) {
  SciEdit& e = Document("alpha beta");
  QComboBox* box = frame->FindCombo();
  box->lineEdit()->setFocus();
  QApplication::processEvents();
  box->setEditText("beta");
  Press(box->lineEdit(), Qt::Key_Return, {}, "\r");
  // The release reaches the document, which has the focus now.
  Release(&e, Qt::Key_Return, {}, "\r");
  EXPECT_EQ(e.Text(), "alpha beta");
  EXPECT_EQ(e.SelText(), "beta");
}

TEST_F(EditWidget, EditMenuCommandsAndTheRightButton) {
  SciEdit& e = Document("cut me");
  e.Select(0, 4);
  frame->Command("cut")->trigger();
  EXPECT_EQ(headless.clipboard.Text(), "cut ");
  frame->Command("mnuSelectAll")->trigger();
  frame->Button("tbrFile", "Paste")->trigger();
  EXPECT_EQ(e.Text(), "cut ");
  Key(&e, 'A', {}, "a");
  frame->Command("mnuUndo")->trigger();
  EXPECT_EQ(e.Text(), "cut ");
  frame->Button("tbrFormat", "Bold")->trigger();
  frame->Command("mnuUndo")->trigger();  // straight after a tag command: nothing
  EXPECT_EQ(e.Text(), "cut <B></B>");

  ASSERT_TRUE(frame->Command("mnuWordWrap")->isChecked());
  frame->Command("mnuWordWrap")->trigger();
  EXPECT_FALSE(frame->Command("mnuWordWrap")->isChecked());
  EXPECT_FALSE(e.WordWrap());
  EXPECT_TRUE(frame->Command("mnuGlobalReplace")->isEnabled());  // its dialog is live

  QContextMenuEvent menu(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(5, 5));
  QApplication::sendEvent(e.viewport(), &menu);
  QMenu* edit = frame->Menu("mnuEdit");
  EXPECT_TRUE(edit->isVisible());
  edit->hide();
}

TEST_F(EditWidget, DroppedStyleSheetBecomesALink) {
  SciEdit& e = Document("x");
  e.SetSelStart(1);
  // A saved page: no warning, and the path relative to it.
  Active()->SetCaption(dir.path().toStdString() + "/page.htm");
  QDir(dir.path()).mkdir("css");
  const std::string sheet = dir.path().toStdString() + "/css/site.css";
  std::ofstream(sheet) << "p {}";
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(QString::fromStdString(sheet))});
  // As the window system delivers a drag: entered first, then dropped.
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
  QApplication::sendEvent(e.viewport(), &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
  QApplication::sendEvent(e.viewport(), &drop);
  EXPECT_TRUE(drop.isAccepted());
  EXPECT_EQ(e.Text(), "x<link rel=\"StyleSheet\" href=\"css/site.css\">");
  EXPECT_TRUE(headless.checkedQuestions.asked().empty());
}

TEST(SciEditLines, AgreesWithTheHeadlessControlOnLinesAndRanges) {
  const std::string text = "a\r\nb\nc\rd\r\r\n\n\xE9\r\nend";
  SciEdit sci;
  BufferEdit buffer;
  sci.SetText(text);
  buffer.SetText(text);
  for (Pos p = -1; p <= static_cast<Pos>(text.size()) + 1; ++p) {
    EXPECT_EQ(sci.LineFromPosition(p), buffer.LineFromPosition(p)) << p;
    EXPECT_EQ(sci.RangeView(p, 3), buffer.RangeView(p, 3)) << p;
  }
}

TEST_F(EditWidget, ABurstOfEditsWrapsOnceItIsOver) {
  SciEdit& e = Document(std::string(200, 'x'));
  e.SetWordWrap(true);
  for (int i = 0; i < 100; ++i) e.ReplaceRange(i, 1, "y");
  EXPECT_TRUE(e.WordWrap());
  EXPECT_EQ(e.SendScintilla(QsciScintillaBase::SCI_GETWRAPMODE), QsciScintillaBase::SC_WRAP_NONE);
  QApplication::processEvents();
  EXPECT_EQ(e.SendScintilla(QsciScintillaBase::SCI_GETWRAPMODE), QsciScintillaBase::SC_WRAP_WORD);
  // A few edits keep wrapping all along.
  e.ReplaceRange(0, 1, "z");
  EXPECT_EQ(e.SendScintilla(QsciScintillaBase::SCI_GETWRAPMODE), QsciScintillaBase::SC_WRAP_WORD);
  EXPECT_EQ(e.TextRange(0, 3), "zyy");
}

}  // namespace
}  // namespace tessarine
