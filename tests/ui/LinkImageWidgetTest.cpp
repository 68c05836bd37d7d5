// The link, anchor, mail link, image and image map wizards, opened from the menus and
// buttons and driven like a user would, down to the bytes they leave in the document.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <functional>

#include "core/Application.h"
#include "platform/EditControl.h"
#include "ui/WindowFixture.h"
#include "ui/wizards/ImageDialog.h"
#include "ui/wizards/ImageMapDialog.h"
#include "wizards/ImageTag.h"

namespace tessarine {
namespace {

class LinkImageWidget : public WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    store.SaveSetting("Miscellaneous", "FirstRun", "no");
    Start();
    ASSERT_NE(app->ActiveEdit(), nullptr);
  }
  EditControl& Edit() { return *app->ActiveEdit(); }
  void Text(const std::string& text, Pos selStart, Pos selLength) {
    Edit().SetText(text);
    Edit().Select(selStart, selLength);
  }
  // Acts on the next modal dialog once it is up.
  void OnDialog(std::function<void(QDialog*)> act) {
    QTimer::singleShot(0, frame.get(), [act] {
      auto* d = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(d, nullptr);
      act(d);
      // Whatever the checks found, the dialog must not stay up and hang the test.
      if (d->isVisible() && QApplication::activeModalWidget() == d) d->reject();
    });
  }
  template <class T>
  static T* Child(QWidget* d, const char* name) {
    T* w = d->findChild<T*>(name);
    EXPECT_NE(w, nullptr) << name;
    return w;
  }
  static void Click(QWidget* d, const char* button) { Child<QPushButton>(d, button)->click(); }
  // With TESSARINE_SHOTS naming a folder, the dialogs are saved there as pictures to look at.
  static void Shot(QWidget* d, const char* name) {
    const QString folder = qEnvironmentVariable("TESSARINE_SHOTS");
    if (!folder.isEmpty()) d->grab().save(folder + "/" + name + ".png");
  }
  std::string LastMessage() const {
    return messages.shown().empty() ? "" : messages.shown().back().text;
  }
};

TEST_F(LinkImageWidget, HyperlinkAdvisesSavingRefusesAnEmptyAddressThenWritesTheLink) {
  Text("see Home page", 4, 4);
  OnDialog([this](QDialog* d) {
    EXPECT_EQ(d->objectName(), "HyperlinkDialog");
    EXPECT_EQ(Child<QLineEdit>(d, "linkText")->text(), "Home");
    Click(d, "okButton");
    EXPECT_EQ(LastMessage(), "Please enter the URL you wish to link to.");
    EXPECT_TRUE(d->isVisible());
    Child<QComboBox>(d, "urlCombo")->setEditText("index.htm");
    Child<QComboBox>(d, "targetFrame")->setEditText("_top");
    Child<QTabWidget>(d, "pages")->setCurrentIndex(1);
    Child<QLineEdit>(d, "toolTip")->setText("Start");
    Child<QTabWidget>(d, "pages")->setCurrentIndex(0);
    Shot(d, "hyperlink");
    Click(d, "okButton");
    EXPECT_FALSE(d->isVisible());
  });
  frame->Command("mnuHypertext")->trigger();
  EXPECT_EQ(Edit().Text(),
            "see <A HREF=\"index.htm\" TARGET=\"_top\" TITLE=\"Start\">Home</A> page");
  // The document is untitled: the advice to save came first.
  EXPECT_EQ(headless.checkedQuestions.asked().size(), 1u);
  EXPECT_EQ(store.GetSetting("Favorite URLs", "URL1", ""), "index.htm");
}

