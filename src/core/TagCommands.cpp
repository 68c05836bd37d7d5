#include "core/TagCommands.h"

#include <array>

#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "core/HelpTopics.h"
#include "core/TextServices.h"
#include "platform/Desktop.h"
#include "platform/EditControl.h"
#include "platform/SettingsStore.h"

namespace tessarine {

namespace {

const std::string Q = "\"";
const std::string CRLF = "\r\n";
const std::string TAB = "\t";

struct Wrap {
  const char* start;
  const char* end;
};

const Wrap kPhysical[7] = {{"<B>", "</B>"},     {"<I>", "</I>"},     {"<S>", "</S>"},
                           {"<SUB>", "</SUB>"}, {"<SUP>", "</SUP>"}, {"<TT>", "</TT>"},
                           {"<U>", "</U>"}};

const char* const kLogical[18] = {"ABBREV", "ACRONYM", "ARG",    "AU",   "CITE",   "CODE",
                                  "CREDIT", "DFN",     "DEL",    "EM",   "FN",     "Q",
                                  "INS",    "KBD",     "PERSON", "SAMP", "STRONG", "VAR"};

// mnuParagraphSub 1 to 9.
const Wrap kParagraph[9] = {
    {"<ADDRESS>", "</ADDRESS>"}, {"<BYLINE>", "</BYLINE>"}, {"<!--", "-->"}, {"<DIV>", "</DIV>"},
    {"<LISTING>", "</LISTING>"}, {"<LIT>", "</LIT>"},       {"<P>", "</P>"}, {"<PRE>", "</PRE>"},
    {"<SPAN>", "</SPAN>"}};

const char* const kAlignWords[4] = {"Left", "Center", "Right", "Justify"};

// mnuStructureTagsSub: a null end inserts the start alone.
const Wrap kStructure[9] = {
    {"<BANNER>", "</BANNER>"}, {"<BASE>", nullptr},   {"<BODY>", "</BODY>"},
    {"<HEAD>", "</HEAD>"},     {"<HTML>", "</HTML>"}, {"<ISINDEX>", nullptr},
    {nullptr, nullptr},        {"<NEXTID>", nullptr}, {"<TITLE>", "</TITLE>"}};

void Insert(Application& app, const std::string& text, bool keepCase = false) {
  InsertAtCaret(app, text, keepCase);
}
void WrapWith(Application& app, const std::string& start, const std::string& end) {
  WrapSelection(app, start, end, false);
}

// The CR LF that follows a line break when the setting asks for it.
void LineBreakReturn(Application& app) {
  if (!app.settings.BRcarriageReturn) return;
  if (EditControl* e = app.ActiveEdit()) e->ReplaceSel(CRLF);
}

void PhysicalStyles(Application& app, int i) {
  if (i >= 0 && i < 7) WrapWith(app, kPhysical[i].start, kPhysical[i].end);
}

void LogicalStyles(Application& app, int i) {
  if (i < 0 || i >= 18) return;
  const std::string tag = kLogical[i];
  WrapWith(app, "<" + tag + ">", "</" + tag + ">");
}

void Headings(Application& app, int n) {
  if (n < 1 || n > 6) return;
  const std::string number = std::to_string(n);
  WrapWith(app, "<H" + number + ">", "</H" + number + ">");
}

void Paragraph(Application& app, int i) {
  if (i < 1 || i > 9) return;
  if (i == 7 && !app.settings.EndingPtag) {
    // Only the mark, in front of the selection; the undo history stays.
    EditControl* e = app.ActiveEdit();
    if (!e) return;
    e->SetSelLength(0);
    e->ReplaceSel(app.settings.TagCaseUpper ? "<P>" : "<p>");
    return;
  }
  WrapWith(app, kParagraph[i - 1].start, kParagraph[i - 1].end);
}

void Align(Application& app, int i) {
  if (i >= 0 && i <= 3) {
    const bool div = app.settings.useDIVtag;
    WrapWith(app, std::string(div ? "<DIV ALIGN=" : "<P ALIGN=") + Q + kAlignWords[i] + Q + ">",
             div ? "</DIV>" : "</P>");
  } else if (i == 5) {
    WrapWith(app, "<BLOCKQUOTE>", "</BLOCKQUOTE>");
  }
}

void OtherHTML(Application& app, int i) {
  switch (i) {
    case 1:
      Insert(app, "<BR>");
      LineBreakReturn(app);
      break;
    case 2:
      WrapWith(app, "<NOBR>", "</NOBR>");
      break;
    case 3:
      Insert(app, "<WBR>");
      break;
    case 4:
      Insert(app, "&nbsp;", true);
      break;
    default:
      break;
  }
}

void StructureTags(Application& app, int i) {
  if (i < 0 || i > 8) return;
  if (i == 6) return Insert(app, "<LINK HREF=" + Q + Q + " REL=" + Q + Q + ">");
  if (kStructure[i].end)
    WrapWith(app, kStructure[i].start, kStructure[i].end);
  else
    Insert(app, kStructure[i].start);
}

bool EqualNoCase(const std::string& a, const std::string& b) {
  return a.size() == b.size() && LCase(a) == LCase(b);
}

void FocusDocument(Application& app) {
  if (EditControl* e = app.ActiveEdit()) e->SetFocus();
}

struct Snippet {
  const char* key;
  std::string start, end;
};

const std::vector<Snippet>& Snippets() {
  static const std::vector<Snippet> snippets = {
      {"JSFunction", "function functionName()" + CRLF + "{" + CRLF + TAB, CRLF + "}"},
      {"JSIfElse", "if (condition)" + CRLF + "{" + CRLF + TAB,
       CRLF + "} else if {" + CRLF + CRLF + "} else {" + CRLF + CRLF + "}"},
      {"JSForNext", "for (var i = startvalue; i <= maxvalue; i++)" + CRLF + "{" + CRLF + TAB,
       CRLF + "}"},
      {"JSDoWhile", "do {" + CRLF + TAB, CRLF + "} while(condition)"},
      {"JSswitch",
       "switch(expression)" + CRLF + "{" + CRLF + TAB + "case label1:" + CRLF + TAB + TAB + CRLF +
           TAB + TAB + "break;" + CRLF + CRLF + TAB + "case label2:" + CRLF + TAB + TAB + CRLF +
           TAB + TAB + "break;" + CRLF + CRLF + TAB + "default:" + CRLF + TAB + TAB + CRLF + "}",
       ""},
  };
  return snippets;
}

const char* const kFormFields[11] = {"Text Input box", "Text area",        "Dropdown menu",
                                     "Password box",   "Checkbox",         "Radio button",
                                     "Image",          "Hidden field",     "Submit button",
                                     "Reset button",   "JavaScript button"};

}  // namespace

const std::vector<TagMenuArray>& TagMenuArrays() {
  static const std::vector<TagMenuArray> arrays = {
      {"mnuPhysicalStyles",
       0,
       {"&Bold - <B>", "&Italic - <I>", "Stri&kethrough - <S>", "&Subscript - <SUB>",
        "Su&perscript - <SUP>", "&Typewriter Text - <TT>", "&Underline - <U>"}},
      {"mnuLogicalStyles",
       0,
       {"&Abbreviation - <ABBREV>", "Acron&ym - <ACRONYM>", "Ar&gument - <ARG>", "A&uthor - <AU>",
        "C&itation - <CITE>", "&Code - <CODE>", "C&redit - <CREDIT>", "D&efining Instance - <DFN>",
        "&Deleted Text - <DEL>", "E&mphasis - <EM>", "&Footnote - <FN>", "Inline &Quote - <Q>",
        "&Inserted Text - <INS>", "&Keyboard - <KBD>", "&Person - <PERSON>", "&Sample - <SAMP>",
        "Stron&g Emphasis - <STRONG>", "&Variable - <VAR>"}},
      {"mnuHeadingsSub",
       1,
       {"Heading &1 - <H1>", "Heading &2 - <H2>", "Heading &3 - <H3>", "Heading &4 - <H4>",
        "Heading &5 - <H5>", "Heading &6 - <H6>"}},
      {"mnuParagraphSub",
       1,
       {"A&ddress - <ADDRESS>", "B&yline - <BYLINE>", "&Comment - <!-- -->", "Di&vision - <DIV>",
        "&Listing - <LISTING>", "Li&teral - <LIT>", "&Paragraph - <P>",
        "P&reformatted Text - <PRE>", "Spa&n - <SPAN>"}},
      {"mnuPAlignSub", 0, {"Left", "Center", "Right", "Justify", "", "&Indent"}},
      {"mnuOtherHTMLSub",
       1,
       {"Line &Break - <BR>", "&No Break - <NOBR>", "&Word Break - <WBR>",
        "Non-breaking &space - &&nbsp;"}},
      {"mnuStructureTagsSub",
       0,
       {"&Banner", "B&ase", "Bo&dy", "&Head", "HT&ML", "&IsIndex", "&Link", "&Nextid", "&Title"}},
  };
  return arrays;
}

void RunTagMenu(Application& app, const std::string& array, int index) {
  if (array == "mnuPhysicalStyles")
    PhysicalStyles(app, index);
  else if (array == "mnuLogicalStyles")
    LogicalStyles(app, index);
  else if (array == "mnuHeadingsSub")
    Headings(app, index);
  else if (array == "mnuParagraphSub")
    Paragraph(app, index);
  else if (array == "mnuPAlignSub")
    Align(app, index);
  else if (array == "mnuOtherHTMLSub")
    OtherHTML(app, index);
  else if (array == "mnuStructureTagsSub")
    StructureTags(app, index);
}

void RunInsertCommand(Application& app, const std::string& name) {
  if (name == "mnuTableTable")
    WrapWith(app, "<TABLE>", "</TABLE>");
  else if (name == "mnuTableData")
    WrapWith(app, "<TD>", "</TD>");
  else if (name == "mnuTableHeader")
    WrapWith(app, "<TH>", "</TH>");
  else if (name == "mnuTableRow")
    WrapWith(app, "<TR>", "</TR>");
  else if (name == "mnuListItem")
    Insert(app, "<LI>");
}

std::string mnuHR(Application& app) {
  if (!app.settings.HRPropsBox) {
    Insert(app, "<HR>");
    return "";
  }
  app.wizards.HeadInsert.clear();
  app.wizards.BodyInsert.clear();
  return "HorizontalLine";
}

void mnuHR_Finish(Application& app) {
  WizardState& w = app.wizards;
  if (!w.HeadInsert.empty() || !w.BodyInsert.empty())
    InsertInHeadAndBody(app, w.HeadInsert, w.BodyInsert);
}

void mnuRepeat(Application& app) {
  const TextServiceState ts = app.textServices;
  WrapSelection(app, ts.LastStartTag, ts.LastEndTag, false);
}

std::string tbrFormatClick(Application& app, const std::string& key) {
  std::string dialog;
  if (EqualNoCase(key, "Bold"))
    WrapWith(app, "<B>", "</B>");
  else if (EqualNoCase(key, "Italic"))
    WrapWith(app, "<I>", "</I>");
  else if (EqualNoCase(key, "Underline"))
    WrapWith(app, "<U>", "</U>");
  else if (EqualNoCase(key, "Format"))
    dialog = "FormatChar";
  else if (EqualNoCase(key, "Align Left"))
    Align(app, 0);
  else if (EqualNoCase(key, "Align Center"))
    Align(app, 1);
  else if (EqualNoCase(key, "Align Right"))
    Align(app, 2);
  else if (EqualNoCase(key, "Justify"))
    Align(app, 3);
  else if (EqualNoCase(key, "Indent"))
    WrapWith(app, "<BLOCKQUOTE>", "</BLOCKQUOTE>");
  else if (EqualNoCase(key, "BR"))
    OtherHTML(app, 1);
  else if (EqualNoCase(key, "HR"))
    dialog = mnuHR(app);
  else if (EqualNoCase(key, "Comment"))
    WrapWith(app, "<!--", "-->");
  FocusDocument(app);
  return dialog;
}

void tbrBRMenuClick(Application& app, const std::string& key) {
  std::string side;
  if (EqualNoCase(key, "BRClearLeft"))
    side = "Left";
  else if (EqualNoCase(key, "BRClearRight"))
    side = "Right";
  else if (EqualNoCase(key, "BRClearAll"))
    side = "All";
  else
    return;
  Insert(app, "<BR CLEAR=" + Q + side + Q + ">");
  LineBreakReturn(app);
  FocusDocument(app);
}

void ColorPickerClick(Application& app) {
  EditControl* e = app.ActiveEdit();
  if (!e) return;
  e->SetFocus();
  PickColor(app);
  if (app.wizards.ColorCancelled) return;
  e->ReplaceSel("#" + app.wizards.PickedColorHex);
}

std::vector<ShortcutItem> LoadCustomButtons(const SettingsStore& store) {
  std::vector<ShortcutItem> items = {{"Add custom button", " Add custom button...", "customAdd"}};
  for (int i = 1; i <= 20; ++i) {
    const std::string name =
        store.GetSetting("CustomButtons", "ButtonName" + std::to_string(i), "");
    if (!name.empty()) items.push_back({"CustomButton" + std::to_string(i), name, "button"});
  }
  return items;
}

std::vector<ShortcutGroup> ShortcutBarGroups(const SettingsStore& store) {
  std::vector<ShortcutGroup> groups = {
      {"Help",
       {{"HowToUse", "How to use Tessarine", "help"},
        {"HowToCreate", "How to create a Web page", "help"},
        {"HowToUpload", "How to upload your site", "help"},
        {"HTMLReference", "HTML reference", "help"},
        {"HelpfulWebSites", "Helpful Web sites", "web"}}},
      {"Tables",
       {{"TableWizard", "Table Wizard", "tablewizard"},
        {"TABLE", "Table <TABLE>", "table"},
        {"TR", "Table row <TR>", "table"},
        {"TD", "Table data <TD>", "table"},
        {"TH", "Table header <TH>", "table"}}},
      {"Forms", {{"FormWizard", "Form Wizard", "formwizard"}}},
      {"Scripts",
       {{"Script tags", "Script tags", "script"},
        {"ASP%", "ASP <% %>", "asp"},
        {"ASP%=", "ASP <%= %>", "asp"},
        {"IncludeFile", "Include file", "include"},
        {"JSFunction", "JavaScript function", "js"},
        {"JSIfElse", "JavaScript if...else", "js"},
        {"JSForNext", "JavaScript for loop", "js"},
        {"JSDoWhile", "JavaScript do...while", "js"},
        {"JSswitch", "JavaScript switch", "js"}}},
      {"Custom", LoadCustomButtons(store)},
  };
  for (const char* field : kFormFields) groups[2].items.push_back({field, field, "formfield"});
  return groups;
}

bool ShortcutKeyAvailable(const std::string&) {
  // Every dialog of the bar exists.
  return true;
}

std::string HelpPagePath(const Application& app, int contextId) {
  return HelpFilePath(app.programFolder, HelpTopicOfContext(contextId));
}

void ShowHelpContext(Application& app, int contextId) {
  ShowHelpTopic(app, HelpTopicOfContext(contextId));
}

std::string ShortcutBarClick(Application& app, const std::string& key) {
  static const std::pair<const char*, int> kHelp[] = {
      {"HowToUse", 40}, {"HowToCreate", 10}, {"HowToUpload", 42}, {"HTMLReference", 33}};
  for (const auto& [helpKey, context] : kHelp)
    if (key == helpKey) {
      ShowHelpContext(app, context);
      return "";
    }
  if (key == "HelpfulWebSites") {
    app.shell.OpenInDefaultViewer(app.programFolder + "/helpfulsites.html");
    return "";
  }
  if (key == "Add custom button") return "Preferences:Custom buttons";

  if (!app.ActiveDocument()) return "";
  if (key == "TD" || key == "TR" || key == "TH" || key == "TABLE") {
    WrapWith(app, "<" + key + ">", "</" + key + ">");
    return "";
  }
  if (key == "TableWizard") return "TableWizard";
  for (int i = 0; i < 11; ++i)
    if (key == kFormFields[i]) return "FormElement:" + std::to_string(i);
  if (key == "FormWizard") return "FormWizard";
  if (key == "Script tags") return "ScriptTags";
  if (key == "ASP%") WrapWith(app, "<%", "%>");
  if (key == "ASP%=") WrapWith(app, "<%=", "%>");
  if (key == "IncludeFile") WrapWith(app, "<!--#include file=" + Q, Q + " -->");
  for (const Snippet& s : Snippets())
    if (key == s.key) WrapWith(app, s.start, s.end);
  if (key.rfind("CustomButton", 0) == 0) {
    const std::string n = key.substr(12);
    const std::string start = app.store.GetSetting("CustomButtons", "ButtonStartTag" + n, "");
    const std::string end = app.store.GetSetting("CustomButtons", "ButtonEndTag" + n, "");
    if (end.empty())
      InsertAtCaret(app, start, true);
    else
      WrapSelection(app, start, end, true);
    FocusDocument(app);
  }
  return "";
}

}  // namespace tessarine
