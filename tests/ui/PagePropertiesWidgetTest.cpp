// Web Page Properties on an opened page, from the menu, the toolbar and a new page, and Edit
// Tag on the BODY, FONT and HR tags: each dialog opens filled and OK writes the page's bytes.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMdiArea>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <fstream>
#include <functional>
#include <memory>

#include "core/Application.h"
#include "platform/EditControl.h"
#include "ui/WindowFixture.h"

namespace tessarine {
namespace {

const std::string kPage =
    "<HTML>\r\n<HEAD>\r\n<TITLE>Club News</TITLE>\r\n</HEAD>\r\n"
    "<BODY BGCOLOR=\"#FFFFFF\" VLINK=\"#800080\" LINK=\"blue\">\r\n"
    "<P><FONT FACE=\"Arial\" COLOR=\"#FF0000\" SIZE=\"4\">Big news</FONT></P>\r\n"
    "<HR SIZE=\"3\" WIDTH=\"50%\" NOSHADE ALIGN=\"center\">\r\n</BODY>\r\n</HTML>";

class PagePropertiesWidget : public WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    store.SaveSetting("Miscellaneous", "FirstRun", "no");
    Start();
  }
  void OpenPage() {
    const std::string path = Path("news.htm");
    std::ofstream(path, std::ios::binary) << kPage << "\r\n";
    dialogs.Queue(path);
    frame->Command("FileOpen")->trigger();
    ASSERT_NE(Active(), nullptr);
    ASSERT_EQ(Edit().Text(), kPage);
  }
  EditControl& Edit() { return Active()->Edit(); }
  // Acts on the next dialog once it is up (a new page colours itself first, letting events
  // run), then closes it if the act left it open.
  void OnDialog(std::function<void(QDialog*)> act) {
    auto* poll = new QTimer(frame.get());
    poll->setInterval(5);
    auto tries = std::make_shared<int>(0);
    QObject::connect(poll, &QTimer::timeout, frame.get(), [poll, tries, act] {
      auto* d = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (!d && ++*tries < 400) return;
      poll->stop();
      poll->deleteLater();
      ASSERT_NE(d, nullptr);
      act(d);
      if (d->isVisible() && QApplication::activeModalWidget() == d) d->reject();
    });
    poll->start();
  }
  void EditTagAt(const std::string& marker) {
    Edit().Select(static_cast<Pos>(Edit().Text().find(marker)), 0);
    frame->Command("mnuEditTag")->trigger();
  }
};

TEST_F(PagePropertiesWidget, MenuOpensTheDialogOnThePageAndOkRewritesIt) {
  OpenPage();
  OnDialog([this](QDialog* d) {
    EXPECT_EQ(d->objectName(), "PagePropertiesDialog");
    EXPECT_EQ(d->windowTitle(), "Web Page Properties");
    EXPECT_EQ(Child<QLineEdit>(d, "pageTitle")->text(), "Club News");
    EXPECT_EQ(Child<QComboBox>(d, "linkColor")->currentText(), "blue");
    EXPECT_EQ(Child<QComboBox>(d, "visitedLinkColor")->currentText(), "800080");
    auto* tabs = Child<QTabWidget>(d, "pageTabs");
    ASSERT_EQ(tabs->count(), 6);
    tabs->setCurrentIndex(5);
    const QString report = Child<QPlainTextEdit>(d, "pageInformation")->toPlainText();
    EXPECT_TRUE(report.contains("Web Page Title:     Club News")) << report.toStdString();
    EXPECT_TRUE(report.contains("File Type:     HTML Document"));

    Child<QLineEdit>(d, "pageTitle")->setText("Chess Club News");
    auto* background = Child<QComboBox>(d, "backgroundColor");
    background->setCurrentIndex(background->findText("navy"));
    Child<QComboBox>(d, "textColor")->setEditText("FFFF00");
    Child<QPushButton>(d, "okButton")->click();
    EXPECT_FALSE(d->isVisible());
  });
  frame->Command("mnuPageProps")->trigger();
  std::string expected = kPage;
  expected.replace(expected.find("Club News"), 9, "Chess Club News");
  const std::string oldBody = "<BODY BGCOLOR=\"#FFFFFF\" VLINK=\"#800080\" LINK=\"blue\">";
  expected.replace(expected.find(oldBody), oldBody.size(),
                   "<BODY BGCOLOR=\"000080\" TEXT=\"#FFFF00\" LINK=\"0000FF\" VLINK=\"#800080\">");
  EXPECT_EQ(Edit().Text(), expected);
  EXPECT_EQ(app->wizards.TagEditActive, 0);
  EXPECT_EQ(store.GetSetting("Miscellaneous", "ShowPageProps", ""), "1");
  // Title and tag come back together.
  Edit().Undo();
  EXPECT_EQ(Edit().Text(), kPage);
}

