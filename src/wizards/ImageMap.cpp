#include "wizards/ImageMap.h"

#include <cmath>
#include <cstdlib>

#include "conventions/FavoriteUrls.h"
#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "core/TextServices.h"
#include "platform/MessageBoxes.h"

namespace tessarine {

namespace {

const std::string Q = "\"";

const char* ShapePrompt(MapShape shape) {
  switch (shape) {
    case MapShape::Circle:
      return "Click the center point of the circle shape.";
    case MapShape::Rectangle:
      return "Click the top left corner of the rectangle shape.";
    case MapShape::Polygon:
      return "Click the first vertex point of the polygon shape.";
    case MapShape::None:
      break;
  }
  return "<-- Select an area shape in the left column to begin.";
}

std::string ShapeName(MapShape shape) {
  switch (shape) {
    case MapShape::Circle:
      return Q + "Circle" + Q;
    case MapShape::Rectangle:
      return Q + "Rect" + Q;
    default:
      return Q + "Poly" + Q;
  }
}

std::string Pair(const MapPoint& p) {
  return std::to_string(p.x) + "," + std::to_string(p.y);
}

}  // namespace

CheckResult ImageMap::ValidateFirstPage() const {
  if (imageFile.empty()) return WizardCheck{"Enter an image filename.", "imageFile"};
  if (mapName.empty()) return WizardCheck{"Enter a name for your image map.", "mapName"};
  return std::nullopt;
}

void ImageMap::StartAgain() {
  clickStep_ = 1;
  points_.clear();
  prompt_ = ShapePrompt(shape_);
}

void ImageMap::ChooseShape(MapShape shape) {
  shape_ = shape;
  StartAgain();
}

int ImageMap::Radius() const {
  if (points_.size() < 2) return 0;
  const double dx = points_[1].x - points_[0].x, dy = points_[1].y - points_[0].y;
  // Rounded half to even, as storing into a whole number always did.
  return static_cast<int>(std::nearbyint(std::sqrt(dx * dx + dy * dy)));
}

MapClick ImageMap::Click(MapPoint at) {
  if (shape_ == MapShape::None) return MapClick::NeedShape;
  if (clickStep_ == 1) {
    points_.assign(1, at);
    clickStep_ = 2;
    prompt_ = shape_ == MapShape::Circle
                  ? "Click a point on the radius of the circle to create the circle."
              : shape_ == MapShape::Rectangle
                  ? "Click the lower right corner of the rectangle shape."
                  : "Click the next vertex point of the polygon shape.";
    return MapClick::Continue;
  }
  if (shape_ != MapShape::Polygon) {
    points_.resize(1);
    points_.push_back(at);
    return MapClick::AskLink;
  }
  const MapPoint first = points_.front();
  if (clickStep_ >= kMaxPolygonPoints) {
    // The last click closes the polygon wherever it falls.
    points_.push_back(first);
    return MapClick::AskLink;
  }
  if (std::abs(at.x - first.x) < 4 && std::abs(at.y - first.y) < 4) {
    points_.push_back(first);
    return MapClick::AskLink;
  }
  points_.push_back(at);
  ++clickStep_;
  if (clickStep_ == kMaxPolygonPoints) {
    prompt_ = "The Wizard will now close the polygon.";
    return MapClick::LastVertex;
  }
  return MapClick::Continue;
}

std::string ImageMap::AreaLine(const std::string& url, const std::string& frame, bool upper) const {
  const std::string href = (upper ? " HREF=" : " href=") + Q + url + Q;
  const std::string target = frame.empty() ? "" : (upper ? " TARGET=" : " target=") + Q + frame + Q;
  std::string coords = " COORDS=" + Q;
  if (shape_ == MapShape::Circle && points_.size() >= 2) {
    coords += Pair(points_[0]) + " " + std::to_string(Radius());
  } else {
    for (std::size_t i = 0; i < points_.size(); ++i) coords += (i ? " " : "") + Pair(points_[i]);
  }
  coords += Q;
  if (upper) return "<AREA SHAPE=" + ShapeName(shape_) + coords + href + target + ">\r\n";
  return "<area shape=" + LCase(ShapeName(shape_) + coords) + href + target + ">\r\n";
}

CheckResult ImageMap::AddArea(const std::string& url, const std::string& frame, bool upper) {
  if (url.empty()) return WizardCheck{"Enter URL to link image area to.", "areaUrl"};
  areas.push_back(AreaLine(url, frame, upper));
  StartAgain();
  return std::nullopt;
}

void ImageMap::ForgetShape() {
  StartAgain();
}

bool ImageMap::Undo() {
  if (areas.empty()) return false;
  areas.pop_back();
  return true;
}

std::string ImageMap::Build(bool upper, int width, int height) const {
  std::string text = (upper ? "<MAP NAME=" : "<map name=") + Q + mapName + Q + ">\r\n";
  for (const std::string& line : areas) text += line;
  text += upper ? "</MAP>\r\n" : "</map>\r\n";
  const std::string w = std::to_string(width), h = std::to_string(height);
  if (upper)
    text += "<IMG SRC=" + Q + imageFile + Q + " WIDTH=" + Q + w + Q + " HEIGHT=" + Q + h + Q +
            " BORDER=" + Q + "0" + Q + " USEMAP=" + Q + "#" + mapName + Q + ">\r\n";
  else
    text += "<img src=" + Q + imageFile + Q + " width=" + Q + w + Q + " height=" + Q + h + Q +
            " border=" + Q + "0" + Q + " usemap=" + Q + "#" + mapName + Q + ">\r\n";
  return text;
}

MapArea ParseAreaLine(const std::string& line) {
  MapArea area;
  const std::string lower = LCase(line);
  // Position 30 (a circle) or 28 (the others), counted from 1: just behind COORDS=".
  std::size_t at = 0;
  if (lower.find("circ") != std::string::npos) {
    area.shape = MapShape::Circle;
    at = 29;
  } else if (lower.find("rect") != std::string::npos) {
    area.shape = MapShape::Rectangle;
    at = 27;
  } else if (lower.find("poly") != std::string::npos) {
    area.shape = MapShape::Polygon;
    at = 27;
  } else {
    return area;
  }
  std::string number;
  for (; at < line.size() && line[at] != '"'; ++at) {
    const char c = line[at];
    if (c == ',' || c == ' ') {
      if (!number.empty()) area.numbers.push_back(std::atoi(number.c_str()));
      number.clear();
    } else if (c >= '0' && c <= '9') {
      if (number.size() < 9) number += c;
    } else {
      break;
    }
  }
  if (!number.empty()) area.numbers.push_back(std::atoi(number.c_str()));
  return area;
}

CheckResult MapAreaLink_OK(Application& app, ImageMap& map, const std::string& url,
                           const std::string& frame) {
  RememberUrl(app, url);
  if (CheckResult failed = map.AddArea(url, frame, TagCaseUpper(app) == 1)) {
    app.messages.Show(failed->message, MsgButtons::OK, MsgIcon::None, app.title);
    return failed;
  }
  return std::nullopt;
}

void ImageMap_Done(Application& app, const ImageMap& map, int width, int height) {
  EmptyUndoBuffer(app);
  InsertAtCaret(app, map.Build(TagCaseUpper(app) == 1, width, height), true);
}

}  // namespace tessarine
