// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/page_shell.h"
#include "scripted_port.h"
#include "session.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

using tq::test::ReadFileBytes;

namespace {

const std::string kImage = "https://www.tarnquill.example/test/bg.gif";

// The values of a read SetupEntry: frame on, one frame, the sample image flag
// (no image), no cancel button.
std::unique_ptr<tq::Session> MakeSession(bool survey)
{
    auto s = std::make_unique<tq::Session>();
    s->store.state.ProjectMode = survey ? tq::model::Mode::Survey : tq::model::Mode::Form;
    auto& setup = s->build.setupValues;
    setup.FrameOff = 0;
    setup.TotalFrames = 1;
    setup.FrameBorderColorHex = "00CE00";
    setup.FrameColorHex = "004000";
    setup.BackgroundImagePath = ";" + kImage;
    setup.SubmitAlign = survey ? "CENTER" : "LEFT";
    setup.SubmitButtonColorHex = "000000";
    setup.BackgroundColorHex = survey ? "8BAB89" : "";
    s->build.formAction = survey ? "surveytql.php" : "formtql.php";
    return s;
}

void SetCancelButton(tq::write::WorkingValues& v,
                     std::string name,
                     std::string link,
                     std::string colorHex,
                     std::string align,
                     std::string italics,
                     std::string bold)
{
    v.ButtonName = std::move(name);
    v.LinkTo = std::move(link);
    v.DefaultColorHex = std::move(colorHex);
    v.ALIGN = std::move(align);
    v.Italics = std::move(italics);
    v.Bold = std::move(bold);
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
             SetCancelButton(s.build.values, "Cancel Form", "index.htm", "000000", "left", "On", "on");
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
             SetCancelButton(s.build.values, "Cancel", "https://www.tarnquill.example/index.htm", "0000FF", "center",
                             "off", "off");
         }},
        // a preview has an empty action; a one-character cancel name writes no button
        {"survey_fragment_preview.htm", true,
         [](tq::Session& s) {
             s.build.formAction.clear();
             SetCancelButton(s.build.values, "X", "index.htm", "000000", "", "", "");
         }},
    };
    for (const auto& c : cases) {
        auto s = MakeSession(c.survey);
        c.edit(*s);
        tq::test::TempDir dir;
        ASSERT_TRUE(s->build.channels[1].open(dir.file("page.htm")));
        const auto mode = c.survey ? tq::model::Mode::Survey : tq::model::Mode::Form;
        tq::html::WritePageHead(s->build, mode);
        tq::html::WritePageClose(s->build, mode, c.survey ? "Submit Survey" : "Submit Form");
        s->build.channels.closeAll();
        EXPECT_EQ(ReadFileBytes(dir.file("page.htm")),
                  ReadFileBytes(std::string(TQ_GOLDEN_DIR) + "/html/page_shell/" + c.golden))
            << c.golden;
    }
}
