// SPDX-License-Identifier: GPL-3.0-or-later
#include "php/entry_php.h"
#include "scripted_port.h"

#include <gtest/gtest.h>
#include <memory>

using namespace tq;

TEST(PhpEntry, FollowupFilesOutOfPlaceStopsTheBuild)
{
    const struct
    {
        const char *before, *key, *after;
    } rows[] = {{"", "follo5", "condition-D"}, {"name3", "follo5", "condition-D"}, {"downl3", "other5", "download-D"}};
    for (const auto& r : rows) {
        SCOPED_TRACE(r.before);
        test::TempDir dir;
        test::ScriptedPort ui;
        auto state = std::make_unique<write::BuildState>();
        state->channels[1].open(dir.file("out.php"));
        state->channels[2].open(dir.file("downtemp.txt"));
        state->lastConditionField = r.before;
        state->values.REQ = "yes";
        state->values.Title = "T";
        php::WriteEntryPhp(ui, *state, "Followup Files With Password", r.key);
        EXPECT_EQ(state->buildError, 1);
        EXPECT_EQ(test::ReadFileBytes(dir.file("out.php")) + test::ReadFileBytes(dir.file("downtemp.txt")), "");
        ASSERT_EQ(ui.shown.size(), 1u);
        EXPECT_TRUE(Said(ui.shown[0],
                         std::string("A followup-D must follow a ") + r.after +
                             "\r\rDelete the input type FOLLOWUP FILES WITH PASSWORD\r"
                             " and the input type conditon-D\r\rand rebuild the form",
                         "ERROR", Icon::Critical));
    }
}
