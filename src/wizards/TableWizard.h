#pragma once
// The table wizard's first stage: the table's own properties, as four beginner steps or
// one advanced page. Its result sizes the grid of the second stage.

#include <array>
#include <optional>
#include <string>

#include "conventions/WizardCheck.h"
#include "wizards/TableGrid.h"

namespace tessarine {

class Application;
class SettingsStore;

// Widths and heights offered: "10%" to "100%".
extern const std::array<const char*, 10> kTableSizes;
extern const std::array<const char*, 2> kCaptionLocations;

// What the first stage hands to the grid: the attributes and the true counts.
struct TableSetup {
  TableAttributes attributes;
  int rows = 0, cols = 0;
};

// A count field corrected on a change: the message to show and the field's new text.
struct CountCorrection {
  std::string message;
  std::string text;
};

// "on" or empty: the beginner steps; read afresh at each opening.
bool UseBeginnerTableWizard(const SettingsStore& store);

// VB's IsNumeric for the plain forms: blanks around a signed decimal, maybe with exponent.
bool IsNumeric(const std::string& text);

struct BeginnerTableSteps {
  // Step 1
  std::string rowCount, columnCount;
  // Step 2
  std::string borderSize = "0";
  std::string captionText;
  std::string captionLocation;  // a kCaptionLocations entry while there is a caption
  // Step 3
  std::string tableWidth, tableHeight, cellSpacing, cellPadding;
  // Step 4
  std::string backgroundColor, borderColor, borderHighlight, borderShadow;

  // On each change of a count: above 100 empties the field.
  static std::optional<CountCorrection> RowCountChanged(const std::string& text);
  static std::optional<CountCorrection> ColumnCountChanged(const std::string& text);
  // Next of step 1: a count that is blank, not a number or under 1 is emptied, and its field
  // takes the focus.
  CheckResult LeaveStep1();
  bool BorderColorsEnabled() const { return !borderSize.empty() && borderSize != "0"; }
  bool CaptionLocationEnabled() const { return !captionText.empty(); }
  // The last Next. The attributes are written in upper case; the caption alone has a lower
  // case form.
  TableSetup Finish(bool upper) const;
};

struct AdvancedTablePage {
  std::string advancedRowCount, advancedColumnCount;
  std::string advancedWidth, advancedHeight;
  bool borderCheck = false;
  std::string advancedBorderSize = "1";
  std::string advancedCellSpacing, advancedCellPadding;
  std::string advancedBackgroundColor, advancedBorderColor, advancedBorderColorLight,
      advancedBorderColorDark;
  std::string advancedCaption;
  bool alignTop = false, alignBottom = false;

  // On each change of a count: above 100 becomes "100".
  static std::optional<CountCorrection> RowCountChanged(const std::string& text);
  static std::optional<CountCorrection> ColumnCountChanged(const std::string& text);
  // Continue: above 50 is refused and keeps its value; a count that comes to no rows or
  // columns at all is refused too.
  CheckResult Validate() const;
  // Empty or 0 means 10.
  int Rows() const;
  int Cols() const;
  TableSetup Finish(bool upper) const;
  bool BorderFieldsEnabled() const { return borderCheck; }
  bool CaptionAlignEnabled() const { return !advancedCaption.empty(); }
};

// Continue of the advanced page, with its message on a failed check.
CheckResult AdvancedTablePage_Continue(Application& app, const AdvancedTablePage& page);
// Next of step 1, with its message.
CheckResult BeginnerTableSteps_LeaveStep1(Application& app, BeginnerTableSteps& steps);

}  // namespace tessarine