TEST_F(LinkImageWidget, HyperlinkRolloverPageShowsAndWritesTheSheet) {
  const std::string page =
      "<HTML><HEAD><STYLE>\r\nA:hover {font-weight: bold}\r\n</STYLE></HEAD><BODY>\r\n"
      "</BODY></HTML>";
  Text(page, static_cast<Pos>(page.find("</BODY")), 0);
  headless.colorDialog.Queue(0x0000FF);  // red in the low byte
  OnDialog([this](QDialog* d) {
    EXPECT_TRUE(Child<QCheckBox>(d, "boldOnHover")->isChecked());
    EXPECT_FALSE(Child<QCheckBox>(d, "underlineOnHover")->isChecked());
    Child<QTabWidget>(d, "pages")->setCurrentIndex(1);
    Click(d, "hoverColor");
    EXPECT_EQ(Child<QPushButton>(d, "hoverColor")->text(), "");
    Child<QCheckBox>(d, "underlineOnHover")->setChecked(true);
    Shot(d, "hyperlink-effects");
    Child<QLineEdit>(d, "linkText")->setText("Top");
    Child<QComboBox>(d, "urlCombo")->setEditText("#top");
    Click(d, "okButton");
  });
  frame->Button("tbrInsert", "Hyperlink")->trigger();
  const std::string text = Edit().Text();
  EXPECT_NE(text.find("<A HREF=\"#top\">Top</A>"), std::string::npos) << text;
  const std::size_t hover = text.find("A:hover");
  ASSERT_NE(hover, std::string::npos);
  const std::string rule = text.substr(hover, text.find('}', hover) - hover);
  EXPECT_NE(rule.find("#FF0000"), std::string::npos) << rule;
  EXPECT_NE(rule.find("underline"), std::string::npos) << rule;
  EXPECT_NE(text.find("A:visited"), std::string::npos) << text;
}

TEST_F(LinkImageWidget, AnchorButtonAndMailLinkMenuWriteWithoutTheSaveAdvice) {
  Text("<HTML><BODY>\r\nab\r\n</BODY></HTML>", 15, 1);
  OnDialog([](QDialog* d) {
    EXPECT_EQ(d->objectName(), "AnchorDialog");
    EXPECT_EQ(Child<QLineEdit>(d, "anchorText")->text(), "b");
    Click(d, "okButton");
    EXPECT_TRUE(d->isVisible());  // a name is needed
    Child<QLineEdit>(d, "anchorName")->setText("end");
    Click(d, "okButton");
  });
  frame->Button("tbrInsert", "Anchor")->trigger();
  EXPECT_EQ(Edit().Text(), "<HTML><BODY>\r\na<A NAME=\"end\">b</A>\r\n</BODY></HTML>");

  store.SaveSetting("Miscellaneous", "EmailAddress", "me@example.org");
  Text("<HTML><BODY>\r\n[]\r\n</BODY></HTML>", 15, 0);
  OnDialog([](QDialog* d) {
    auto* address = Child<QLineEdit>(d, "emailAddress");
    EXPECT_EQ(address->text(), "me@example.org");
    EXPECT_EQ(address->selectedText(), "me@example.org");
    Child<QLineEdit>(d, "linkText")->setText("Write to me");
    Child<QLineEdit>(d, "subject")->setText(" Hi ");
    Click(d, "okButton");
  });
  frame->Command("mnuEmailLink")->trigger();
  EXPECT_EQ(Edit().Text(),
            "<HTML><BODY>\r\n[<A HREF=\"mailto:me@example.org?subject=Hi\">Write to me</A>]\r\n"
            "</BODY></HTML>");
  // Cancel writes nothing.
  OnDialog([](QDialog* d) { d->reject(); });
  frame->Command("mnuEmailLink")->trigger();
  EXPECT_NE(Edit().Text().find("[<A HREF"), std::string::npos);
  EXPECT_TRUE(headless.checkedQuestions.asked().empty());
}

