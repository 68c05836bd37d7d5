// Edit Tag from the Edit menu on an opened page: the link and the image reopen in their
// dialogs, filled, and OK puts the changed tag where the old one was.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <fstream>
#include <functional>

#include "core/Application.h"
#include "platform/EditControl.h"
#include "ui/WindowFixture.h"

namespace tessarine {
namespace {

const std::string kPage =
    "<HTML>\r\n<BODY>\r\n<P>Read <a href=\"news.htm\" target=\"main\">the news</a> now.</P>\r\n"
    "<IMG SRC=\"logo.gif\" WIDTH=\"40\" HEIGHT=\"20\" ALT=\"Logo\">\r\n<P>End</P>\r\n</BODY>\r\n"
    "</HTML>";

class EditTagWidget : public WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    store.SaveSetting("Miscellaneous", "FirstRun", "no");
    const std::string path = Path("page.htm");
    // Opening takes the file's last line end off; saving puts it back.
    std::ofstream(path, std::ios::binary) << kPage << "\r\n";
    Start();
    dialogs.Queue(path);
    frame->Command("FileOpen")->trigger();
    ASSERT_NE(Active(), nullptr);
    ASSERT_EQ(Active()->Edit().Text(), kPage);
  }
  EditControl& Edit() { return Active()->Edit(); }
  void OnDialog(std::function<void(QDialog*)> act) {
    QTimer::singleShot(0, frame.get(), [act] {
      auto* d = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(d, nullptr);
      act(d);
      if (d->isVisible() && QApplication::activeModalWidget() == d) d->reject();
    });
  }
  template <class T>
  static T* Child(QWidget* d, const char* name) {
    T* w = d->findChild<T*>(name);
    EXPECT_NE(w, nullptr) << name;
    return w;
  }
};

TEST_F(EditTagWidget, LinkAndImageReopenAndAreReplaced) {
  QAction* editTag = frame->Command("mnuEditTag");
  ASSERT_NE(editTag, nullptr);
  EXPECT_TRUE(editTag->isEnabled());

  Edit().Select(static_cast<Pos>(kPage.find("the news") + 4), 0);
  OnDialog([this](QDialog* d) {
    EXPECT_EQ(d->objectName(), "HyperlinkDialog");
    EXPECT_EQ(Child<QLineEdit>(d, "linkText")->text(), "the news");
    EXPECT_EQ(Child<QComboBox>(d, "urlCombo")->currentText(), "news.htm");
    EXPECT_EQ(Child<QComboBox>(d, "targetFrame")->currentText(), "main");
    Child<QComboBox>(d, "urlCombo")->setEditText("today.htm");
    Child<QPushButton>(d, "okButton")->click();
    EXPECT_FALSE(d->isVisible());
  });
  editTag->trigger();
  std::string expected = kPage;
  const std::string oldLink = "<a href=\"news.htm\" target=\"main\">the news</a>";
  expected.replace(expected.find(oldLink), oldLink.size(),
                   "<A HREF=\"today.htm\" TARGET=\"main\">the news</A>");
  EXPECT_EQ(Edit().Text(), expected);

  Edit().Select(static_cast<Pos>(expected.find("WIDTH")), 0);
  OnDialog([this](QDialog* d) {
    EXPECT_EQ(d->objectName(), "ImageDialog");
    EXPECT_EQ(Child<QLineEdit>(d, "imageSource")->text(), "logo.gif");
    EXPECT_EQ(Child<QLineEdit>(d, "imageWidth")->text(), "40");
    EXPECT_EQ(Child<QLineEdit>(d, "altText")->text(), "Logo");
    Child<QLineEdit>(d, "altText")->setText("Our logo");
    Child<QPushButton>(d, "okButton")->click();
    EXPECT_FALSE(d->isVisible());
  });
  editTag->trigger();
  const std::string text = Edit().Text();
  const std::size_t img = expected.find("<IMG");
  EXPECT_EQ(text.substr(0, img), expected.substr(0, img));
  const std::size_t end = text.find('>', img) + 1;
  const std::string tag = text.substr(img, end - img);
  EXPECT_NE(tag.find("SRC=\"logo.gif\""), std::string::npos) << tag;
  EXPECT_NE(tag.find("ALT=\"Our logo\""), std::string::npos) << tag;
  EXPECT_NE(tag.find("WIDTH=\"40\""), std::string::npos) << tag;
  EXPECT_EQ(text.substr(end), expected.substr(expected.find('>', img) + 1));
}

TEST_F(EditTagWidget, CancelAndUnknownTagsLeaveTheTextAlone) {
  Edit().Select(static_cast<Pos>(kPage.find("WIDTH")), 0);
  OnDialog([](QDialog* d) { d->reject(); });
  frame->Command("mnuEditTag")->trigger();
  EXPECT_EQ(Edit().Text(), kPage);
  const std::size_t img = kPage.find("<IMG");
  EXPECT_EQ(Edit().SelStart(), static_cast<Pos>(img));
  EXPECT_EQ(Edit().SelLength(), static_cast<Pos>(kPage.find('>', img) - img + 1));

  Edit().Select(static_cast<Pos>(kPage.find("End")), 0);  // behind <P>: no wizard
  frame->Command("mnuEditTag")->trigger();
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_EQ(Edit().Text(), kPage);
  EXPECT_EQ(Edit().SelText(), "<P>");
}

}  // namespace
}  // namespace tessarine
