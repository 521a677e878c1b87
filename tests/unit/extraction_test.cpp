// SPDX-License-Identifier: GPL-3.0-or-later
#include "compose/extraction.h"
#include "scripted_port.h"
#include "session.h"

#include <gtest/gtest.h>

using tq::Icon;
using tq::test::ReadFileBytes;

namespace {
std::string Template(const std::string& file)
{
    return ReadFileBytes(std::string(TQ_GOLDEN_DIR) + "/templates/form/" + file + ".txt");
}
} // namespace

// The checks that stop a build, each with its message; an entry preview lets the sample ";" paths through.
TEST(Extraction, FaultsThatStopTheBuild)
{
    const std::string cancel = "[Button Name=Cancel Form] [Info: x] [Default Color=255] [Choices=c] [Align=left] "
                               "[Choices=l] [Link To=";
    const std::string semi = "\r\rCANNOT CONTAIN A SEMI-COLON (;)";
    const struct
    {
        const char* type;
        std::string text;
        bool preview;
        int err;
        std::string said, title;
        Icon icon;
    } rows[] = {
        {"Video", Template("video"), false, 1, ";https://www.tarnquill.example/test/videos/birds.mp4" + semi, "ERROR",
         Icon::Exclamation},
        {"Video", Template("video"), true, 0, "", "", Icon::None},
        {"DOWNLOAD FILES WITH PASSWORD", Template("download_files_with_password"), false, 1,
         ";https://www.tarnquill.example/test" + semi, "ERROR", Icon::Exclamation},
        {"PICTURE",
         "[Server Picture Path=c:\\pics\\a.gif] [Info: x] [Align=left] [Choices=l] [Picture Width=600] [Info: w] "
         "[Picture Height=60] [Info: h]",
         true, 1, "The path cannot contain a back slash (\\).\r\rPlease change the back slash to a forward slash (/)",
         "ERROR", Icon::Critical},
        {"cancel button", cancel + "none] [Info: x]", false, 1,
         "INPUT TYPE -> CANCEL BUTTON\r FOR ->LINK TO\rCANNOT BE SET TO NONE\r YOU MUST HAVE WEB PAGE LINK.\r\r"
         "NOTE: THIS IS THE WEB PAGE THAT THE USER IS TAKEN TO WHEN HE CLICKS ON THE CANCEL BUTTON\r\r"
         "Example: index.htm\r\rCLICK ON EDIT AND ADD A WEB LINK",
         "CANCEL INPUT TYPE HAS AN ERROR", Icon::Exclamation},
        {"CANCEL BUTTON", cancel + "index] [Info: x]", false, 1,
         "INPUT TYPE -> CANCEL BUTTON\r FOR ->LINK TO\rDOES NOT HAVE A VALID URL WEB LINK. MISSING THE PERIOD\r\r"
         "Example: index.htm\r\rCLICK ON EDIT AND CORRECT THE PROBLEM",
         "CANCEL INPUT TYPE HAS AN ERROR", Icon::Exclamation},
        {"CANCEL BUTTON", cancel + "index.htm] [Info: x]", false, 0, "", "", Icon::None},
        // the reader's own fault stops too; a type the extraction doesn't know is passed on
        {"TITLE HEADER", "[Title=A] [Title Size=3] [Info: x]", false, 1,
         "Cannot find left [ bracket in [INFO:\r\r[Title Size=3]", "error", Icon::Critical},
        {"Marquee", "[Title=A] [Info: x]", false, 5, "", "", Icon::None},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(std::string(r.type) + (r.preview ? " preview" : ""));
        tq::Session s;
        tq::test::ScriptedPort ui;
        s.store.state.ProjectMode = tq::model::Mode::Form;
        s.build.setupValues.GlobalAlign = "NONE";
        s.build.setupValues.GlobalTextColor = "NONE";
        s.build.entryPreview = r.preview;
        std::string text = r.text;
        tq::compose::ExtractEntry(s, ui, r.type, text);
        EXPECT_EQ(s.build.buildError, r.err);
        ASSERT_EQ(ui.shown.size(), r.said.empty() ? 0u : 1u);
        for (const auto& m : ui.shown)
            EXPECT_TRUE(Said(m, r.said, r.title, r.icon));
    }
}
