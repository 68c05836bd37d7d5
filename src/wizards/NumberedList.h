#pragma once
// The numbered list dialog: items collected one at a time, then an OL written over the
// selection.

#include <array>
#include <string>

#include "conventions/WizardCheck.h"

namespace tessarine {

class Application;

struct NumberType {
  const char* row;
  const char* value;
};
extern const std::array<NumberType, 5> kNumberTypes;

struct NumberedList {
  std::string itemText;
  std::string numberType = kNumberTypes[0].row;
  std::string startNumber = "1";
  std::string items;  // the finished item lines

  // The add button: refuses an empty item, else appends it and clears the field.
  CheckResult AddItem(bool upper);
  // Done's check: the start must be 1 or more.
  CheckResult Validate() const;
  // The whole list, a pending item included.
  std::string Build(bool upper) const;
};

// Done: on a failed check shows the message and returns it; otherwise writes the list.
CheckResult NumberedList_Done(Application& app, const NumberedList& form);
// The add button with its message.
CheckResult NumberedList_Add(Application& app, NumberedList& form);

}  // namespace tessarine
