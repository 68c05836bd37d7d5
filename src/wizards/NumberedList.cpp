#include "wizards/NumberedList.h"

#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "core/TextServices.h"
#include "settings/Settings.h"
#include "wizards/ListItems.h"

namespace tessarine {

const std::array<NumberType, 5> kNumberTypes = {{{"Numbers (default)", "1"},
                                                 {"Uppercase letters (A)", "A"},
                                                 {"Lowercase letters (a)", "a"},
                                                 {"Large Roman numerals (I)", "I"},
                                                 {"Small Roman numerals (i)", "i"}}};

CheckResult NumberedList::AddItem(bool upper) {
  if (itemText.empty())
    return WizardCheck{"Please enter text for a Numbered List item.", "itemText"};
  items += ListItemLine(upper, itemText);
  itemText.clear();
  return std::nullopt;
}

CheckResult NumberedList::Validate() const {
  if (Val(startNumber) < 1)
    return WizardCheck{"The Start value must be equal to or greater than 1.", "startNumber"};
  return std::nullopt;
}

std::string NumberedList::Build(bool upper) const {
  std::string type;
  for (const NumberType& t : kNumberTypes)
    if (numberType == t.row) type = FormatAttribute(upper, " type=", t.value);
  std::string start;
  if (startNumber != "1") start = FormatAttribute(upper, " START=", startNumber);
  std::string all = items;
  if (!itemText.empty()) all += ListItemLine(upper, itemText);
  if (upper) return "\r\n<OL" + type + start + ">\r\n" + all + "</OL>\r\n";
  return "\r\n<ol" + type + LCase(start) + ">\r\n" + all + "</ol>\r\n";
}

CheckResult NumberedList_Add(Application& app, NumberedList& form) {
  return ShowRefusal(app, form.AddItem(TagCaseUpper(app) == 1));
}

CheckResult NumberedList_Done(Application& app, const NumberedList& form) {
  if (CheckResult failed = form.Validate()) return ShowRefusal(app, failed);
  WriteList(app, form.Build(TagCaseUpper(app) == 1));
  return std::nullopt;
}

}  // namespace tessarine
