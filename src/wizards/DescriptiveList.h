#pragma once
// The descriptive list dialog: topics and their texts collected one pair at a time, then a
// DL written over the selection.

#include <string>

#include "conventions/WizardCheck.h"

namespace tessarine {

class Application;

struct DescriptiveList {
  std::string topic;
  std::string description;
  std::string items;

  CheckResult AddItem(bool upper);
  // The bold, italic and underline buttons wrap the whole topic; pressed again, they nest.
  void WrapTopic(const std::string& tag);  // "B", "I" or "U"
  std::string Build(bool upper) const;
};

CheckResult DescriptiveList_Add(Application& app, DescriptiveList& form);
void DescriptiveList_Done(Application& app, const DescriptiveList& form);

}  // namespace tessarine
