#pragma once
// The program-wide variables that LoadSettings fills, one per key, named after it.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace tessarine {

class MessageBoxes;
class SettingsStore;

// Colours are 24-bit numbers with red in the low byte.
struct TagColors {
  std::int32_t tagColor = 3277055;
  std::int32_t tableColor = 2793472;
  std::int32_t quoteColor = 12615680;
  std::int32_t commentColor = 10526880;
  std::int32_t aspColor = 16711935;
};

struct ColorFlags {
  bool ColorTags = true;
  bool TableColorTags = true;
  bool QuoteColorTags = true;
  bool CommentColorTags = true;
  bool CommentTagItalic = false;
  bool ASPColorTags = true;
};

struct SettingsVars {
  // Font
  std::string DocumentFontName = "MS Sans Serif";
  std::int16_t DocumentFontSize = 10;
  bool Bold = false;
  std::string HTMLTagFont = "MS Sans Serif";
  // Directory
  std::string WorkingDirectory;
  std::string ImageDirectory;
  // Apps
  std::string Browser = "c:\\";
  std::string Browser2 = "c:\\";
  std::string ImageMapper = "c:\\";
  std::string FTPClient = "c:\\";
  std::string PrinterProgram = "c:\\";
  // Startup
  std::int16_t NumberOfMRUFiles = 4;
  // Miscellaneous
  bool EnableAutotab = true;
  bool ShowFileList = true;
  bool AlignFileListLeft = false;
  bool BeginnerTableWizard = true;
  bool TagCaseUpper = true;
  bool BlankNewDoc = false;
  bool ShowPageProps = true;
  bool StartNewDoc = true;
  bool OpenMRUDoc = false;
  bool RTFCascaded = false;
  bool HRPropsBox = true;
  bool EndingPtag = true;
  bool useDIVtag = false;
  bool BRcarriageReturn = false;
  bool WordWrap = true;
  std::int16_t AutoSaveMinutes = 0;
  // ColoredTags
  TagColors Colors;
  ColorFlags Flags;
  // Menu
  std::string MenuSystem;
  // Kept as stored: only an exact "off" hides a custom group.
  std::string StructMenu = "off", AnchorMenu = "off", FormsMenu = "off", TablesMenu = "off",
              NetscapeMenu = "off", IEMenu = "off", JavaMenu = "off";
  // Favorite URLs: position 0 is never used.
  std::array<std::string, 21> FavoriteURLs;

  // The stored NumberOfMRUFiles text last reported as no number, so that the loads of one
  // start say it once.
  std::string RejectedNumberOfMRUFiles;
};

// Fills `vars` from the store. `programFolder` is the default of the two folder keys. A
// NumberOfMRUFiles that is no number is reported through `messages` (when given) and the
// default used; the stored text stays as it is.
void LoadSettings(SettingsVars& vars, const SettingsStore& store, const std::string& programFolder,
                  MessageBoxes* messages = nullptr);

// The whole-text conversion to a 16-bit integer: blanks around a decimal number (with
// fraction and exponent) or a &H / &O number, rounded half to even. False for anything
// else, and for a number out of range.
bool StrictInt16(const std::string& text, std::int16_t& value);

// The find box's history, SearchKeyword1 to SearchKeyword5 in that order.
std::array<std::string, 5> ReadSearchKeywords(const SettingsStore& store);
// Writes the first five of `list`, "" for those it lacks.
void SaveSearchKeywords(SettingsStore& store, const std::vector<std::string>& list);

// The tolerant numeric parse: the longest leading number, 0 when there is none.
double Val(const std::string& text);
// Rounds half to even into 16 bits, saturating, as the numeric conversions do.
std::int16_t ToInt16(double value);

}  // namespace tessarine
