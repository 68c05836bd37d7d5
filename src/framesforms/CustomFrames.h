#pragma once
// Custom-made frames: ten preset layouts with fixed percentages, filled with a URL and a
// name for each frame in three steps. Frame markup is upper case whatever the tag case.

#include <array>
#include <string>
#include <vector>

#include "conventions/WizardCheck.h"

namespace tessarine {

// The four frames a layout can use, in the order of the URL and name fields.
enum class FramePlace { Top = 0, Main = 1, Bottom = 2, Side = 3 };

constexpr int kCustomFrameLayoutCount = 10;
extern const char* const kCustomFrameLayoutNames[kCustomFrameLayoutCount];
extern const char* const kFramePlaceUrlLabels[4];
extern const char* const kFramePlaceNameLabels[4];
extern const char* const kFramePlaceDefaultNames[4];
extern const char* const kCustomFrameStepTexts[3];
extern const char* const kCustomFramesSizesNote;

struct CustomFramesInputs {
  int layout = 0;                    // index into kCustomFrameLayoutNames
  std::array<std::string, 4> urls;   // by FramePlace
  std::array<std::string, 4> names;  // by FramePlace
};

// The places a layout shows fields for; the others are hidden.
std::vector<FramePlace> FramesUsedBy(int layout);

// Leaving the URL step: every shown URL is needed. The field is "frameUrl<place>".
CheckResult ValidateCustomFrameUrls(const CustomFramesInputs& in);

// The FRAMESET block of the chosen layout.
std::string BuildCustomFrames(const CustomFramesInputs& in);

// The preview of a layout: where each frame lies, in percent of the whole page.
struct FrameRect {
  FramePlace place;
  double left, top, width, height;
};
std::vector<FrameRect> CustomFramePreview(int layout);

}  // namespace tessarine
