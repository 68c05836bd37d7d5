// The image map wizard: clicks become shapes, shapes become AREA lines, and Done writes the
// map with its image.

#include <gtest/gtest.h>

#include "core/TestApp.h"
#include "wizards/ImageMap.h"

namespace tessarine {
namespace {

using testing::TestApp;

TEST(ImageMap, FirstPageChecks) {
  ImageMap m;
  EXPECT_EQ(m.ValidateFirstPage()->message, "Enter an image filename.");
  m.imageFile = "a.gif";
  EXPECT_EQ(m.ValidateFirstPage()->message, "Enter a name for your image map.");
  EXPECT_EQ(m.ValidateFirstPage()->field, "mapName");
  m.mapName = "nav";
  EXPECT_FALSE(m.ValidateFirstPage());
}

TEST(ImageMap, ClickBeforeAShapeChangesNothing) {
  ImageMap m;
  const std::string prompt = m.prompt();
  EXPECT_EQ(m.Click({5, 5}), MapClick::NeedShape);
  EXPECT_EQ(m.prompt(), prompt);
  EXPECT_TRUE(m.points().empty());
  EXPECT_EQ(prompt, "<-- Select an area shape in the left column to begin.");
}

TEST(ImageMap, CircleAndRectangleLinesInBothCases) {
  ImageMap m;
  m.ChooseShape(MapShape::Circle);
  EXPECT_EQ(m.prompt(), "Click the center point of the circle shape.");
  EXPECT_EQ(m.Click({40, 40}), MapClick::Continue);
  EXPECT_EQ(m.prompt(), "Click a point on the radius of the circle to create the circle.");
  EXPECT_EQ(m.Click({55, 60}), MapClick::AskLink);
  EXPECT_EQ(m.AreaLine("a.htm", "", true),
            "<AREA SHAPE=\"Circle\" COORDS=\"40,40 25\" HREF=\"a.htm\">\r\n");
  EXPECT_EQ(m.AreaLine("A.htm", "Main", false),
            "<area shape=\"circle\" coords=\"40,40 25\" href=\"A.htm\" target=\"Main\">\r\n");
  // The radius is rounded to whole pixels: 1.41 down, 3.61 up.
  ImageMap r;
  r.ChooseShape(MapShape::Circle);
  r.Click({0, 0});
  r.Click({1, 1});
  EXPECT_EQ(r.Radius(), 1);
  r.ChooseShape(MapShape::Circle);
  r.Click({0, 0});
  r.Click({2, 3});
  EXPECT_EQ(r.Radius(), 4);

  m.ChooseShape(MapShape::Rectangle);
  EXPECT_EQ(m.prompt(), "Click the top left corner of the rectangle shape.");
  m.Click({1, 2});
  EXPECT_EQ(m.prompt(), "Click the lower right corner of the rectangle shape.");
  EXPECT_EQ(m.Click({30, 40}), MapClick::AskLink);
  EXPECT_FALSE(m.AddArea("b.htm", "", true));
  EXPECT_EQ(m.areas.back(), "<AREA SHAPE=\"Rect\" COORDS=\"1,2 30,40\" HREF=\"b.htm\">\r\n");
  // After the link the same shape starts again.
  EXPECT_EQ(m.clickStep(), 1);
  EXPECT_EQ(m.prompt(), "Click the top left corner of the rectangle shape.");
  EXPECT_EQ(m.AddArea("", "", true)->message, "Enter URL to link image area to.");
}

TEST(ImageMap, PolygonClosesNearTheFirstVertexOrAtTheEighthClick) {
  ImageMap m;
  m.ChooseShape(MapShape::Polygon);
  m.Click({10, 10});
  EXPECT_EQ(m.prompt(), "Click the next vertex point of the polygon shape.");
  EXPECT_EQ(m.Click({50, 10}), MapClick::Continue);
  EXPECT_EQ(m.Click({14, 12}), MapClick::Continue);  // 4 pixels off in x: a vertex
  EXPECT_EQ(m.Click({13, 7}), MapClick::AskLink);    // 3 off in both: closes
  EXPECT_EQ(m.AreaLine("p.htm", "", true),
            "<AREA SHAPE=\"Poly\" COORDS=\"10,10 50,10 14,12 10,10\" HREF=\"p.htm\">\r\n");

  m.ChooseShape(MapShape::Polygon);
  MapClick last = MapClick::Continue;
  for (int i = 0; i < 7; ++i) last = m.Click({100 + 10 * i, 100 + (i % 2) * 30});
  EXPECT_EQ(last, MapClick::LastVertex);
  EXPECT_EQ(m.prompt(), "The Wizard will now close the polygon.");
  // Right on the first vertex or far from it, the eighth click closes with the first.
  EXPECT_EQ(m.Click({500, 500}), MapClick::AskLink);
  ASSERT_EQ(m.points().size(), 8u);
  EXPECT_EQ(m.points().back(), (MapPoint{100, 100}));
  EXPECT_EQ(m.AreaLine("q", "", false),
            "<area shape=\"poly\" coords=\"100,100 110,130 120,100 130,130 140,100 150,130 "
            "160,100 100,100\" href=\"q\">\r\n");

  m.ForgetShape();
  EXPECT_TRUE(m.points().empty());
  EXPECT_EQ(m.prompt(), "Click the first vertex point of the polygon shape.");
}

TEST(ImageMap, UndoRedrawReadsBackEveryLineInBothCases) {
  for (bool upper : {true, false}) {
    ImageMap m;
    m.ChooseShape(MapShape::Circle);
    m.Click({40, 40});
    m.Click({40, 65});
    m.AddArea("c", "", upper);
    m.ChooseShape(MapShape::Rectangle);
    m.Click({1, 2});
    m.Click({300, 400});
    m.AddArea("r", "f", upper);
    m.ChooseShape(MapShape::Polygon);
    m.Click({5, 6});
    m.Click({70, 8});
    m.Click({9, 90});
    m.Click({6, 6});
    m.AddArea("p", "", upper);

    const MapArea circle = ParseAreaLine(m.areas[0]);
    EXPECT_EQ(circle.shape, MapShape::Circle);
    EXPECT_EQ(circle.numbers, (std::vector<int>{40, 40, 25}));
    const MapArea rect = ParseAreaLine(m.areas[1]);
    EXPECT_EQ(rect.shape, MapShape::Rectangle);
    EXPECT_EQ(rect.numbers, (std::vector<int>{1, 2, 300, 400}));
    const MapArea poly = ParseAreaLine(m.areas[2]);
    EXPECT_EQ(poly.shape, MapShape::Polygon);
    EXPECT_EQ(poly.numbers, (std::vector<int>{5, 6, 70, 8, 9, 90, 5, 6}));

    EXPECT_TRUE(m.Undo());
    EXPECT_EQ(m.areas.size(), 2u);
  }
  ImageMap empty;
  EXPECT_FALSE(empty.Undo());
}

TEST(ImageMap, DoneWritesTheMapAndTheImage) {
  TestApp t;
  t.app.settings.TagCaseUpper = true;
  BufferEdit& edit = t.NewWindow("[]").Buffer();
  edit.SetSelStart(1);
  ImageMap m;
  m.imageFile = "img/nav.gif";
  m.mapName = "Nav";
  ImageMap_Done(t.app, m, 120, 80);
  EXPECT_EQ(edit.Text(),
            "[<MAP NAME=\"Nav\">\r\n</MAP>\r\n<IMG SRC=\"img/nav.gif\" WIDTH=\"120\" HEIGHT=\"80\" "
            "BORDER=\"0\" USEMAP=\"#Nav\">\r\n]");

  m.ChooseShape(MapShape::Rectangle);
  m.Click({0, 0});
  m.Click({10, 10});
  // The link dialog remembers the URL before it checks it.
  EXPECT_FALSE(MapAreaLink_OK(t.app, m, "http://x.example/", ""));
  EXPECT_EQ(t.store.GetSetting("Favorite URLs", "URL1", ""), "http://x.example/");
  EXPECT_EQ(m.Build(false, 1, 2),
            "<map name=\"Nav\">\r\n<AREA SHAPE=\"Rect\" COORDS=\"0,0 10,10\" "
            "HREF=\"http://x.example/\">\r\n</map>\r\n<img src=\"img/nav.gif\" width=\"1\" "
            "height=\"2\" border=\"0\" usemap=\"#Nav\">\r\n");
}

}  // namespace
}  // namespace tessarine