TEST_F(LinkImageWidget, ImageFromTheFileListWithItsSizeAlignmentAndLink) {
  const QString folder = dir.path() + "/pics";
  QDir().mkpath(folder);
  // The list reads GIF and JPEG sizes; a header is all it takes.
  std::ofstream(folder.toStdString() + "/logo.gif", std::ios::binary)
      << std::string("GIF89a\x58\x02\x2C\x01", 10) << std::string(30, '\0');
  std::ofstream(folder.toStdString() + "/huge.png", std::ios::binary)
      << std::string("\x89PNG\r\n\x1A\n\0\0\0\x0DIHDR\0\x01\x86\xA0\0\x01\x86\xA0", 24)
      << std::string(9, '\0');
  std::ofstream(folder.toStdString() + "/notes.txt") << "text";
  Text("<HTML><BODY>\r\n\r\n</BODY></HTML>", 14, 0);
  OnDialog([this, folder](QDialog* d) {
    auto* dialog = dynamic_cast<ui::ImageDialog*>(d);
    ASSERT_NE(dialog, nullptr);
    dialog->ShowFolder(folder, true);
    auto* files = Child<QListWidget>(d, "fileList");
    ASSERT_EQ(files->count(), 1);  // not the PNG, not the text
    EXPECT_EQ(files->item(0)->text(), "logo.gif");

    // A picture claiming 100,000 pixels a side: a message, and the fields keep their text.
    dialogs.Queue((folder + "/huge.png").toStdString());
    Click(d, "browseImage");
    EXPECT_NE(Child<QLabel>(d, "sizeProblem")->text().indexOf("too large"), -1);
    EXPECT_EQ(Child<QLineEdit>(d, "imageWidth")->text(), "");

    dialog->PickListedFile("logo.gif");
    EXPECT_EQ(Child<QLineEdit>(d, "imageSource")->text(), "logo.gif");  // untitled: bare name
    EXPECT_EQ(Child<QLineEdit>(d, "imageWidth")->text(), "600");
    EXPECT_EQ(Child<QLineEdit>(d, "imageHeight")->text(), "300");
    EXPECT_EQ(Child<QLabel>(d, "widthReadout")->text(), "Image width (pixels):  600");
    EXPECT_EQ(Child<QLabel>(d, "sizeProblem")->text(), "");
    Child<QComboBox>(d, "alignment")->setCurrentText("Bottom(Default)");
    EXPECT_EQ(Child<QLabel>(d, "alignmentDescription")->text(),
              "Aligns the bottom of the image with the baseline of the text.");
    Child<QLineEdit>(d, "altText")->setText("Logo");
    Child<QComboBox>(d, "linkUrl")->setEditText("home.htm");
    auto* map = Child<QCheckBox>(d, "useClientMap");
    EXPECT_FALSE(Child<QLineEdit>(d, "mapName")->isEnabled());
    map->setChecked(true);
    Child<QLineEdit>(d, "mapName")->setText("nav");
    Child<QTabWidget>(d, "pages")->setCurrentIndex(0);
    Shot(d, "image-select");
    Child<QTabWidget>(d, "pages")->setCurrentIndex(1);
    Shot(d, "image-layout");
    Child<QTabWidget>(d, "pages")->setCurrentIndex(3);
    Shot(d, "image-advanced");
    Click(d, "okButton");
  });
  frame->Command("Graphics")->trigger();
  const std::string name = ImageName(headless.clock.Now());
  EXPECT_EQ(Edit().Text(), "<HTML><BODY>\r\n<A HREF=\"home.htm\"><IMG SRC=\"logo.gif\" NAME=\"" +
                               name + "\"  ID=\"" + name +
                               "\" ALT=\"Logo\"False WIDTH=\"600\" HEIGHT=\"300\" BORDER=\"0\" "
                               "USEMAP=\"#nav\"></A>\r\n</BODY></HTML>");
}

TEST_F(LinkImageWidget, ImageNeedsASourceAndReopensOnTheFirstPage) {
  Text("x", 0, 0);
  OnDialog([this](QDialog* d) {
    auto* pages = Child<QTabWidget>(d, "pages");
    pages->setCurrentIndex(3);
    Click(d, "okButton");
    EXPECT_EQ(LastMessage(), "Please enter image filename in the box below.");
    EXPECT_EQ(pages->currentIndex(), 0);
    d->reject();
  });
  frame->Button("tbrInsert", "Image")->trigger();
  EXPECT_EQ(Edit().Text(), "x");
}

