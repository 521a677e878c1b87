// SPDX-License-Identifier: GPL-3.0-or-later
// The page around the Entries: head, frame tables, form tag, wrapper table and
// the page close, compared byte for byte with hand-written golden pages.
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

TEST(PageShell, FormFragmentWithOneFrameAndNoImageLeavesTheInnerTableTagOpen)
{
    auto s = FormSession();
    EXPECT_EQ(WritePage(*s, "Submit Form"), Golden("form_fragment_frame.htm"));
}

TEST(PageShell, WholeFormWithThreeFramesClosesOneLevelAndWritesTheCancelButton)
{
    auto s = FormSession();
    s->build.wholePage = true;
    s->build.setupValues.TotalFrames = 3;
    SetCancelButton(s->build.values, "Cancel Form", "index.htm", "000000");
    s->build.values.ALIGN = "left";
    s->build.values.Italics = "On";
    s->build.values.Bold = "on";
    EXPECT_EQ(WritePage(*s, "Submit Form"), Golden("form_whole_frames3_cancel.htm"));
}

TEST(PageShell, WholeFormWithoutFrameWritesTheBackgroundImage)
{
    auto s = FormSession();
    s->build.wholePage = true;
    s->build.setupValues.FrameOff = 1;
    s->build.setupValues.BackgroundImagePath = kImage;
    EXPECT_EQ(WritePage(*s, "Submit Form"), Golden("form_whole_noframe_image.htm"));
}

TEST(PageShell, FrameWithImageTakesTheFullWidthInnerTableAndTheBodyTag)
{
    auto s = FormSession();
    s->build.setupValues.BackgroundImagePath = kImage;
    EXPECT_EQ(WritePage(*s, "Submit Form"), Golden("form_fragment_frame_image.htm"));
}

TEST(PageShell, WholeSurveyWritesTheSecondBodyTagAndNeverAFrame)
{
    auto s = SurveySession();
    s->build.wholePage = true;
    s->build.setupValues.BackgroundImagePath = kImage;
    s->build.setupValues.SubmitButtonColorHex = "FF0000";
    SetCancelButton(s->build.values, "Cancel", "https://www.tarnquill.example/index.htm", "0000FF");
    s->build.values.ALIGN = "center";
    s->build.values.Italics = "off";
    s->build.values.Bold = "off";
    EXPECT_EQ(WritePage(*s, "Submit Survey"), Golden("survey_whole_image_cancel.htm"));
}

TEST(PageShell, PreviewFragmentHasAnEmptyActionAndAOneCharacterCancelNameWritesNoButton)
{
    auto s = SurveySession();
    s->build.formAction.clear();
    SetCancelButton(s->build.values, "X", "index.htm", "000000");
    EXPECT_EQ(WritePage(*s, "Submit Survey"), Golden("survey_fragment_preview.htm"));
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

TEST(PageShell, WrapperTableFollowsTheSharedAlignment)
{
    auto s = FormSession();
    s->build.values.ALIGN = "right";
    TempDir dir;
    ASSERT_TRUE(s->build.channels[1].open(dir.file("b.htm")));
    tq::html::WriteBlockOpen(*s);
    tq::html::WriteBlockClose(*s);
    s->build.channels.closeAll();
    EXPECT_EQ(ReadFileBytes(dir.file("b.htm")), "<div align=\"right\">\r\n"
                                                "  <center>\r\n"
                                                "  <table border=\"0\" cellpadding=\"0\" width=\"98%\">\r\n"
                                                "    <tr>\r\n"
                                                "      <td width=\"100%\" align=\"right\">\r\n"
                                                "      </td>\r\n"
                                                "    </tr>\r\n"
                                                "  </table>\r\n"
                                                "  </center></div>\r\n"
                                                "<br>\r\n");
}
