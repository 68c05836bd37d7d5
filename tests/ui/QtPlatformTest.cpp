#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "ui/QtPlatform.h"

namespace tessarine {
namespace {

TEST(QtSettingsStore, KeepsSectionKeyAndTextExactlyInTheUsersIniFile) {
  QTemporaryDir dir;
  qputenv("XDG_CONFIG_HOME", dir.path().toUtf8());
  {
    QtSettingsStore store;
    EXPECT_EQ(store.FileName(), dir.path() + "/Tessarine/Tessarine.ini");
    EXPECT_EQ(store.GetSetting("Favorite URLs", "URL1", "none"), "none");
    store.SaveSetting("Favorite URLs", "URL1", "http://a.example/?x=1, y=2");
    store.SaveSetting("Apps", "Browser", "c:\\");
    store.SaveSetting("Miscellaneous", "TagCase", "");
    store.SaveSetting("Window", "LeftXCoord", "0");
    store.DeleteSetting("Window", "LeftXCoord");
  }
  QtSettingsStore again;
  EXPECT_EQ(again.GetSetting("Favorite URLs", "URL1", ""), "http://a.example/?x=1, y=2");
  EXPECT_EQ(again.GetSetting("Apps", "Browser", ""), "c:\\");
  // A stored empty text is a value, not an absent key.
  EXPECT_EQ(again.GetSetting("Miscellaneous", "TagCase", "upper"), "");
  EXPECT_EQ(again.GetSetting("Window", "LeftXCoord", "gone"), "gone");
  EXPECT_TRUE(QFile::exists(again.FileName()));
  qunsetenv("XDG_CONFIG_HOME");
}

TEST(QtFileDialogs, FiltersKeepTheirOrderInQtsForm) {
  QStringList list;
  const QString f =
      QtFileDialogs::ToQtFilter("All Files (*.*)|*.*|CGI Files (*.cgi, *.pl)|*.cgi;*.pl", &list);
  // One pair of brackets each, holding the patterns Qt matches.
  EXPECT_EQ(f, "All Files (*.*);;CGI Files (*.cgi *.pl)");
  EXPECT_EQ(list.size(), 2);
}

}  // namespace
}  // namespace tessarine