TEST_F(PagePropertiesWidget, FixedWatermarkWithoutAFileKeepsTheDialogOpen) {
  OpenPage();
  OnDialog([this](QDialog* d) {
    Child<QCheckBox>(d, "fixedBackground")->setChecked(true);
    Child<QPushButton>(d, "okButton")->click();
    EXPECT_TRUE(d->isVisible());
    EXPECT_EQ(Child<QTabWidget>(d, "pageTabs")->currentIndex(), 2);
    ASSERT_EQ(messages.shown().size(), 1u);
    EXPECT_EQ(messages.shown()[0].text.rfind("You have specified that the background", 0), 0u);
    d->reject();
  });
  frame->Button("tbrInsert", "Page Properties")->trigger();
  EXPECT_EQ(Edit().Text(), kPage);
  EXPECT_EQ(Edit().SelLength(), 0) << "Cancel collapses the selected BODY tag";
}

TEST_F(PagePropertiesWidget, NewPageOpensItWhileTheSettingSaysSo) {
  OnDialog([this](QDialog* d) {
    EXPECT_EQ(d->objectName(), "PagePropertiesDialog");
    EXPECT_EQ(Child<QLineEdit>(d, "pageTitle")->selectedText(),
              "Document Title should be typed here");
    Child<QCheckBox>(d, "dontShowForNewPages")->setChecked(true);
    Child<QPushButton>(d, "okButton")->click();
  });
  frame->Button("tbrFile", "New")->trigger();
  EXPECT_EQ(store.GetSetting("Miscellaneous", "ShowPageProps", ""), "0");
  const int windows = static_cast<int>(frame->MdiArea()->subWindowList().size());
  frame->Button("tbrFile", "New")->trigger();  // no dialog now: nothing would close it
  EXPECT_EQ(static_cast<int>(frame->MdiArea()->subWindowList().size()), windows + 1);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(PagePropertiesWidget, EditTagOpensBodyFontAndLineDialogsFilled) {
  OpenPage();
  OnDialog([this](QDialog* d) {
    EXPECT_EQ(d->objectName(), "PagePropertiesDialog");
    // Edit Tag's own read: LINK is found inside VLINK.
    EXPECT_EQ(Child<QComboBox>(d, "linkColor")->currentText(), "800080");
    EXPECT_EQ(Child<QComboBox>(d, "backgroundColor")->currentText(), "FFFFFF");
  });
  EditTagAt("BGCOLOR");
  EXPECT_EQ(Edit().Text(), kPage);

  OnDialog([this](QDialog* d) {
    EXPECT_EQ(d->objectName(), "FormatChar");
    EXPECT_EQ(Child<QComboBox>(d, "fontFace")->currentText(), "Arial");
    EXPECT_EQ(Child<QLineEdit>(d, "colorHex")->text(), "FF0000");
    EXPECT_EQ(Child<QComboBox>(d, "sizeRow")->currentText(), "4");
    Child<QLineEdit>(d, "colorHex")->setText("0000FF");
    Child<QPushButton>(d, "okButton")->click();
  });
  EditTagAt("Arial");
  std::string expected = kPage;
  const std::string oldFont = "<FONT FACE=\"Arial\" COLOR=\"#FF0000\" SIZE=\"4\">";
  expected.replace(expected.find(oldFont), oldFont.size(),
                   "<FONT FACE=\"Arial\" COLOR=\"#0000FF\" SIZE=\"4\">");
  EXPECT_EQ(Edit().Text(), expected);

  OnDialog([this](QDialog* d) {
    EXPECT_EQ(d->objectName(), "HorizontalLine");
    EXPECT_EQ(Child<QLineEdit>(d, "thickness")->text(), "3");
    EXPECT_EQ(Child<QLineEdit>(d, "lineWidth")->text(), "50%");
    EXPECT_TRUE(Child<QCheckBox>(d, "noShading")->isChecked());
    EXPECT_EQ(Child<QComboBox>(d, "cmbAlign")->currentText(), "Center");
    Child<QCheckBox>(d, "noShading")->setChecked(false);
    Child<QPushButton>(d, "okButton")->click();
  });
  EditTagAt("NOSHADE");
  const std::string oldLine = "<HR SIZE=\"3\" WIDTH=\"50%\" NOSHADE ALIGN=\"center\">";
  expected.replace(expected.find(oldLine), oldLine.size(),
                   "<hr size=\"3\" width=\"50%\" align=\"center\">");
  EXPECT_EQ(Edit().Text(), expected);
  EXPECT_FALSE(app->textServices.ReplaceSelectionOnce);
}

TEST_F(PagePropertiesWidget, CancelledFontEditLeavesNoReplacementBehind) {
  OpenPage();
  OnDialog([](QDialog* d) { d->reject(); });
  EditTagAt("Arial");
  EXPECT_EQ(Edit().Text(), kPage);
  EXPECT_FALSE(app->textServices.ReplaceSelectionOnce);
  // The next wrap wraps, as ever.
  Edit().Select(static_cast<Pos>(kPage.find("Big")), 3);
  frame->Command("mnuPhysicalStyles0")->trigger();
  EXPECT_NE(Edit().Text().find("<B>Big</B>"), std::string::npos);
}

TEST_F(PagePropertiesWidget, EditTagReopensAnAppletAndItsParameter) {
  const std::string page =
      "<HTML><BODY>\r\n<APPLET CODE=Clock.class WIDTH=120 ALIGN=middle>\r\n"
      "\t<PARAM NAME=\"speed\" VALUE=\"slow\">\r\n</APPLET>\r\n</BODY></HTML>";
  const std::string path = Path("clock.htm");
  std::ofstream(path, std::ios::binary) << page << "\r\n";
  dialogs.Queue(path);
  frame->Command("FileOpen")->trigger();
  ASSERT_EQ(Edit().Text(), page);

  OnDialog([this](QDialog* d) {
    EXPECT_EQ(d->objectName(), "AppletDialog");
    EXPECT_EQ(Child<QLineEdit>(d, "appletFile")->text(), "Clock.class");
    EXPECT_EQ(Child<QComboBox>(d, "align")->currentText(), "Middle");
    Child<QLineEdit>(d, "width")->setText("200");
    Child<QPushButton>(d, "okButton")->click();
  });
  EditTagAt("Clock");
  std::string expected = page;
  const std::string oldApplet = "<APPLET CODE=Clock.class WIDTH=120 ALIGN=middle>";
  // The opening tag alone, with the line end the dialog gives it; the parameter stays.
  expected.replace(expected.find(oldApplet), oldApplet.size(),
                   "<APPLET CODE=\"Clock.class\" ALIGN=\"Middle\" WIDTH=\"200\">\r\n");
  EXPECT_EQ(Edit().Text(), expected);

  OnDialog([this](QDialog* d) {
    EXPECT_EQ(d->objectName(), "AppletParameterDialog");
    EXPECT_EQ(Child<QLineEdit>(d, "parameterName")->text(), "speed");
    EXPECT_EQ(Child<QLineEdit>(d, "parameterValue")->text(), "slow");
    Child<QLineEdit>(d, "parameterValue")->setText("fast");
    Child<QPushButton>(d, "insertButton")->click();
  });
  EditTagAt("speed");
  const std::string oldParam = "<PARAM NAME=\"speed\" VALUE=\"slow\">";
  expected.replace(expected.find(oldParam), oldParam.size(),
                   "<PARAM NAME=\"speed\" VALUE=\"fast\">");
  EXPECT_EQ(Edit().Text(), expected);
}

}  // namespace
}  // namespace tessarine
