#pragma once
// The dropdown (jump) menu: a FORM with a SELECT whose options carry URLs, a "Go to"
// button, and a script that opens the chosen URL in a new window or in a frame.

#include <string>
#include <vector>

#include "conventions/WizardCheck.h"

namespace tessarine {

struct JumpMenuRow {
  std::string text;  // the separator's text for a separator
  std::string url;   // empty for a separator
};

extern const char* const kJumpMenuSeparator;  // twenty hyphens

enum class JumpMenuDisplay { Dropdown = 0, AllItems = 1 };

struct JumpMenu {
  std::vector<JumpMenuRow> rows;
  JumpMenuDisplay display = JumpMenuDisplay::Dropdown;
  std::string target = "self";

  // Each check answers with the message that refuses the action; `selected` is -1 for none.
  CheckResult CheckEdit(int selected) const;
  CheckResult CheckRemove(int selected) const;
  CheckResult CheckMoveUp(int selected) const;
  CheckResult CheckMoveDown(int selected) const;
  void AddSeparator();
  // Swap with the neighbour; the new selection.
  int MoveUp(int selected);
  int MoveDown(int selected);
  void Remove(int selected);

  CheckResult Validate() const;
  std::string Script() const;  // HeadInsert
  std::string Form() const;    // BodyInsert
};

const std::vector<std::string>& JumpMenuTargets();

// The dialog for one row.
struct JumpMenuItem {
  std::string text;
  std::string url;

  CheckResult Validate() const;
  // The row as stored: a URL that begins "www." in any case gets "http://" in front.
  JumpMenuRow Row() const;
};

}  // namespace tessarine
