// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/titles_lines.h"
#include "scripted_port.h"
#include "session.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>

using tq::test::ReadFileBytes;
using tq::test::ScriptedPort;

// The usual title shade, line, picture and videos are compared within the whole
// builds; these are the variants that only a single Entry shows.
namespace {

std::string Golden(const std::string& name)
{
    return ReadFileBytes(std::string(TQ_GOLDEN_DIR) + "/html/entries/" + name);
}

// Runs `write` with channel 1 on a scratch file and returns what it wrote.
std::string Capture(tq::Session& s, const std::function<void()>& write)
{
    tq::test::TempDir dir;
    EXPECT_TRUE(s.build.channels[1].open(dir.file("out.htm")));
    write();
    s.build.channels.closeAll();
    return ReadFileBytes(dir.file("out.htm"));
}

} // namespace

TEST(EntryWriters, CentredBoldTitleShade)
{
    for (const char* mode : {"FORM", "SURVEY"}) {
        auto s = std::make_unique<tq::Session>();
        s->store.state.ProjectMode = tq::model::ModeOf(mode);
        auto& v = s->build.values;
        v.Title = "Welcome";
        v.TitleShadeWidth = "60%";
        v.ALIGN = "CENTER";
        v.TextColorHex = "0000FF";
        v.TitleSize = "5";
        v.Italics = "OFF";
        v.Bold = "On";
        EXPECT_EQ(Capture(*s, [&] { tq::html::WriteTitleShade(s->build); }), Golden("title_shade_center.htm")) << mode;
    }
}

TEST(EntryWriters, SurveyVideoSuffixesAreTestedApartAndAnUnknownOneIsReported)
{
    const std::pair<const char*, const char*> cases[] = {{"clip.mp4", "video_survey_mp4.htm"},
                                                         {"clip.mp4.avi", "video_survey_mp4_avi.htm"},
                                                         {"clip.wmv.mp4", "video_survey_wmv_mp4.htm"},
                                                         {"https://www.tarnquill.example/clip.mov", nullptr}};
    for (const auto& [path, golden] : cases) {
        SCOPED_TRACE(path);
        auto s = std::make_unique<tq::Session>();
        s->store.state.ProjectMode = tq::model::Mode::Survey;
        auto& v = s->build.values;
        v.ServerPath = path;
        v.ALIGN = "left"; // left by the Entry before: the wrapper table takes it
        v.VideoAlign = "right";
        v.VideoWidth = "320";
        v.VideoHeight = "240";
        v.Autostart = "off";
        v.Loop = "infinite";
        ScriptedPort port;
        EXPECT_EQ(Capture(*s, [&] { tq::html::WriteVideo(s->build, tq::model::Mode::Survey, port); }),
                  golden ? Golden(golden) : "");
        if (golden)
            EXPECT_TRUE(port.shown.empty());
        else
            EXPECT_TRUE(Said(port.last(), std::string(path) + " format is not supported", "ERROR", tq::Icon::Critical));
    }
}

TEST(EntryWriters, AFormPictureAfterAPhpPassEndingInSlotThreeHasNoBreaks)
{
    auto s = std::make_unique<tq::Session>();
    s->store.state.ProjectMode = tq::model::Mode::Form;
    s->build.values.ServerPath = "https://www.tarnquill.example/test/cloudark.gif";
    s->build.values.ALIGN = "center";
    s->build.values.PictureWidth = "200";
    s->build.values.PictureHeight = "100";
    s->build.lastPhpSlot = 3;
    EXPECT_EQ(Capture(*s, [&] { tq::html::WritePicture(s->build, tq::model::Mode::Form); }),
              Golden("picture_survey.htm"));
}
