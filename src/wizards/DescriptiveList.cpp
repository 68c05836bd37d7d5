#include "wizards/DescriptiveList.h"

#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "wizards/ListItems.h"

namespace tessarine {

CheckResult DescriptiveList::AddItem(bool upper) {
  if (topic.empty()) return WizardCheck{"Please enter text for a Descriptive list Topic.", "topic"};
  if (description.empty())
    return WizardCheck{"Please enter text for the Descriptive list Text.", "description"};
  items += DescriptiveItemLines(upper, topic, description);
  topic.clear();
  description.clear();
  return std::nullopt;
}

void DescriptiveList::WrapTopic(const std::string& tag) {
  topic = "<" + tag + ">" + topic + "</" + tag + ">";
}

std::string DescriptiveList::Build(bool upper) const {
  std::string all = items;
  if (!topic.empty() && !description.empty())
    all += DescriptiveItemLines(upper, topic, description);
  return std::string("\r\n") + (upper ? "<DL>" : "<dl>") + "\r\n" + all +
         (upper ? "</DL>" : "</dl>") + "\r\n";
}

CheckResult DescriptiveList_Add(Application& app, DescriptiveList& form) {
  return ShowRefusal(app, form.AddItem(TagCaseUpper(app) == 1));
}

void DescriptiveList_Done(Application& app, const DescriptiveList& form) {
  WriteList(app, form.Build(TagCaseUpper(app) == 1));
}

}  // namespace tessarine
