// SPDX-License-Identifier: GPL-3.0-or-later
#include "compose/validation.h"
#include "scripted_port.h"
#include "session.h"

#include <gtest/gtest.h>

using tq::Session;
using tq::View;
using tq::test::ScriptedPort;
using namespace tq::compose;

TEST(Reports, UnknownTypeShowsItsPageRowAndTheStopBox)
{
    Session s;
    ScriptedPort ui;
    s.build.buildError = 5;
    ReportUnknownType(s, ui, 53, "Marquee Text"); // two slots a row, 25 rows a Page
    EXPECT_EQ(s.build.buildError, 1);
    EXPECT_EQ(ui.views, std::vector<View>{View::Page2});
    ASSERT_EQ(ui.selectedRows.size(), 1u);
    EXPECT_EQ(ui.selectedRows[0], std::make_pair(2, 1));
    EXPECT_TRUE(Said(ui.last(),
                     "MARQUEE TEXT is not a valid input type.\r\rPlease remove the MARQUEE TEXT from the list", "ERROR",
                     tq::Icon::Critical));
}

TEST(RewriteAttribute, ReplacesTheKeyLineOrLeavesTheTextWhenTheFolderCannotBeWritten)
{
    tq::test::TempDir dir;
    Session s;
    s.DataFolder = dir.path();
    s.build.buildError = 1;
    std::string text = "[Title=A]\r\n[Info: x]\r\n\r\n[Align=left]\r\n[Choices=left,right,center]\r\n";
    RewriteAttribute(s, "[ALIGN", "center", text);
    EXPECT_EQ(s.build.buildError, 0);
    EXPECT_EQ(text, "[Title=A]\r\n[Info: x]\r\n\r\n[Align=center]\r\n[Choices=left,right,center]\r\n");
    s.DataFolder = dir.file("missing");
    RewriteAttribute(s, "[ALIGN", "right", text);
    EXPECT_EQ(s.build.buildError, 1);
    EXPECT_NE(text.find("[Align=center]"), std::string::npos);
}
