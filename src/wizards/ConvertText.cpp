#include "wizards/ConvertText.h"

#include "core/Application.h"
#include "platform/EditControl.h"
#include "wizards/ListItems.h"

namespace tessarine {

CheckResult ConvertText::Validate() const {
  if (option == ConvertTo::Nothing) return WizardCheck{"Select an Option.", "spaceDelimited"};
  return std::nullopt;
}

namespace {
bool LineEndAt(std::string_view text, std::size_t i) {
  return text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
}
}  // namespace

std::string ConvertToList(std::string_view text) {
  std::string out = "<UL>";
  out.reserve(text.size() + text.size() / 4 + 32);
  std::size_t itemStart = 0;
  bool pending = true;  // an item is open (the empty text has one too)
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (LineEndAt(text, i)) {
      out.append("\r\n<LI>").append(text.substr(itemStart, i - itemStart));
      ++i;
      itemStart = i + 1;
      pending = false;
    } else {
      pending = true;
    }
  }
  if (pending) out.append("\r\n<LI>").append(text.substr(itemStart));
  out += "\r\n</UL>";
  return out;
}

std::string ConvertToTable(std::string_view text, std::string_view delimiter) {
  std::string out = "\r\n<TABLE>";
  out.reserve(text.size() * 2 + 32);
  std::string row;
  std::size_t cellStart = 0;
  auto endCell = [&](std::size_t end) {
    row.append("\r\n\t\t<TD>").append(text.substr(cellStart, end - cellStart)).append("</TD>");
  };
  auto endLine = [&] {
    out.append("\t<TR>").append(row).append("</TR>\r\n");
    row.clear();
  };
  const bool oneChar = delimiter.size() == 1;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (LineEndAt(text, i)) {
      endCell(i);
      endLine();
      ++i;
      cellStart = i + 1;
    } else if (i + 1 == text.size()) {
      // The last character belongs to the last cell, even a delimiter.
      endCell(i + 1);
      endLine();
    } else if (oneChar && text[i] == delimiter[0]) {
      endCell(i);
      cellStart = i + 1;
    }
  }
  out += "</TABLE>";
  return out;
}

std::string ConvertText::Build(std::string_view selection) const {
  switch (option) {
    case ConvertTo::List:
      return ConvertToList(selection);
    case ConvertTo::SpaceDelimited:
      return ConvertToTable(selection, " ");
    case ConvertTo::TabDelimited:
      return ConvertToTable(selection, "\t");
    case ConvertTo::CommaDelimited:
      return ConvertToTable(selection, ",");
    case ConvertTo::UserDelimited:
      return ConvertToTable(selection, userDelimiter);
    case ConvertTo::Nothing:
      break;
  }
  return std::string(selection);
}

CheckResult ConvertText_OK(Application& app, const ConvertText& form) {
  if (CheckResult failed = form.Validate()) return ShowRefusal(app, failed);
  EditControl* e = app.ActiveEdit();
  if (!e) return std::nullopt;
  // The pieces go in one after the other, each behind the last: one replacement writes the
  // same bytes, and a selection of many megabytes stays one edit.
  const std::string text = form.Build(e->SelText());
  e->ReplaceSel(text);
  return std::nullopt;
}

}  // namespace tessarine
