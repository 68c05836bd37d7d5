#pragma once
// The image map wizard: shapes clicked on a picture, each linked to a URL, written as a
// MAP with its AREA lines and the IMG that uses it. The small link dialog asked for at the
// end of each shape is MapAreaLink.

#include <string>
#include <vector>

#include "conventions/WizardCheck.h"

namespace tessarine {

class Application;

enum class MapShape { None, Circle, Rectangle, Polygon };

struct MapPoint {
  int x = 0, y = 0;
  bool operator==(const MapPoint&) const = default;
};

// A shape read back out of an AREA line, for drawing.
struct MapArea {
  MapShape shape = MapShape::None;
  std::vector<int> numbers;  // as written: x,y r / x1,y1 x2,y2 / x,y x,y ...
};

// What the last click asked of the window.
enum class MapClick {
  NeedShape,   // no shape chosen: show kChooseShapeFirst, nothing changed
  Continue,    // a point was taken; the prompt may have changed
  LastVertex,  // the seventh vertex: show kClosePolygonNotice
  AskLink,     // the shape is complete: ask for its link
};

class ImageMap {
 public:
  static constexpr const char* kChooseShapeFirst =
      "Select an area shape before clicking on the image.";
  static constexpr const char* kClosePolygonNotice =
      "Click on the image once more to close the polygon.";
  static constexpr int kMaxPolygonPoints = 8;  // seven corners and the closing one

  std::string imageFile;
  std::string mapName;
  // The finished AREA lines, each with its CR LF, in the order made.
  std::vector<std::string> areas;

  // Next on the first page.
  CheckResult ValidateFirstPage() const;

  void ChooseShape(MapShape shape);
  MapShape shape() const { return shape_; }
  const std::string& prompt() const { return prompt_; }
  int clickStep() const { return clickStep_; }
  // The points of the shape in progress, in pixels; a finished circle holds its centre and
  // the point on its radius.
  const std::vector<MapPoint>& points() const { return points_; }
  int Radius() const;  // of the circle in progress, rounded

  MapClick Click(MapPoint at);

  // The link dialog's OK for the finished shape: checks the URL and adds the AREA line.
  CheckResult AddArea(const std::string& url, const std::string& frame, bool tagCaseUpper);
  // The link dialog's Cancel: the shape is forgotten.
  void ForgetShape();
  // Removes the last AREA line; false when there is none.
  bool Undo();

  // The AREA line for the shape in progress.
  std::string AreaLine(const std::string& url, const std::string& frame, bool tagCaseUpper) const;
  // The whole text Done writes, for a picture of `width` by `height` pixels.
  std::string Build(bool tagCaseUpper, int width, int height) const;

 private:
  void StartAgain();
  MapShape shape_ = MapShape::None;
  int clickStep_ = 1;
  std::vector<MapPoint> points_;
  std::string prompt_ = "<-- Select an area shape in the left column to begin.";
};

// The shape and numbers of a line made by AreaLine, read the way the redraw reads them:
// from the fixed position just behind COORDS=" in either tag case.
MapArea ParseAreaLine(const std::string& line);

// The link dialog's OK: remembers the URL, then lets the map check and add it. A failed
// check is shown and returned.
CheckResult MapAreaLink_OK(Application& app, ImageMap& map, const std::string& url,
                           const std::string& frame);
// Done: the map and the image at the caret.
void ImageMap_Done(Application& app, const ImageMap& map, int width, int height);

}  // namespace tessarine
