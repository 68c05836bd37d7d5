#include "wizards/TableWizard.h"

#include <cctype>

#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "core/TextServices.h"
#include "platform/SettingsStore.h"
#include "settings/Settings.h"
#include "wizards/ListItems.h"

namespace tessarine {

const std::array<const char*, 10> kTableSizes = {"10%", "20%", "30%", "40%", "50%",
                                                 "60%", "70%", "80%", "90%", "100%"};
const std::array<const char*, 2> kCaptionLocations = {"Above the table", "Below the table"};

namespace {

const char* const kRowsRange = "Enter a number between 1 and 100 for the number of table rows.";
const char* const kColsRange = "Enter a number between 1 and 100 for the number of table columns.";

std::string Trim(const std::string& s) {
  const std::size_t b = s.find_first_not_of(" \t");
  if (b == std::string::npos) return "";
  return s.substr(b, s.find_last_not_of(" \t") - b + 1);
}

std::string Quoted(const char* head, const std::string& value, const char* prefix = "") {
  return std::string(head) + "\"" + prefix + value + "\"";
}

// A numeric count field's rows or columns: its value plus one in 16 bits, less the heading.
int CountOf(const std::string& text) {
  return ToInt16(Val(text) + 1) - 1;
}

}  // namespace

bool UseBeginnerTableWizard(const SettingsStore& store) {
  const std::string v = store.GetSetting("Miscellaneous", "BeginnerTableWizard", "on");
  return v == "on" || v.empty();
}

bool IsNumeric(const std::string& text) {
  const std::string t = Trim(text);
  std::size_t i = 0;
  if (i < t.size() && (t[i] == '+' || t[i] == '-')) ++i;
  std::size_t digits = 0;
  while (i < t.size() && std::isdigit(static_cast<unsigned char>(t[i]))) ++i, ++digits;
  if (i < t.size() && t[i] == '.') {
    ++i;
    while (i < t.size() && std::isdigit(static_cast<unsigned char>(t[i]))) ++i, ++digits;
  }
  if (digits == 0) return false;
  if (i < t.size() && (t[i] == 'e' || t[i] == 'E')) {
    ++i;
    if (i < t.size() && (t[i] == '+' || t[i] == '-')) ++i;
    std::size_t exponent = 0;
    while (i < t.size() && std::isdigit(static_cast<unsigned char>(t[i]))) ++i, ++exponent;
    if (exponent == 0) return false;
  }
  return i == t.size();
}

// --- Beginner steps ---

std::optional<CountCorrection> BeginnerTableSteps::RowCountChanged(const std::string& text) {
  if (Val(text) > 100) return CountCorrection{kRowsRange, ""};
  return std::nullopt;
}

std::optional<CountCorrection> BeginnerTableSteps::ColumnCountChanged(const std::string& text) {
  if (Val(text) > 100) return CountCorrection{kColsRange, ""};
  return std::nullopt;
}

CheckResult BeginnerTableSteps::LeaveStep1() {
  // Under 1 covers 0 and also the negative and fractional counts that would leave the
  // grid without a row.
  auto bad = [](const std::string& t) {
    return Trim(t).empty() || !IsNumeric(t) || Val(t) < 1 || CountOf(t) < 1;
  };
  if (bad(rowCount)) {
    rowCount.clear();
    return WizardCheck{"Enter a number between 1 and 100 for table rows.", "rowCount"};
  }
  if (bad(columnCount)) {
    columnCount.clear();
    return WizardCheck{"Enter a number between 1 and 100 for table columns.", "columnCount"};
  }
  return std::nullopt;
}

TableSetup BeginnerTableSteps::Finish(bool upper) const {
  TableSetup s;
  TableAttributes& a = s.attributes;
  if (IsNumeric(rowCount)) s.rows = CountOf(rowCount);
  if (IsNumeric(columnCount)) s.cols = CountOf(columnCount);
  if (!tableHeight.empty()) a.height = Quoted(" HEIGHT=", tableHeight);
  if (!tableWidth.empty()) a.width = Quoted(" WIDTH=", tableWidth);
  if (captionLocation == kCaptionLocations[0]) a.captionAlign = Quoted(" ALIGN=", "Top");
  if (captionLocation == kCaptionLocations[1]) a.captionAlign = Quoted(" ALIGN=", "Bottom");
  if (!captionText.empty()) {
    a.caption = upper ? "\r\n<CAPTION" + a.captionAlign + ">" + captionText + "</CAPTION>"
                      : "\r\n<caption" + LCase(a.captionAlign) + ">" + captionText + "</caption>";
  }
  if (!cellSpacing.empty()) a.spacing = Quoted(" CELLSPACING=", cellSpacing);
  if (!cellPadding.empty()) a.padding = Quoted(" CELLPADDING=", cellPadding);
  if (!backgroundColor.empty()) a.bgColor = Quoted(" BGCOLOR=", backgroundColor, "#");
  if (Val(borderSize) != 0) {
    a.border = Quoted(" BORDER=", Trim(borderSize));
    if (!borderColor.empty()) a.borderColor = Quoted(" BORDERCOLOR=", borderColor, "#");
    if (!borderHighlight.empty())
      a.borderLight = Quoted(" BORDERCOLORLIGHT=", borderHighlight, "#");
    if (!borderShadow.empty()) a.borderDark = Quoted(" BORDERCOLORDARK=", borderShadow, "#");
  } else {
    a.border = Quoted(" BORDER=", "0");
  }
  return s;
}

CheckResult BeginnerTableSteps_LeaveStep1(Application& app, BeginnerTableSteps& steps) {
  return ShowRefusal(app, steps.LeaveStep1());
}

// --- Advanced page ---

std::optional<CountCorrection> AdvancedTablePage::RowCountChanged(const std::string& text) {
  if (Val(text) > 100) return CountCorrection{kRowsRange, "100"};
  return std::nullopt;
}

std::optional<CountCorrection> AdvancedTablePage::ColumnCountChanged(const std::string& text) {
  if (Val(text) > 100) return CountCorrection{kColsRange, "100"};
  return std::nullopt;
}

namespace {
// Empty or 0 means 10; a text that is no number leaves no count at all.
int AdvancedCount(const std::string& text) {
  if (Val(text) == 0) return 10;
  if (IsNumeric(text)) return CountOf(text);
  return 0;
}
}  // namespace

int AdvancedTablePage::Rows() const {
  return AdvancedCount(advancedRowCount);
}
int AdvancedTablePage::Cols() const {
  return AdvancedCount(advancedColumnCount);
}

CheckResult AdvancedTablePage::Validate() const {
  if (Val(advancedRowCount) > 50)
    return WizardCheck{"The maximum number of table rows is 50.", "advancedRowCount"};
  if (Val(advancedColumnCount) > 50)
    return WizardCheck{"The maximum number of table columns is 50.", "advancedColumnCount"};
  if (Rows() < 1)
    return WizardCheck{"Enter a number between 1 and 100 for table rows.", "advancedRowCount"};
  if (Cols() < 1)
    return WizardCheck{"Enter a number between 1 and 100 for table columns.",
                       "advancedColumnCount"};
  return std::nullopt;
}

TableSetup AdvancedTablePage::Finish(bool upper) const {
  TableSetup s;
  TableAttributes& a = s.attributes;
  s.rows = Rows();
  s.cols = Cols();
  if (!advancedHeight.empty()) a.height = FormatAttribute(upper, " HEIGHT=", advancedHeight);
  if (!advancedWidth.empty()) a.width = FormatAttribute(upper, " WIDTH=", advancedWidth);
  if (alignTop) a.captionAlign = FormatAttribute(upper, " ALIGN=", "Top");
  if (alignBottom) a.captionAlign = FormatAttribute(upper, " ALIGN=", "Bottom");
  if (!advancedCaption.empty())
    a.caption = "\r\n<CAPTION" + a.captionAlign + ">" + advancedCaption + "</CAPTION>";
  if (!advancedCellSpacing.empty())
    a.spacing = FormatAttribute(upper, " CELLSPACING=", advancedCellSpacing);
  if (!advancedCellPadding.empty())
    a.padding = FormatAttribute(upper, " CELLPADDING=", advancedCellPadding);
  if (!advancedBackgroundColor.empty())
    a.bgColor = FormatAttribute(upper, " BGCOLOR=", advancedBackgroundColor);
  if (borderCheck) {
    a.border = advancedBorderSize.empty() ? " BORDER"
                                          : FormatAttribute(upper, " BORDER=", advancedBorderSize);
  }
  if (!advancedBorderColor.empty())
    a.borderColor = FormatAttribute(upper, " BORDERCOLOR=", "#" + advancedBorderColor);
  if (!advancedBorderColorLight.empty())
    a.borderLight = FormatAttribute(upper, " BORDERCOLORLIGHT=", "#" + advancedBorderColorLight);
  if (!advancedBorderColorDark.empty())
    a.borderDark = FormatAttribute(upper, " BORDERCOLORDARK=", "#" + advancedBorderColorDark);
  return s;
}

CheckResult AdvancedTablePage_Continue(Application& app, const AdvancedTablePage& page) {
  return ShowRefusal(app, page.Validate());
}

}  // namespace tessarine
