#include "effects/JumpMenu.h"

#include <utility>

#include "core/TextServices.h"

namespace tessarine {

namespace {

const char* const kCrLf = "\r\n";

std::string Trim(const std::string& s) {
  const std::size_t b = s.find_first_not_of(' ');
  if (b == std::string::npos) return "";
  return s.substr(b, s.find_last_not_of(' ') - b + 1);
}

bool Valid(const std::vector<JumpMenuRow>& rows, int index) {
  return index >= 0 && index < static_cast<int>(rows.size());
}

}  // namespace

const char* const kJumpMenuSeparator = "--------------------";

const std::vector<std::string>& JumpMenuTargets() {
  static const std::vector<std::string> targets = {"blank - Open in new window", "parent", "self",
                                                   "top"};
  return targets;
}

CheckResult JumpMenu::CheckEdit(int selected) const {
  if (Valid(rows, selected) && rows[selected].text == kJumpMenuSeparator)
    return WizardCheck{"The separator can't be edited.  It can only be added or removed.",
                       "menuItemList"};
  if (rows.empty())
    return WizardCheck{
        "The list of menu items is empty.  Please add a menu item before editing it.",
        "menuItemList"};
  if (!Valid(rows, selected))
    return WizardCheck{"Select a menu item from the list in order to edit it.", "menuItemList"};
  return std::nullopt;
}

CheckResult JumpMenu::CheckRemove(int selected) const {
  if (rows.empty())
    return WizardCheck{
        "The list of Menu items is empty.  Please add a menu item before removing it.",
        "menuItemList"};
  if (!Valid(rows, selected))
    return WizardCheck{"Select a menu item from the list in order to remove it.", "menuItemList"};
  return std::nullopt;
}

CheckResult JumpMenu::CheckMoveUp(int selected) const {
  if (!Valid(rows, selected) || selected == 0)
    return WizardCheck{
        "Select an item in the Menu item list.  You cannot move the first menu item upward.",
        "menuItemList"};
  return std::nullopt;
}

CheckResult JumpMenu::CheckMoveDown(int selected) const {
  if (!Valid(rows, selected) || selected == static_cast<int>(rows.size()) - 1)
    return WizardCheck{
        "Select an item in the Menu item list.  You cannot move the last menu item downward.",
        "menuItemList"};
  return std::nullopt;
}

void JumpMenu::AddSeparator() {
  rows.push_back({kJumpMenuSeparator, ""});
}

int JumpMenu::MoveUp(int selected) {
  if (CheckMoveUp(selected)) return selected;
  std::swap(rows[selected], rows[selected - 1]);
  return selected - 1;
}

int JumpMenu::MoveDown(int selected) {
  if (CheckMoveDown(selected)) return selected;
  std::swap(rows[selected], rows[selected + 1]);
  return selected + 1;
}

void JumpMenu::Remove(int selected) {
  if (Valid(rows, selected)) rows.erase(rows.begin() + selected);
}

CheckResult JumpMenu::Validate() const {
  if (rows.empty())
    return WizardCheck{"Please enter 1 or more menu items in the list below.", "menuItemList"};
  return std::nullopt;
}

std::string JumpMenu::Script() const {
  const std::string q = "\"";
  const std::string chosen = Trim(target).empty() ? "self" : target;
  std::string s = "<SCRIPT LANGUAGE=" + q + "JavaScript" + q + ">" + kCrLf + "<!--" + kCrLf +
                  kCrLf + "function JumpTo(form)" + kCrLf + "{" + kCrLf +
                  "   i = form.elements[0].selectedIndex;" + kCrLf;
  // An exact comparison: "BLANK" names a frame.
  if (Trim(chosen).substr(0, 5) == "blank")
    s += std::string("    window.open(form.elements[0].options[i].value, 'newWin', '')}") + kCrLf;
  else
    s += "    window.parent.frames['" + chosen +
         "'].location = form.elements[0].options[i].value;" + kCrLf + "}" + kCrLf;
  s += std::string("//-->") + kCrLf + "</SCRIPT>";
  return s;
}

std::string JumpMenu::Form() const {
  const std::string q = "\"";
  const std::string size =
      display == JumpMenuDisplay::AllItems ? " SIZE=" + q + std::to_string(rows.size()) + q : "";
  std::string options;
  for (const JumpMenuRow& row : rows) {
    if (row.text == kJumpMenuSeparator)
      options += "          <OPTION VALUE=" + q + "#" + q + ">" + kJumpMenuSeparator + kCrLf;
    else
      options += "          <OPTION VALUE=" + q + row.url + q + ">" + row.text + kCrLf;
  }
  return "<FORM METHOD=POST ACTION=" + q + "#" + q + " onSubmit=" + q + "return false" + q + ">" +
         kCrLf + "    <SELECT" + size + ">" + kCrLf + options + kCrLf + "    </SELECT>" + kCrLf +
         "  <INPUT TYPE=Submit NAME=" + q + "Submit" + q + " VALUE=" + q + "Go to" + q +
         " onClick=" + q + "JumpTo(this.form)" + q + ">" + kCrLf + "</FORM>";
}

CheckResult JumpMenuItem::Validate() const {
  if (text.empty())
    return WizardCheck{"Enter menu item text in the text input box or click Cancel.", "itemText"};
  if (url.empty())
    return WizardCheck{"Enter a Web page URL in the text input box or click Cancel.", "urlText"};
  return std::nullopt;
}

JumpMenuRow JumpMenuItem::Row() const {
  if (LCase(url.substr(0, 4)) == "www.") return {text, "http://" + url};
  return {text, url};
}

}  // namespace tessarine
