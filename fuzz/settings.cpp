// The settings' number parsers, and LoadSettings and the Preferences fields over a store
// holding any texts.
#include <cmath>
#include <cstdlib>

#include "FuzzInput.h"
#include "platform/SettingsStore.h"
#include "settings/Preferences.h"
#include "settings/Settings.h"

using namespace tessarine;

namespace {
const char* const kKeys[][2] = {
    {"Startup", "NumberOfMRUFiles"},
    {"Font", "DocumentFontSize"},
    {"Font", "Bold"},
    {"Miscellaneous", "AutoSaveMinutes"},
    {"Miscellaneous", "TagCase"},
    {"ColoredTags", "TagColor"},
    {"ColoredTags", "ColorTags"},
    {"Directory", "WorkingDirectory"},
    {"Menu", "MenuSystem"},
    {"Miscellaneous", "WordWrap"},
    {"Font", "FontSize"},
    {"Miscellaneous", "AutoSave"},
    {"ColoredTags", "HTMLTagColor"},
    {"Miscellaneous", "TipOfTheDay"},
    {"Favorite URLs", "URL16"},
};
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::FuzzInput in(data, size);
  const std::string number(in.Field());

  const double value = Val(number);
  FUZZ_CHECK(!std::isnan(value));
  (void)ToInt16(value);
  std::int16_t strict = 0;
  const auto start = number.find_first_not_of(" \t");
  if (StrictInt16(number, strict) && number[start] != '&') {
    // A decimal text taken whole is the number it spells, never a number out of range.
    const double spelt = std::strtod(number.c_str() + start, nullptr);
    FUZZ_CHECK(std::isfinite(spelt) && ToInt16(spelt) == strict);
  }

  MemorySettingsStore store;
  for (const auto& key : kKeys) {
    const std::string_view text = in.Field();
    store.SaveSetting(key[0], key[1], std::string(text));
  }
  SettingsVars vars;
  LoadSettings(vars, store, "/nonexistent");

  // Whatever was stored, the Preferences fields hold nothing OK would refuse.
  const Preferences p = LoadPreferences(vars, store, "/nonexistent");
  FUZZ_CHECK(!p.Validate());
  int whole = 0;
  if (ParseWholeNumber(number, 1, 96, whole)) FUZZ_CHECK(whole >= 1 && whole <= 96);
  return 0;
}
