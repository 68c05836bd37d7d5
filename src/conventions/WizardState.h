#pragma once
// What the tag wizards share for the whole program: the colour forms, the texts a wizard
// leaves for the head and body, the meta tags, and the edit-tag flag.

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace tessarine {

struct WizardState {
  // Row 0 the colour names, row 1 their values; empty until LoadColorTable.
  std::array<std::array<std::string, 16>, 2> ColorTable;
  // PickColor's results.
  std::optional<std::int32_t> PickedColor;
  std::string PickedColorHex;
  bool ColorCancelled = false;
  // HexToRgb's results.
  std::string ColorRed, ColorGreen, ColorBlue;
  std::string HeadInsert, BodyInsert;
  std::string MetaDescription, MetaKeywords, MetaEffects;
  // 1 while a tag dialog works on the text: tag colouring stays away.
  std::int16_t TagEditActive = 0;
};

}  // namespace tessarine
