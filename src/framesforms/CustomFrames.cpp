#include "framesforms/CustomFrames.h"

#include <algorithm>

namespace tessarine {

const char* const kCustomFrameLayoutNames[kCustomFrameLayoutCount] = {
    "Top frame only",
    "Bottom frame only",
    "Top and bottom frame",
    "Side frame only",
    "Top frame with Side frame",
    "Full Top frame with Side frame",
    "Bottom frame with Side frame",
    "Full Bottom frame with Side frame",
    "Top and Bottom frames w/ Side frame",
    "Full Top and Bottom frames w/ Side frame"};
const char* const kFramePlaceUrlLabels[4] = {
    "Top Frame URL:", "Main Frame URL:", "Bottom Frame URL:", "Side Frame URL:"};
const char* const kFramePlaceNameLabels[4] = {
    "Top Frame name:", "Main Frame name:", "Bottom Frame name:", "Side Frame name:"};
const char* const kFramePlaceDefaultNames[4] = {"top", "main", "bottom", "side"};
const char* const kCustomFrameStepTexts[3] = {
    "Select a Frame configuration from the list below and then click the 'Next' button.",
    "Enter the appropriate URLs (Web page addresses) for each specific frame in the layout.  "
    "Then press the 'Next' button.",
    "Enter names for each frame in the layout.  The names are used to later reference the "
    "frames in your Web pages.  Note that the names are case-sensitive.  Default names will be "
    "used if you do not specify them."};
const char* const kCustomFramesSizesNote =
    "Default frame sizes have been used.  They can be edited in the HTML code by changing the "
    "existing percentages or by specifying dimensions in pixels.";

namespace {

using P = FramePlace;

// A frameset: its direction, its sizes, and its lines; a line is a frame or, once per
// layout at most, the nested frameset.
struct Frameset {
  bool rows;
  const char* sizes;
  std::vector<P> frames;  // the direct frames, with kNested standing for the inner set
};
constexpr P kNested = static_cast<P>(-1);

struct Layout {
  Frameset outer;
  Frameset inner;  // empty frames when there is none
};

const Layout& LayoutOf(int index) {
  static const Layout kLayouts[kCustomFrameLayoutCount] = {
      {{true, "20%,*", {P::Top, P::Main}}, {}},
      {{true, "80%,*", {P::Main, P::Bottom}}, {}},
      {{true, "20%,60%,*", {P::Top, P::Main, P::Bottom}}, {}},
      {{false, "20%,*", {P::Side, P::Main}}, {}},
      {{false, "20%,*", {P::Side, kNested}}, {true, "20%,*", {P::Top, P::Main}}},
      {{true, "20%,*", {P::Top, kNested}}, {false, "20%,*", {P::Side, P::Main}}},
      {{false, "20%,*", {P::Side, kNested}}, {true, "80%,*", {P::Main, P::Bottom}}},
      {{true, "80%,*", {kNested, P::Bottom}}, {false, "20%,*", {P::Side, P::Main}}},
      {{false, "20%,*", {P::Side, kNested}}, {true, "20%,60%,*", {P::Top, P::Main, P::Bottom}}},
      {{true, "20%,60%,*", {P::Top, kNested, P::Bottom}}, {false, "20%,*", {P::Side, P::Main}}},
  };
  return kLayouts[index < 0 || index >= kCustomFrameLayoutCount ? 0 : index];
}

const char* const kCrLf = "\r\n";
const std::string kIndent(8, ' ');

std::string Tag(const Frameset& set) {
  return std::string("<FRAMESET ") + (set.rows ? "ROWS" : "COLS") + "=\"" + set.sizes + "\">";
}

std::string TrimBlanks(const std::string& s) {
  const std::size_t b = s.find_first_not_of(' ');
  if (b == std::string::npos) return "";
  return s.substr(b, s.find_last_not_of(' ') - b + 1);
}

std::string FrameLine(const CustomFramesInputs& in, P place) {
  const auto i = static_cast<std::size_t>(place);
  // The default is chosen on the untrimmed name, so blanks alone give an empty name.
  const std::string name =
      in.names[i].empty() ? kFramePlaceDefaultNames[i] : TrimBlanks(in.names[i]);
  return "<FRAME SRC=\"" + in.urls[i] + "\" NAME=\"" + name + "\">";
}

// The sizes of a list such as "20%,60%,*" as fractions; the star takes the rest.
std::vector<double> Fractions(const char* sizes, std::size_t count) {
  std::vector<double> out;
  double used = 0;
  const std::string s = sizes;
  std::size_t start = 0;
  while (out.size() + 1 < count) {
    const std::size_t comma = s.find(',', start);
    const double f = std::stod(s.substr(start, comma - start)) / 100.0;
    out.push_back(f);
    used += f;
    start = comma + 1;
  }
  out.push_back(1.0 - used);
  return out;
}

void Place(const Layout& layout, const Frameset& set, double left, double top, double width,
           double height, std::vector<FrameRect>& out) {
  const std::vector<double> parts = Fractions(set.sizes, set.frames.size());
  double offset = 0;
  for (std::size_t i = 0; i < set.frames.size(); ++i) {
    const double l = set.rows ? left : left + offset * width;
    const double t = set.rows ? top + offset * height : top;
    const double w = set.rows ? width : parts[i] * width;
    const double h = set.rows ? parts[i] * height : height;
    if (set.frames[i] == kNested)
      Place(layout, layout.inner, l, t, w, h, out);
    else
      out.push_back({set.frames[i], l, t, w, h});
    offset += parts[i];
  }
}

}  // namespace

std::vector<FramePlace> FramesUsedBy(int layout) {
  const Layout& l = LayoutOf(layout);
  std::vector<FramePlace> used;
  for (P p : l.outer.frames) {
    if (p != kNested) used.push_back(p);
  }
  for (P p : l.inner.frames) used.push_back(p);
  return used;
}

CheckResult ValidateCustomFrameUrls(const CustomFramesInputs& in) {
  for (FramePlace p : {P::Top, P::Main, P::Bottom, P::Side}) {
    const auto used = FramesUsedBy(in.layout);
    const bool shown = std::find(used.begin(), used.end(), p) != used.end();
    if (shown && in.urls[static_cast<std::size_t>(p)].empty())
      return WizardCheck{"Please enter a URL for each frame.",
                         "frameUrl" + std::to_string(static_cast<int>(p))};
  }
  return std::nullopt;
}

std::string BuildCustomFrames(const CustomFramesInputs& in) {
  const Layout& layout = LayoutOf(in.layout);
  std::string text = Tag(layout.outer) + kCrLf;
  for (P p : layout.outer.frames) {
    if (p != kNested) {
      text += kIndent + FrameLine(in, p) + kCrLf;
      continue;
    }
    text += kIndent + Tag(layout.inner) + kCrLf;
    for (P q : layout.inner.frames) text += kIndent + kIndent + FrameLine(in, q) + kCrLf;
    text += kIndent + "</FRAMESET>" + kCrLf;
  }
  text += kCrLf;
  text += std::string("<NOFRAMES>") + kCrLf + "<BODY>" + kCrLf + kIndent +
          "Enter HTML code and text here to be read by browsers that can't display frames" + kCrLf +
          "</BODY>" + kCrLf + "</NOFRAMES>";
  return text + kCrLf + "</FRAMESET>";
}

std::vector<FrameRect> CustomFramePreview(int layout) {
  std::vector<FrameRect> rects;
  const Layout& l = LayoutOf(layout);
  Place(l, l.outer, 0, 0, 100, 100, rects);
  return rects;
}

}  // namespace tessarine
