#include "wizards/BulletedList.h"

#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "core/TextServices.h"
#include "wizards/ListItems.h"

namespace tessarine {

CheckResult BulletedList::AddItem(bool upper) {
  if (itemText.empty())
    return WizardCheck{"Please enter text for a Bulleted List item.", "itemText"};
  items += ListItemLine(upper, itemText);
  itemText.clear();
  return std::nullopt;
}

std::string BulletedList::Build(bool upper) const {
  std::string type;
  if (bulletType == "Disc" || bulletType == "Circle" || bulletType == "Square")
    type = " TYPE=\"" + UCase(bulletType) + "\"";
  std::string all = items;
  if (!itemText.empty()) all += ListItemLine(upper, itemText);
  if (upper) return "\r\n<UL" + type + ">\r\n" + all + "</UL>";
  return "\r\n<ul" + LCase(type) + ">\r\n" + all + "</ul>";
}

CheckResult BulletedList_Add(Application& app, BulletedList& form) {
  return ShowRefusal(app, form.AddItem(TagCaseUpper(app) == 1));
}

void BulletedList_Done(Application& app, const BulletedList& form) {
  WriteList(app, form.Build(TagCaseUpper(app) == 1));
}

}  // namespace tessarine
