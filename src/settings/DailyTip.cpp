#include "settings/DailyTip.h"

#include <cctype>

#include "platform/SettingsStore.h"
#include "settings/Settings.h"

namespace tessarine {

namespace {

const char* const kSection = "Miscellaneous";

std::string Lower(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

int Count() {
  return static_cast<int>(DailyTips().size());
}

int After(int number) {
  return number >= Count() ? 1 : number + 1;
}

}  // namespace

const std::vector<std::string>& DailyTips() {
  static const std::vector<std::string> tips = {
      "Press F2 to refresh the tag colors of the whole document after a large change.",
      "Ctrl+B, Ctrl+I and Ctrl+U wrap the selected text in bold, italic and underline tags. "
      "With nothing selected, the caret lands between the two tags.",
      "Ctrl+K inserts a line break <BR>, and Ctrl+H a horizontal line. The line's "
      "properties box comes first unless you turn it off in Preferences.",
      "Ctrl+Space inserts a non-breaking space, &nbsp;, at the caret.",
      "Writing ASP? Ctrl with the comma key wraps the selection in <% and %>, and Ctrl+< "
      "(Ctrl+Shift+comma) in <%= and %>.",
      "Select several whole lines and press Tab to indent them all by one tab. Shift+Tab "
      "takes one tab away again.",
      "With Autotab on in Preferences, Enter starts the new line as far in as the line "
      "before it.",
      "Edit, Repeat Last Command wraps the selection in the tags you used last: handy for "
      "marking up many words the same way.",
      "Type a word in the find box on the File toolbar and press Enter to find it in the "
      "document. The box keeps your last five searches.",
      "After a search, F3 finds the next place the text occurs.",
      "Right-click anywhere in a document for the Edit menu at the pointer.",
      "Double-click the clock on the status bar to insert the current date and time at the "
      "caret.",
      "Drop a page, an image or a style sheet from your file manager onto a document: a "
      "page becomes a link, a GIF or JPEG image an IMG tag with its width and height, and a "
      "style sheet a LINK tag, all with paths relative to your document.",
      "The status bar shows the length of the document in bytes and the line the caret is "
      "on.",
      "The arrow beside the New button starts an HTML, ASP, CSS, XML or XSL document.",
      "File, New... starts a page from one of your templates: any .tzt file in "
      "Tessarine's application folder is offered.",
      "File, Import opens a file written on a Mac or UNIX machine, and File, Save As UNIX "
      "format writes one for a UNIX server.",
      "Put the caret inside a tag and choose Edit, Edit Tag... to change its attributes in "
      "a dialog instead of by hand.",
      "Tools, Validate HTML checks your page with HTML Tidy and lists what it finds below "
      "the documents.",
      "Tools, Spelling walks through the words of your page: correct or skip each one in "
      "the dialog.",
      "Tools, Verify Links checks the links, anchors and images of the current page on "
      "your disk and lists the broken ones.",
      "Tools, Site Manager walks a whole site on your disk from its start page and reports "
      "broken links, missing images and pages without a title.",
      "Edit, Global Find and Replace finds or replaces a text in many files at once, "
      "without opening them, and keeps a report of each run.",
      "Tools, Strip HTML writes the text of your page without its markup into a new file.",
      "Tools, Web Page Statistics reads a visitor log from your web server and counts the "
      "hits by day, hour, browser and domain.",
      "View, Documents as Tabs shows your open documents as tabs instead of windows.",
      "Ctrl+Tab moves to the previous document and Shift+Ctrl+Tab to the next; the Window "
      "menu lists all open documents.",
      "View page with Browser 1 and Browser 2 show your page in two different browsers. "
      "Choose the browsers in Preferences.",
      "Insert, Special Effects... adds a digital clock, a personal greeting, a drop-down "
      "menu, a marquee or an inline frame to your page.",
      "Insert, Style Sheets adds a style to your document, applies one to the selection, or "
      "opens the Style Manager for a whole style sheet.",
      "The Shortcuts tab of the side panel holds groups of tags: click one to insert it. "
      "Make your own buttons in Preferences.",
      "Set an AutoSave interval in Preferences and Tessarine keeps backup copies of your "
      "open documents while you work.",
      "The Frames button on the Insert toolbar starts a new frameset page and opens the "
      "Frame Wizard on it.",
      "Insert, Image Map... lets you click shapes on a picture and link each one to a "
      "URL; it writes the MAP and the IMG tag for you.",
      "Keep each site as a project: opening it from File, Projects points the file list "
      "and the file dialogs at its page and image folders.",
      "Fewer menu entries while you learn: choose Minimal or Typical menus in Preferences. "
      "Documents opened afterwards show the smaller menus.",
  };
  return tips;
}

int TipNumberFromSetting(const std::string& stored) {
  const double n = Val(stored);
  return n >= 1 && n <= Count() ? static_cast<int>(n) : 1;
}

bool TipOfTheDayAtStartup(const SettingsStore& store) {
  return Lower(store.GetSetting(kSection, "TipOfTheDay", "on")) == "on";
}

DailyTip::DailyTip(SettingsStore& store) : store_(store) {
  Show(TipNumberFromSetting(store_.GetSetting(kSection, "DailyTipNumber", "1")));
}

const std::string& DailyTip::Text() const {
  return DailyTips()[static_cast<std::size_t>(number_ - 1)];
}

void DailyTip::Next() {
  Show(After(number_));
}

void DailyTip::Show(int number) {
  number_ = number;
  store_.SaveSetting(kSection, "DailyTipNumber", std::to_string(After(number_)));
}

bool DailyTip::ShowAtStartup() const {
  return TipOfTheDayAtStartup(store_);
}

void DailyTip::SetShowAtStartup(bool on) {
  store_.SaveSetting(kSection, "TipOfTheDay", on ? "on" : "off");
}

}  // namespace tessarine
