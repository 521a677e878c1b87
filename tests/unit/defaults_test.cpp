// SPDX-License-Identifier: GPL-3.0-or-later
#include "scripted_port.h"
#include "session.h"
#include "store/defaults.h"
#include "store/project_file.h"

#include <gtest/gtest.h>

using namespace tq;

TEST(Defaults, SaveWritesTheRawPassAndARestoreBringsItBackAsOneRow)
{
    test::TempDir dir;
    test::ScriptedPort port;
    Session s;
    s.DataFolder = dir.path();
    test::WriteFileBytes(dir.file("FormHistory.txt"), "");
    s.store.pages[0][0] = {"Setup", "[A=1]\r\n[B=2]\r\n\r\n", "1", true, model::Highlight::None};
    s.store.pages[1][0] = {"Name", "[Title=n]\r\n", "26", true, model::Highlight::None};
    const std::string path = dir.file("default.txt");
    port.file(path);
    ASSERT_TRUE(store::SaveDefaults(s, port, false));
    EXPECT_EQ(test::ReadFileBytes(path), ">>Setup\r\n[A=1]\r\n[B=2]\r\n\r\n>>Name\r\n-[Title=n]\r\n");
    EXPECT_TRUE(Said(port.last(), "Defaults have been saved", "DEFAULTS SAVED"));
    EXPECT_EQ(test::ReadFileBytes(dir.file("FormHistory.txt")), ""); // not a project: no recent entry
    Session t;
    t.DataFolder = dir.path();
    t.run.GlobalFont = "verdana";
    port.file(path);
    ASSERT_TRUE(store::RestoreDefaults(t, port));
    EXPECT_EQ(t.store.pages[0][0].InputTypeName, ">>Setup");
    // the first attribute line is dropped, the rest is one block
    EXPECT_EQ(t.store.pages[0][0].AttributeText, "[B=2]\r\n>>Name\r\n\r\n-[Title=n]\r\n");
    EXPECT_TRUE(t.store.pages[0][1].InputTypeName.empty());
    EXPECT_EQ(t.run.GlobalFont, "arial");
    EXPECT_EQ(port.last().title, "RESTORED");
}