class ImageMapWidget : public LinkImageWidget {
 protected:
  // Clicks the picture at a pixel; `link` acts on the link dialog that a finished shape opens.
  void ClickPicture(ui::MapCanvas* canvas, int x, int y,
                    std::function<void(QDialog*)> link = nullptr) {
    if (link) OnDialog(link);
    const QPointF at(x, y);
    QMouseEvent move(QEvent::MouseMove, at, canvas->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(canvas, &move);
    QMouseEvent press(QEvent::MouseButtonPress, at, canvas->mapToGlobal(at), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(canvas, &press);
  }
  static std::function<void(QDialog*)> Link(const char* url, const char* target = "") {
    return [url, target](QDialog* d) {
      EXPECT_EQ(d->objectName(), "MapAreaLinkDialog");
      Child<QComboBox>(d, "areaUrl")->setEditText(url);
      Child<QComboBox>(d, "areaFrame")->setEditText(target);
      Click(d, "okButton");
    };
  }
};

TEST_F(ImageMapWidget, RectangleCircleAndPolygonClickedOnARealPicture) {
  const QString picture = dir.path() + "/map.png";
  QImage image(200, 150, QImage::Format_RGB32);
  image.fill(QColor(0x40, 0x90, 0x40));
  ASSERT_TRUE(image.save(picture));
  Text("[]", 1, 0);
  OnDialog([this, picture](QDialog* d) {
    auto* wizard = dynamic_cast<ui::ImageMapDialog*>(d);
    ASSERT_NE(wizard, nullptr);
    EXPECT_FALSE(wizard->Next());
    EXPECT_EQ(LastMessage(), "Enter an image filename.");
    Child<QLineEdit>(d, "imageFile")->setText(picture);
    Child<QLineEdit>(d, "mapName")->setText("nav");
    ASSERT_TRUE(wizard->Next());
    ui::MapCanvas* canvas = wizard->Canvas();
    EXPECT_EQ(canvas->size(), QSize(200, 150));

    ClickPicture(canvas, 5, 5);
    EXPECT_EQ(LastMessage(), "Select an area shape before clicking on the image.");

    Click(d, "rectangleShape");
    EXPECT_EQ(Child<QLabel>(d, "prompt")->text(),
              "Click the top left corner of the rectangle shape.");
    ClickPicture(canvas, 10, 10);
    ClickPicture(canvas, 60, 40, Link("r.htm"));
    Click(d, "circleShape");
    ClickPicture(canvas, 100, 75);
    ClickPicture(canvas, 115, 95, Link("c.htm", "main"));
    // A shape whose link is cancelled is forgotten.
    ClickPicture(canvas, 1, 1);
    ClickPicture(canvas, 9, 9, [](QDialog* link) { link->reject(); });
    Click(d, "polygonShape");
    ClickPicture(canvas, 150, 10);
    ClickPicture(canvas, 190, 10);
    ClickPicture(canvas, 190, 60);
    ClickPicture(canvas, 152, 12, Link("p.htm"));  // near the first vertex: closes

    auto* list = Child<QListWidget>(d, "areaList");
    ASSERT_EQ(list->count(), 3);
    EXPECT_EQ(list->item(1)->text(),
              "<AREA SHAPE=\"Circle\" COORDS=\"100,75 25\" HREF=\"c.htm\" TARGET=\"main\">");
    // Undo takes the last shape away; drawn again, it comes back.
    Click(d, "undoButton");
    EXPECT_EQ(list->count(), 2);
    Click(d, "polygonShape");
    ClickPicture(canvas, 150, 10);
    ClickPicture(canvas, 190, 10);
    ClickPicture(canvas, 190, 60);
    ClickPicture(canvas, 152, 12, Link("p.htm"));
    Click(d, "rectangleShape");
    ClickPicture(canvas, 20, 100);
    QMouseEvent band(QEvent::MouseMove, QPointF(70, 140), canvas->mapToGlobal(QPointF(70, 140)),
                     Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(canvas, &band);
    Shot(d, "image-map");
    Click(d, "doneButton");
  });
  frame->Command("mnuImageMap")->trigger();
  EXPECT_EQ(Edit().Text(),
            "[<MAP NAME=\"nav\">\r\n"
            "<AREA SHAPE=\"Rect\" COORDS=\"10,10 60,40\" HREF=\"r.htm\">\r\n"
            "<AREA SHAPE=\"Circle\" COORDS=\"100,75 25\" HREF=\"c.htm\" TARGET=\"main\">\r\n"
            "<AREA SHAPE=\"Poly\" COORDS=\"150,10 190,10 190,60 150,10\" HREF=\"p.htm\">\r\n"
            "</MAP>\r\n<IMG SRC=\"" +
                picture.toStdString() +
                "\" WIDTH=\"200\" HEIGHT=\"150\" BORDER=\"0\" USEMAP=\"#nav\">\r\n]");
}

TEST_F(ImageMapWidget, APictureThatCannotBeShownKeepsTheFirstPage) {
  const std::string fake = Path("fake.gif");
  std::ofstream(fake) << "not a picture at all";
  const std::string huge = Path("huge.gif");
  std::ofstream(huge, std::ios::binary)
      << std::string("GIF89a\xFF\xFF\xFF\xFF", 10) << std::string(20, '\0');
  Text("x", 0, 0);
  OnDialog([&](QDialog* d) {
    auto* wizard = dynamic_cast<ui::ImageMapDialog*>(d);
    ASSERT_NE(wizard, nullptr);
    Child<QLineEdit>(d, "mapName")->setText("m");
    for (const std::string& path : {fake, huge, Path("missing.png")}) {
      Child<QLineEdit>(d, "imageFile")->setText(QString::fromStdString(path));
      EXPECT_FALSE(wizard->Next()) << path;
      EXPECT_NE(LastMessage().find(path), std::string::npos) << LastMessage();
    }
    d->reject();
  });
  frame->Command("mnuImageMap")->trigger();
  EXPECT_EQ(Edit().Text(), "x");
}

}  // namespace
}  // namespace tessarine
