// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/page_shell.h"
#include "scripted_port.h"
#include "session.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

using tq::test::ReadFileBytes;
using tq::test::TempDir;

namespace {

const std::string kImage = "https://www.tarnquill.example/test/bg.gif";

std::string Golden(const std::string& name)
{
    return ReadFileBytes(std::string(TQ_GOLDEN_DIR) + "/html/page_shell/" + name);
}

// A FORM session with the values of a read SetupEntry: frame on, one frame,
// the sample image flag (no image), no cancel button.
std::unique_ptr<tq::Session> FormSession()
{
    auto s = std::make_unique<tq::Session>();
    s->store.state.ProjectMode = "FORM";
    auto& setup = s->build.setupValues;
    setup.FrameOff = 0;
    setup.TotalFrames = 1;
    setup.FrameBorderColorHex = "00CE00";
    setup.FrameColorHex = "004000";
    setup.BackgroundImagePath = ";" + kImage;
    setup.SubmitAlign = "LEFT";
    setup.SubmitButtonColorHex = "000000";
    s->build.formAction = "formtql.php";
    return s;
}

std::unique_ptr<tq::Session> SurveySession()
{
    auto s = FormSession();
    s->store.state.ProjectMode = "survey"; // compared upper-cased
    s->build.setupValues.BackgroundColorHex = "8BAB89";
    s->build.setupValues.SubmitAlign = "CENTER";
    s->build.formAction = "surveytql.php";
    return s;
}

// Head and close of a page with nothing between them.
std::string WritePage(tq::Session& s, const std::string& submitName)
{
    TempDir dir;
    const std::string path = dir.file("page.htm");
    EXPECT_TRUE(s.build.channels[1].open(path));
    tq::html::WritePageHead(s);
    tq::html::WritePageClose(s, submitName);
    s.build.channels.closeAll();
    return ReadFileBytes(path);
}

void SetCancelButton(tq::build::WorkingValues& v, std::string name, std::string link, std::string colorHex)
{
    v.ButtonName = std::move(name);
    v.LinkTo = std::move(link);
    v.DefaultColorHex = std::move(colorHex);
}

} // namespace

TEST(PageShell, HeadAndCloseMatchTheGoldenPages)
{
    using Edit = void (*)(tq::Session&);
    const struct
    {
        const char* golden;
        bool survey;
        Edit edit;
    } cases[] = {
        // one frame and no image leaves the inner table tag open
        {"form_fragment_frame.htm", false, [](tq::Session&) {}},
        {"form_whole_frames3_cancel.htm", false,
         [](tq::Session& s) {
             s.build.wholePage = true;
             s.build.setupValues.TotalFrames = 3;
             SetCancelButton(s.build.values, "Cancel Form", "index.htm", "000000");
             s.build.values.ALIGN = "left";
             s.build.values.Italics = "On";
             s.build.values.Bold = "on";
         }},
        {"form_whole_noframe_image.htm", false,
         [](tq::Session& s) {
             s.build.wholePage = true;
             s.build.setupValues.FrameOff = 1;
             s.build.setupValues.BackgroundImagePath = kImage;
         }},
        {"form_fragment_frame_image.htm", false,
         [](tq::Session& s) { s.build.setupValues.BackgroundImagePath = kImage; }},
        // a whole survey writes the second body tag and never a frame
        {"survey_whole_image_cancel.htm", true,
         [](tq::Session& s) {
             s.build.wholePage = true;
             s.build.setupValues.BackgroundImagePath = kImage;
             s.build.setupValues.SubmitButtonColorHex = "FF0000";
             SetCancelButton(s.build.values, "Cancel", "https://www.tarnquill.example/index.htm", "0000FF");
             s.build.values.ALIGN = "center";
             s.build.values.Italics = "off";
             s.build.values.Bold = "off";
         }},
        // a preview has an empty action; a one-character cancel name writes no button
        {"survey_fragment_preview.htm", true,
         [](tq::Session& s) {
             s.build.formAction.clear();
             SetCancelButton(s.build.values, "X", "index.htm", "000000");
         }},
    };
    for (const auto& c : cases) {
        auto s = c.survey ? SurveySession() : FormSession();
        c.edit(*s);
        EXPECT_EQ(WritePage(*s, c.survey ? "Submit Survey" : "Submit Form"), Golden(c.golden)) << c.golden;
    }
}

TEST(PageShell, EmptyImagePathPassesTheSemicolonTestAndWritesAnEmptyBackground)
{
    auto s = FormSession();
    s->build.setupValues.FrameOff = 1;
    s->build.setupValues.BackgroundImagePath.clear();
    const std::string page = WritePage(*s, "Go");
    EXPECT_EQ(page.rfind("<body background=\"\">\r\n<form action=\"formtql.php\" method=\"post\">\r\n", 0), 0u);
}

TEST(PageShell, FrameTablesAreWrittenOncePerBuild)
{
    auto s = FormSession();
    TempDir dir;
    ASSERT_TRUE(s->build.channels[1].open(dir.file("f.htm")));
    tq::html::WriteFrameOpen(*s);
    tq::html::WriteFrameOpen(*s);
    s->build.channels.closeAll();
    const std::string once = ReadFileBytes(dir.file("f.htm"));
    EXPECT_EQ(once.find("<div align=\"center\">"), 0u);
    EXPECT_EQ(once.find("  <center> ", 30), std::string::npos);
}
