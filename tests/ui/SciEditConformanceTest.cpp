#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>

#include "support/EditConformance.h"
#include "ui/SciEdit.h"

namespace tessarine {
namespace {

// Sends real key presses, so the widget's own typing path (and its line ends) is used.
void PressKey(SciEdit& e, int key, const QString& text, Qt::KeyboardModifiers mods = {}) {
  QKeyEvent press(QEvent::KeyPress, key, mods, text);
  QCoreApplication::sendEvent(&e, &press);
  QKeyEvent release(QEvent::KeyRelease, key, mods, text);
  QCoreApplication::sendEvent(&e, &release);
}

struct SciEditFactory {
  using Control = SciEdit;
  static std::unique_ptr<SciEdit> Make() { return std::make_unique<SciEdit>(); }
  static void Type(SciEdit& e, std::string_view text) {
    for (size_t i = 0; i < text.size(); ++i) {
      if (text.substr(i, 2) == "\r\n") {
        PressKey(e, Qt::Key_Return, QStringLiteral("\r"));
        ++i;
        continue;
      }
      const char c = text[i];
      const int key = c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c;
      PressKey(e, key, QString(QChar::fromLatin1(c)));
    }
  }
};

INSTANTIATE_TYPED_TEST_SUITE_P(SciEdit, EditConformance, SciEditFactory);

// What only the widget can get wrong.

using Sci = QsciScintillaBase;

std::string StylesOf(const SciEdit& e) {
  std::string s;
  for (Pos i = 0; i < e.Length(); ++i) s += static_cast<char>('0' + e.StyleAt(i));
  return s;
}

TEST(SciEdit, NoLexerRestylesTheText) {
  SciEdit e;
  EXPECT_EQ(e.SendScintilla(Sci::SCI_GETLEXER), Sci::SCLEX_CONTAINER);
  e.resize(400, 300);
  e.SetText("<p class=\"x\">text</p>\r\n<!-- c -->\r\n");
  const Style styles[] = {1, 1, 1, 1, 1, 1, 1, 1, 3, 3, 3, 1, 0, 0, 0, 0, 1, 1, 1, 1};
  e.SetStyles(0, styles, 20);
  e.FillStyle(22, 10, 4);
  const std::string before = StylesOf(e);
  e.show();
  e.grab();  // paints, which asks for the styles of the visible text
  e.SendScintilla(Sci::SCI_COLOURISE, 0, -1L);
  EXPECT_EQ(StylesOf(e), before);
  // An edit leaves the text behind it unstyled in the widget's eyes; painting again must
  // not touch it either.
  e.SetSelStart(3);
  SciEditFactory::Type(e, "q");
  e.grab();
  e.SendScintilla(Sci::SCI_COLOURISE, 0, -1L);
  EXPECT_EQ(StylesOf(e), before.substr(0, 3) + "1" + before.substr(3));
}

TEST(SciEdit, CodePageFollowsEachLoad) {
  SciEdit e;
  e.SetText("caf\xC3\xA9");
  EXPECT_EQ(e.SendScintilla(Sci::SCI_GETCODEPAGE), Sci::SC_CP_UTF8);
  e.SetText("caf\xE9");
  EXPECT_EQ(e.SendScintilla(Sci::SCI_GETCODEPAGE), 0);
  e.SetText("plain");
  EXPECT_EQ(e.SendScintilla(Sci::SCI_GETCODEPAGE), Sci::SC_CP_UTF8);
  for (const char* bad : {"\xC3", "\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80",
                          "\xF8\x88\x80\x80\x80", "ok\x80", "\xE2\x82"}) {
    e.SetText(bad);
    EXPECT_EQ(e.SendScintilla(Sci::SCI_GETCODEPAGE), 0) << bad;
  }
  e.SetText("long ascii run before \xF0\x9F\x98\x80 and \xF4\x8F\xBF\xBF");
  EXPECT_EQ(e.SendScintilla(Sci::SCI_GETCODEPAGE), Sci::SC_CP_UTF8);

  // Typed text is stored in the text's own encoding.
  e.SetText("\xE9t\xE9");
  e.SetSelStart(3);
  PressKey(e, 0xC9, QStringLiteral("\u00E9"));
  EXPECT_EQ(e.Text(), "\xE9t\xE9\xE9");
  e.SetText("\xC3\xA9t");
  e.SetSelStart(3);
  PressKey(e, 0xC9, QStringLiteral("\u00E9"));
  EXPECT_EQ(e.Text(), "\xC3\xA9t\xC3\xA9");
}

TEST(SciEdit, NewLinesAreCrLfWhateverTheTextUses) {
  SciEdit e;
  e.SetText("a\nb\n");
  EXPECT_EQ(e.SendScintilla(Sci::SCI_GETEOLMODE), Sci::SC_EOL_CRLF);
  e.SetSelStart(1);
  PressKey(e, Qt::Key_Enter, QStringLiteral("\r"));
  EXPECT_EQ(e.Text(), "a\r\n\nb\n");

  // Pasted line ends become CR LF too; the rest of the text keeps its own.
  QApplication::clipboard()->setText(QStringLiteral("x\ny\rz"));
  e.SetSelStart(e.Length());
  e.FillStyle(0, e.Length(), 2);
  e.paste();
  EXPECT_EQ(e.Text(), "a\r\n\nb\nx\r\ny\r\nz");
  EXPECT_EQ(StylesOf(e), std::string(e.Length(), '2'));
}

TEST(SciEdit, ArrowKeysForgetTheInsertionStyle) {
  SciEdit e;
  e.SetText("abcd");
  e.FillStyle(0, 4, 3);
  e.SetSelStart(2);
  e.SetInsertionStyle(5);
  PressKey(e, Qt::Key_Left, {});
  PressKey(e, Qt::Key_Right, {});
  EXPECT_EQ(e.SelStart(), 2);
  EXPECT_EQ(e.InsertionStyle(), 3);
  SciEditFactory::Type(e, "x");
  EXPECT_EQ(StylesOf(e), "33333");
  // A key that does not move the caret keeps it.
  e.SetInsertionStyle(6);
  PressKey(e, Qt::Key_Shift, {});
  SciEditFactory::Type(e, "y");
  EXPECT_EQ(StylesOf(e), "333633");
}

TEST(SciEdit, ChangeHandlerMayEditTheText) {
  // The widget refuses edits from inside its own modification notice; the handler is
  // called after it.
  SciEdit e;
  e.SetText("body");
  bool reacting = false;
  e.SetChangeHandler([&] {
    if (reacting || e.Text().find('!') == std::string::npos) return;
    reacting = true;
    e.ReplaceRange(0, 0, "*");
    reacting = false;
  });
  e.SetSelStart(4);
  SciEditFactory::Type(e, "!");
  EXPECT_EQ(e.Text(), "*body!");
  e.ReplaceSel("!");
  EXPECT_EQ(e.Text(), "**body!!");
}

TEST(SciEdit, StyleTableDefinesTheWidgetStyles) {
  SciEdit e;
  StyleTable table;
  for (int i = 0; i < kStyleCount; ++i) {
    table[i].color = 0x102030 + i;  // red in the low byte
    table[i].bold = i % 2;
    table[i].italic = i % 3 == 0;
    table[i].fontName = i == 7 ? "Courier" : "Sans";
    table[i].fontSize = 9 + i % 4;
  }
  e.ApplyStyleTable(table);
  for (unsigned long i : {0UL, 1UL, 7UL, 30UL, static_cast<unsigned long>(Sci::STYLE_DEFAULT)}) {
    const StyleLook& look = table[i == Sci::STYLE_DEFAULT ? 0 : i];
    SCOPED_TRACE(i);
    EXPECT_EQ(e.SendScintilla(Sci::SCI_STYLEGETFORE, i), look.color);
    EXPECT_EQ(e.SendScintilla(Sci::SCI_STYLEGETBOLD, i) != 0, look.bold);
    EXPECT_EQ(e.SendScintilla(Sci::SCI_STYLEGETITALIC, i) != 0, look.italic);
    EXPECT_EQ(e.SendScintilla(Sci::SCI_STYLEGETSIZE, i), look.fontSize);
    char font[64] = {};
    e.SendScintilla(Sci::SCI_STYLEGETFONT, i, static_cast<void*>(font));
    EXPECT_EQ(std::string(font), look.fontName);
  }
}

TEST(SciEdit, ChangesThroughTheWidgetItselfAreStyledAndReported) {
  // A menu command may call the widget directly, bypassing the control's own calls.
  SciEdit e;
  e.SetText("<b>bold</b>");
  e.FillStyle(0, 3, 1);
  int changes = 0;
  e.SetChangeHandler([&] { ++changes; });
  e.SendScintilla(Sci::SCI_INSERTTEXT, 3UL, "very ");
  EXPECT_EQ(StylesOf(e), "1111111100000000");
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(changes, 1);
  e.undo();
  e.undo();
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(e.Text(), "<b>bold</b>");
  EXPECT_EQ(changes, 2);
  // Notices of finished insertions and deletions make the widget count characters up to
  // the change on every keystroke; only the notices sent before a change are asked for.
  EXPECT_EQ(e.SendScintilla(Sci::SCI_GETMODEVENTMASK) &
                (Sci::SC_MOD_INSERTTEXT | Sci::SC_MOD_DELETETEXT | Sci::SC_PERFORMED_USER |
                 Sci::SC_PERFORMED_UNDO | Sci::SC_PERFORMED_REDO | Sci::SC_STARTACTION),
            0);
}

}  // namespace
}  // namespace tessarine

