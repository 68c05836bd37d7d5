#pragma once
// Converting the selection to a list or a table at one stroke. Its tags are always upper
// case, whatever the tag case.

#include <string>
#include <string_view>

#include "conventions/WizardCheck.h"

namespace tessarine {

class Application;

enum class ConvertTo { Nothing, SpaceDelimited, TabDelimited, CommaDelimited, UserDelimited, List };

struct ConvertText {
  ConvertTo option = ConvertTo::Nothing;
  std::string userDelimiter;

  CheckResult Validate() const;
  // The text that replaces `selection`.
  std::string Build(std::string_view selection) const;
};

// Each line a LI; a text ending in a line end gets no empty item behind it.
std::string ConvertToList(std::string_view text);
// Each line a row, cells split where a character equals `delimiter` (so a delimiter of
// more than one character never splits).
std::string ConvertToTable(std::string_view text, std::string_view delimiter);

// OK: on a failed check shows the message and returns it; otherwise replaces the selection.
CheckResult ConvertText_OK(Application& app, const ConvertText& form);

}  // namespace tessarine
