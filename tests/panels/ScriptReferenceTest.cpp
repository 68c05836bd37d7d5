// The ASP and JavaScript reference tables, the trees built from them, what a click shows and
// what a double click inserts.
#include "panels/ScriptReference.h"

#include <gtest/gtest.h>

#include <set>

#include "core/TestApp.h"
#include "core/TextServices.h"

namespace tessarine {
namespace {

struct Reference {
  std::span<const ReferenceObject> objects;
  ObjectItems items;
};

Reference ASP() {
  Reference r{ASPObjects(), {}};
  FillASPItems(r.items);
  return r;
}

Reference JS() {
  Reference r{JSObjects(), {}};
  FillJSItems(r.items);
  return r;
}

std::string Keys(const ObjectItems& items, std::size_t from, std::size_t count) {
  std::string out;
  for (std::size_t i = from; i < from + count; ++i) out += items.Item(i).Key() + " ";
  return out;
}

TEST(ScriptReference, TablesHoldEveryRowInOrder) {
  const Reference asp = ASP();
  const Reference js = JS();
  ASSERT_EQ(asp.items.Count(), 69u);
  ASSERT_EQ(js.items.Count(), 217u);

  EXPECT_EQ(Keys(asp.items, 0, 9),
            "Application.Contents Application.StaticObjects Application.Value Application.Lock "
            "Application.Unlock Application.Contents.Remove Application.Contents.RemoveAll "
            "Application.onStart Application.onEnd ");
  EXPECT_EQ(Keys(asp.items, 26, 2), "Response.Buffer Response.CacheControl ");
  EXPECT_EQ(Keys(asp.items, 65, 4),
            "ObjectContext.SetAbort ObjectContext.SetComplete ObjectContext.OnTransactionAbort "
            "ObjectContext.OnTransactionCommit ");
  EXPECT_EQ(asp.items.Item(67).ItemType, kEvent);
  EXPECT_EQ(asp.items.Item(65).ItemType, kMethod);

  EXPECT_EQ(Keys(js.items, 0, 3), "string.length string.prototype string.anchor ");
  EXPECT_EQ(Keys(js.items, 77, 2), "window.closed window.defaultStatus ");
  EXPECT_EQ(Keys(js.items, 130, 7),
            "window.onBlur window.onDragDrop window.onFocus window.onLoad window.onMove "
            "window.onResize window.onUnload ");
  EXPECT_EQ(Keys(js.items, 215, 2), "Form.onReset Form.onSubmit ");
  EXPECT_EQ(js.items.Item(80).ItemName, "frames[]");

  for (const Reference* r : {&asp, &js}) {
    std::set<std::string> names;
    for (const ReferenceObject& o : r->objects) names.insert(o.name);
    std::string last;
    int lastType = 0;
    for (const ObjectItem& row : r->items) {
      SCOPED_TRACE(row.Key());
      EXPECT_TRUE(names.count(row.ObjectName));
      // One object's rows together: properties, then methods, then events.
      if (row.ObjectName == last) {
        EXPECT_GE(row.ItemType, lastType);
      }
      last = row.ObjectName;
      lastType = row.ItemType;
      ASSERT_GT(row.Description.size(), 20u);
      EXPECT_EQ(row.Description.back(), '.');
      if (!row.Syntax.empty()) {
        EXPECT_EQ(row.Syntax.front(), '(');
        EXPECT_EQ(row.Syntax.back(), ')');
      }
      if (row.ItemType == kEvent) {
        EXPECT_EQ(row.Syntax, "");
      }
    }
  }
}

TEST(ScriptReference, TheCollectionRefusesTakenKeysAndUnknownTypes) {
  ObjectItems items;
  EXPECT_TRUE(items.Add("Response", kMethod, "Write", "Writes.", "(string)"));
  EXPECT_FALSE(items.Add("Response", kProperty, "Write", "Again.", ""));
  EXPECT_FALSE(items.Add("Response", 4, "Flush", "Odd type.", ""));
  EXPECT_FALSE(items.Add("Response", 0, "Flush", "Odd type.", ""));
  EXPECT_TRUE(items.Add("Request", kMethod, "Write", "Same name, other object.", ""));
  ASSERT_EQ(items.Count(), 2u);
  EXPECT_EQ(items.Find("Response.Write")->Description, "Writes.");
  EXPECT_EQ(items.Find("Request.Write")->Description, "Same name, other object.");
  EXPECT_EQ(items.Find("Response.Flush"), nullptr);
}

TEST(ScriptReference, TheTreeHasEachObjectWithItsRowsBeneath) {
  const Reference asp = ASP();
  const std::vector<ReferenceNode> nodes = BuildTree(asp.objects, asp.items);
  ASSERT_EQ(nodes.size(), 7u + 69u);
  std::vector<std::string> roots;
  for (const ReferenceNode& n : nodes)
    if (n.parentKey.empty()) roots.push_back(n.key);
  EXPECT_EQ(roots, (std::vector<std::string>{"Application", "ASPError", "Request", "Response",
                                             "Server", "Session", "ObjectContext"}));
  EXPECT_EQ(nodes[0].text, "Application");
  EXPECT_EQ(nodes[0].itemType, 0);
  EXPECT_EQ(nodes[6].key, "Application.Contents.Remove");
  EXPECT_EQ(nodes[6].text, "Contents.Remove");
  EXPECT_EQ(nodes[6].parentKey, "Application");
  EXPECT_EQ(nodes[6].itemType, kMethod);
  // Every row sits right after its own object or a sibling.
  std::string parent;
  for (const ReferenceNode& n : nodes) {
    if (n.parentKey.empty())
      parent = n.key;
    else
      EXPECT_EQ(n.parentKey, parent) << n.key;
  }
  const Reference js = JS();
  EXPECT_EQ(BuildTree(js.objects, js.items).size(), 10u + 217u);
}

TEST(ScriptReference, AClickDescribesTheObjectOrTheRowOfItsOwnObject) {
  const Reference asp = ASP();
  NodeDescription d = DescribeNode(asp.objects, asp.items, "Response", "Response");
  EXPECT_EQ(d.title, "Response object");
  EXPECT_EQ(d.description,
            "This object controls how information is output to the client browser and how the "
            "server processes your ASP scripts.");
  EXPECT_EQ(d.syntax, "");
  EXPECT_EQ(d.insertText, "Response");
  EXPECT_EQ(DescribeNode(asp.objects, asp.items, "ASPError", "ASPError").description,
            "This object is used to display detailed information about errors that occur in your "
            "ASP scripts.");

  const NodeDescription app =
      DescribeNode(asp.objects, asp.items, "Contents.Remove", "Application.Contents.Remove");
  const NodeDescription session =
      DescribeNode(asp.objects, asp.items, "Contents.Remove", "Session.Contents.Remove");
  EXPECT_EQ(app.insertText, "Application.Contents.Remove(Item or Index)");
  EXPECT_EQ(session.insertText, "Session.Contents.Remove(Item or Index)");
  EXPECT_EQ(app.description, asp.items.Find("Application.Contents.Remove")->Description);
  EXPECT_EQ(session.description, asp.items.Find("Session.Contents.Remove")->Description);
  EXPECT_NE(app.description, session.description);
  EXPECT_EQ(session.title, "Contents.Remove");
  EXPECT_EQ(session.syntax, "(Item or Index)");

  // Syntax joins the call; a property without one is the bare name.
  EXPECT_EQ(DescribeNode(asp.objects, asp.items, "Write", "Response.Write").insertText,
            "Response.Write(string)");
  EXPECT_EQ(DescribeNode(asp.objects, asp.items, "Buffer", "Response.Buffer").insertText,
            "Response.Buffer");
  EXPECT_EQ(DescribeNode(asp.objects, asp.items, "Nothing", "Response.Nothing").insertText, "");

  const Reference js = JS();
  EXPECT_EQ(DescribeNode(js.objects, js.items, "random", "Math.random").insertText,
            "Math.random()");
  EXPECT_EQ(DescribeNode(js.objects, js.items, "frames[]", "window.frames[]").insertText,
            "window.frames[]");
  EXPECT_EQ(DescribeNode(js.objects, js.items, "length", "history.length").description,
            js.items.Find("history.length")->Description);
  // A node whose text names an object stands for that object, wherever it hangs.
  d = DescribeNode(js.objects, js.items, "location", "window.location");
  EXPECT_EQ(d.title, "location object");
  EXPECT_EQ(d.insertText, "location");
  // Each tree knows only its own objects.
  EXPECT_EQ(DescribeNode(asp.objects, asp.items, "window", "window").insertText, "");
}

TEST(ScriptReference, TheDescriptionBoxShowsABoldTitleThenSyntaxThenTheSentence) {
  const Reference asp = ASP();
  EXPECT_EQ(DescriptionHtml(DescribeNode(asp.objects, asp.items, "Write", "Response.Write")),
            "<b>Write</b>(string)<br><br>This method writes a string to the output of the page.");
  EXPECT_EQ(DescriptionHtml({"A<B>", "(x & y)", "Say \"<OBJECT>\".", ""}),
            "<b>A&lt;B&gt;</b>(x &amp; y)<br><br>Say &quot;&lt;OBJECT&gt;&quot;.");
}

struct InsertReference : ::testing::Test {
  testing::TestApp t;
  BufferEdit* edit = nullptr;
  void Open(const std::string& text, Pos selStart, Pos selLength, bool upper) {
    t.app.settings.TagCaseUpper = upper;
    edit = &t.NewWindow(text).Buffer();
    edit->Select(selStart, selLength);
  }
};

TEST_F(InsertReference, ReplacesTheSelectionInItsOwnCase) {
  Open("<% x %>", 3, 1, false);
  InsertReferenceText(t.app, "Response.Write(string)");
  EXPECT_EQ(edit->Text(), "<% Response.Write(string) %>");
  EXPECT_EQ(edit->SelStart(), 25);
  EXPECT_EQ(edit->SelLength(), 0);
  EXPECT_EQ(t.app.textServices.LastStartTag, "Response.Write(string)");
  EXPECT_EQ(t.app.textServices.LastEndTag, "");
  // The replacement is for this insertion only: the next tag command wraps again.
  edit->Select(3, 8);
  WrapSelection(t.app, "<B>", "</B>", false);
  EXPECT_EQ(edit->Text(), "<% <b>Response</b>.Write(string) %>");

  Open("ab", 1, 0, true);
  InsertReferenceText(t.app, "Session.SessionID");
  EXPECT_EQ(edit->Text(), "aSession.SessionIDb");
  EXPECT_EQ(edit->SelStart(), 18);
}

TEST_F(InsertReference, NothingToInsertLeavesTheSelectionAndNoDocumentIsNoHarm) {
  Open("keep this", 0, 4, false);
  InsertReferenceText(t.app, "");
  EXPECT_EQ(edit->Text(), "keep this");
  EXPECT_EQ(edit->SelText(), "keep");
  edit->Select(4, 0);
  InsertReferenceText(t.app, "");
  EXPECT_EQ(edit->Text(), "keep this");

  testing::TestApp bare;
  InsertReferenceText(bare.app, "Response.End");
  EXPECT_FALSE(bare.app.textServices.ReplaceSelectionOnce);
}

}  // namespace
}  // namespace tessarine
