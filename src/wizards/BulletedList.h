#pragma once
// The bulleted list dialog: items collected one at a time, then a UL written over the
// selection.

#include <string>

#include "conventions/WizardCheck.h"

namespace tessarine {

class Application;

struct BulletedList {
  std::string itemText;
  std::string bulletType;  // "Disc", "Circle", "Square", or empty when none is set
  std::string items;

  CheckResult AddItem(bool upper);
  // The whole list, a pending item included; no line end behind the end tag.
  std::string Build(bool upper) const;
};

CheckResult BulletedList_Add(Application& app, BulletedList& form);
void BulletedList_Done(Application& app, const BulletedList& form);

}  // namespace tessarine
