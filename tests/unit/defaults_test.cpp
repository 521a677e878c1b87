// SPDX-License-Identifier: GPL-3.0-or-later
#include "scripted_port.h"
#include "session.h"
#include "store/defaults.h"
#include "store/project_file.h"

#include <gtest/gtest.h>

using namespace tq;

namespace {

class Defaults : public ::testing::Test
{
  protected:
    void SetUp() override
    {
        s.DataFolder = dir.path();
        test::WriteFileBytes(dir.file("FormHistory.txt"), "");
        s.store.pages[0][0] = {"Setup", "[A=1]\r\n[B=2]\r\n\r\n", "1", true, model::Highlight::None};
        s.store.pages[1][0] = {"Name", "[Title=n]\r\n", "26", true, model::Highlight::None};
    }
    test::TempDir dir;
    test::ScriptedPort port;
    Session s;
};

} // namespace

TEST_F(Defaults, SaveWritesTheRawPassAndARestoreBringsItBackAsOneRow)
{
    const std::string path = dir.file("default.txt");
    port.file(path);
    ASSERT_TRUE(store::SaveDefaults(s, port, false));
    EXPECT_EQ(test::ReadFileBytes(path), ">>Setup\r\n[A=1]\r\n[B=2]\r\n\r\n>>Name\r\n-[Title=n]\r\n");
    EXPECT_TRUE(Said(port.last(), "Defaults have been saved", "DEFAULTS SAVED"));
    EXPECT_EQ(s.run.status.fileLabel, "NOTHING IS CURRENTLY LOADED");
    EXPECT_EQ(test::ReadFileBytes(dir.file("FormHistory.txt")), "");
    EXPECT_EQ(s.run.busyMark, store::kIdle);
    // the reminder can stop it before the dialog
    store::DefaultsHooks hooks;
    hooks.setupReminder = [](Session&, UiPort&) { return 1; };
    EXPECT_FALSE(store::SaveDefaults(s, port, true, hooks));
    EXPECT_EQ(s.run.busyMark, store::kIdle);
    port.file(path);
    port.answer(Answer::No);
    EXPECT_FALSE(store::SaveDefaults(s, port, false));
    EXPECT_EQ(port.last().title, "FILE EXIST");
    // a restore of the raw file comes back as one row
    Session t;
    t.DataFolder = dir.path();
    t.run.GlobalFont = "verdana";
    bool filled = false;
    store::DefaultsHooks restore;
    restore.fillPickLists = [&](Session&) { filled = true; };
    port.file(path);
    ASSERT_TRUE(store::RestoreDefaults(t, port, restore));
    EXPECT_TRUE(filled);
    EXPECT_EQ(t.store.pages[0][0].InputTypeName, ">>Setup");
    // the first attribute line is dropped, the rest is one block
    EXPECT_EQ(t.store.pages[0][0].AttributeText, "[B=2]\r\n>>Name\r\n\r\n-[Title=n]\r\n");
    EXPECT_TRUE(t.store.pages[0][1].InputTypeName.empty());
    EXPECT_EQ(t.run.GlobalFont, "arial");
    EXPECT_EQ(t.run.FontSize, "3");
    EXPECT_EQ(port.last().title, "RESTORED");
    store::RefreshStatus(t);
    EXPECT_EQ(t.run.status.fileLabel, "NOTHING IS CURRENTLY LOADED");
}

TEST_F(Defaults, EmptyListGivesAnEmptyFileAndCancelChangesNothing)
{
    Session empty;
    empty.DataFolder = dir.path();
    const std::string path = dir.file("empty.txt");
    port.file(path);
    ASSERT_TRUE(store::SaveDefaults(empty, port, false));
    EXPECT_EQ(test::ReadFileBytes(path), "");
    s.run.GlobalFont = "verdana";
    port.file(path);
    ASSERT_TRUE(store::RestoreDefaults(s, port));
    EXPECT_EQ(s.store.pages[0][0].InputTypeName, "Setup"); // rows as they were
    EXPECT_EQ(s.run.GlobalFont, "arial");
    s.run.GlobalFont = "verdana";
    port.clear();
    port.file(std::nullopt);
    EXPECT_FALSE(store::RestoreDefaults(s, port));
    port.file(dir.file("missing.txt"));
    EXPECT_FALSE(store::RestoreDefaults(s, port));
    EXPECT_EQ(s.run.GlobalFont, "verdana");
    EXPECT_TRUE(port.messages().empty());
}