namespace tessarine {
namespace {

TEST(SciEdit, AHiddenControlDoesNotWrapButKeepsItsWrapSetting) {
  SciEdit edit;
  auto mode = [&] { return edit.SendScintilla(QsciScintillaBase::SCI_GETWRAPMODE); };
  edit.SetWordWrap(true);
  EXPECT_EQ(mode(), QsciScintillaBase::SC_WRAP_WORD);
  edit.SetVisible(false);
  EXPECT_EQ(mode(), QsciScintillaBase::SC_WRAP_NONE);
  EXPECT_TRUE(edit.WordWrap());
  edit.SetVisible(false);  // hiding twice keeps the first saved mode
  edit.SetVisible(true);
  EXPECT_EQ(mode(), QsciScintillaBase::SC_WRAP_WORD);

  edit.SetVisible(false);
  edit.SetWordWrap(false);  // a change while hidden is what showing restores
  EXPECT_FALSE(edit.WordWrap());
  edit.SetVisible(true);
  EXPECT_EQ(mode(), QsciScintillaBase::SC_WRAP_NONE);

  // A load keeps the mode too.
  edit.SetWordWrap(true);
  edit.SetText("<P>a</P>\r\n<P>b</P>");
  EXPECT_EQ(mode(), QsciScintillaBase::SC_WRAP_WORD);
}

}  // namespace
}  // namespace tessarine
