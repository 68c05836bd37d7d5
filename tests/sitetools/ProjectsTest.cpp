// Projects in the settings store's ten slots.
#include "sitetools/Projects.h"

#include <gtest/gtest.h>

#include "platform/SettingsStore.h"
#include "settings/Settings.h"

namespace tessarine {
namespace {

Project Numbered(int i) {
  return {"P" + std::to_string(i), "/web/" + std::to_string(i), "/img/" + std::to_string(i)};
}

TEST(Projects, CreateChecksItsFieldsInOrderAndStopsAtTen) {
  MemorySettingsStore store;
  std::string message;
  const struct {
    Project project;
    const char* field;
  } invalid[] = {{{"", "", ""}, "projectName"},
                 {{"x", "", "/i"}, "projectFolder"},
                 {{"x", "/w", ""}, "imageFolder"}};
  for (const auto& c : invalid) {
    EXPECT_EQ(CreateProject(store, c.project, message), CreateOutcome::Invalid);
    EXPECT_EQ(ValidateNewProject(c.project)->field, c.field);
  }
  for (int i = 1; i <= 10; ++i) {
    ASSERT_EQ(CreateProject(store, Numbered(i), message), CreateOutcome::Created);
  }
  EXPECT_EQ(message, "Your Project was created successfully.");
  EXPECT_EQ(store.GetSetting("Projects", "10_ProjectFolder", "?"), "/web/10");
  EXPECT_EQ(CreateProject(store, {"eleven", "/w", "/i"}, message), CreateOutcome::Full);
  EXPECT_EQ(message,
            "You have the maximum of 10 Projects in your Project list.  Please delete one before "
            "attempting to add another Project.");
  EXPECT_EQ(ProjectNames(store).size(), 10u);
  EXPECT_EQ(store.GetSetting("Projects", "11_ProjectName", "absent"), "absent");
}

TEST(Projects, DeletingPacksTheLaterSlotsDown) {
  MemorySettingsStore store;
  std::string message;
  for (int i = 1; i <= 5; ++i) CreateProject(store, Numbered(i), message);
  CreateProject(store, {"P1", "/same/name", "/other"}, message);  // two of one name: two slots
  DeleteProject(store, 3);
  EXPECT_EQ(ProjectNames(store), (std::vector<std::string>{"P1", "P2", "P4", "P5", "P1"}));
  EXPECT_EQ(ReadProject(store, 3).projectFolder, "/web/4");
  EXPECT_EQ(ReadProject(store, 5).projectFolder, "/same/name");
  EXPECT_EQ(store.GetSetting("Projects", "6_ProjectName", "gone"), "gone");
  EXPECT_EQ(store.GetSetting("Projects", "6_ImageFolder", "gone"), "gone");
}

TEST(Projects, OpeningSetsThisRunsFoldersOnly) {
  MemorySettingsStore store;
  std::string message;
  CreateProject(store, Numbered(1), message);
  store.SaveSetting("Directory", "WorkingDirectory", "/kept");
  SettingsVars vars;
  OpenProjectSlot(store, vars, 1);
  EXPECT_EQ(vars.WorkingDirectory, "/web/1");
  EXPECT_EQ(vars.ImageDirectory, "/img/1");
  EXPECT_EQ(store.GetSetting("Directory", "WorkingDirectory", ""), "/kept");
  OpenProjectSlot(store, vars, 7);  // an empty slot gives empty folders
  EXPECT_EQ(vars.WorkingDirectory, "");
}

}  // namespace
}  // namespace tessarine
