// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/dispatch.h"
#include "html/titles_lines.h"
#include "model/attribute_text.h"
#include "scripted_port.h"
#include "session.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>

using tq::build::PhpWriter;
using tq::html::DispatchRow;
using tq::html::EntryWriter;
using tq::html::LookUpEntry;
using tq::test::ReadFileBytes;
using tq::test::ScriptedPort;
using tq::test::TempDir;

namespace {

std::string Golden(const std::string& name)
{
    return ReadFileBytes(std::string(TQ_GOLDEN_DIR) + "/html/entries/" + name);
}

std::unique_ptr<tq::Session> MakeSession(const std::string& mode)
{
    auto s = std::make_unique<tq::Session>();
    s->store.state.ProjectMode = mode;
    return s;
}

// Runs `write` with channel 1 on a scratch file and returns what it wrote.
std::string Capture(tq::Session& s, const std::function<void()>& write)
{
    TempDir dir;
    const std::string path = dir.file("out.htm");
    EXPECT_TRUE(s.build.channels[1].open(path));
    write();
    s.build.channels.closeAll();
    return ReadFileBytes(path);
}

void SetVideo(tq::build::WorkingValues& v, const std::string& path)
{
    v.ServerPath = path;
    v.ALIGN = "left"; // left by the Entry before: the wrapper table takes it
    v.VideoAlign = "right";
    v.VideoWidth = "320";
    v.VideoHeight = "240";
    v.Autostart = "off";
    v.Loop = "infinite";
}

void SetPicture(tq::build::WorkingValues& v)
{
    v.ServerPath = "https://www.tarnquill.example/test/cloudark.gif";
    v.ALIGN = "center";
    v.PictureWidth = "200";
    v.PictureHeight = "100";
}

class BothModes : public ::testing::TestWithParam<std::string>
{
};

} // namespace

TEST(DispatchTable, NamesAreComparedUpperCasedAndWhole)
{
    EXPECT_EQ(LookUpEntry("name").writer, EntryWriter::Text);
    EXPECT_EQ(LookUpEntry("Horizontal Line").writer, EntryWriter::HorizontalLine);
    EXPECT_EQ(LookUpEntry("Horizontal Line").php, PhpWriter::None);
    EXPECT_EQ(LookUpEntry("TITLE").writer, EntryWriter::None);
    EXPECT_EQ(LookUpEntry("Name ").writer, EntryWriter::None);
    EXPECT_EQ(LookUpEntry("Setup").writer, EntryWriter::None);
    EXPECT_EQ(LookUpEntry("Nonsense Type").writer, EntryWriter::None);
}

TEST(DispatchTable, ConditionFieldIsSetByChoicesAndConditionsButNotTablesNorSurveyConditionChoices)
{
    using tq::html::SetsConditionField;
    EXPECT_TRUE(SetsConditionField(LookUpEntry("Question YesNo Required").writer, true));
    EXPECT_TRUE(SetsConditionField(LookUpEntry("Download Files").writer, false));
    EXPECT_TRUE(SetsConditionField(LookUpEntry("Condition With Dropdown").writer, true));
    EXPECT_TRUE(SetsConditionField(LookUpEntry("Condition With Multiple Choices").writer, false));
    EXPECT_FALSE(SetsConditionField(LookUpEntry("Condition With Multiple Choices").writer, true));
    EXPECT_FALSE(SetsConditionField(LookUpEntry("Table Text Required").writer, false));
    EXPECT_FALSE(SetsConditionField(LookUpEntry("Table Choices Required").writer, true));
    EXPECT_FALSE(SetsConditionField(LookUpEntry("Name").writer, false));
}

TEST_P(BothModes, HorizontalLineAndTitleShade)
{
    auto s = MakeSession(GetParam());
    auto& v = s->build.values;
    v.LineSize = "2";
    v.LineAlign = "center";
    v.LineWidth = "50%";
    v.LineColorHex = "FF0000";
    EXPECT_EQ(Capture(*s, [&] { tq::html::WriteHorizontalLine(*s); }), Golden("horizontal_line.htm"));
    v.Title = "Our Services\\nand Prices";
    v.TitleShadeWidth = "100%";
    v.ALIGN = "left";
    v.TextColorHex = "000000";
    v.TitleSize = "4";
    v.Italics = "on";
    v.Bold = "off";
    EXPECT_EQ(Capture(*s, [&] { tq::html::WriteTitleShade(*s); }), Golden("title_shade_left.htm"));
    v.Title = "Welcome";
    v.TitleShadeWidth = "60%";
    v.ALIGN = "CENTER";
    v.TextColorHex = "0000FF";
    v.TitleSize = "5";
    v.Italics = "OFF";
    v.Bold = "On";
    EXPECT_EQ(Capture(*s, [&] { tq::html::WriteTitleShade(*s); }), Golden("title_shade_center.htm"));
}

TEST_P(BothModes, BlankLineBreaksAndAnUnknownVideoSuffix)
{
    auto s = MakeSession(GetParam());
    s->build.values.NewLine = "3";
    EXPECT_EQ(Capture(*s, [&] { tq::html::WriteBlankLine(*s); }), Golden("blank_line_3.htm"));
    s->build.values.NewLine = "0";
    EXPECT_EQ(Capture(*s, [&] { tq::html::WriteBlankLine(*s); }), "");
    s->build.values.NewLine = "-2";
    EXPECT_EQ(Capture(*s, [&] { tq::html::WriteBlankLine(*s); }), "");
    s->build.values.NewLine = "40000"; // past the format's counter
    EXPECT_THROW(Capture(*s, [&] { tq::html::WriteBlankLine(*s); }), tq::model::InternalError);
    ScriptedPort port;
    SetVideo(s->build.values, "https://www.tarnquill.example/clip.mov");
    EXPECT_EQ(Capture(*s, [&] { tq::html::WriteVideo(*s, port); }), "");
    ASSERT_EQ(port.shown.size(), 1u);
    EXPECT_TRUE(Said(port.last(), "https://www.tarnquill.example/clip.mov format is not supported", "ERROR",
                     tq::Icon::Critical));
    EXPECT_EQ(s->build.buildError, 0);
    port.clear();
    SetVideo(s->build.values, "none");
    EXPECT_EQ(Capture(*s, [&] { tq::html::WriteVideo(*s, port); }), "");
    EXPECT_TRUE(port.shown.empty());
}

INSTANTIATE_TEST_SUITE_P(Modes, BothModes, ::testing::Values("FORM", "SURVEY"));

TEST(VideoWriter, FormWritesTheVideoOnceWithoutWrapper)
{
    auto s = MakeSession("FORM");
    ScriptedPort port;
    auto& v = s->build.values;
    SetVideo(v, "https://www.tarnquill.example/test/videos/clip.wmv");
    v.VideoAlign = "center";
    v.Autostart = "ON";
    v.Loop = "1";
    EXPECT_EQ(Capture(*s, [&] { tq::html::WriteVideo(*s, port); }), Golden("video_form_wmv.htm"));
}

TEST(VideoWriter, SurveySuffixTestsAreIndependentAndAnMp4LeavesTheWrapperOpen)
{
    auto s = MakeSession("SURVEY");
    ScriptedPort port;
    const struct
    {
        const char* path;
        const char* golden;
    } cases[] = {
        {"clip.avi", "video_survey_avi.htm"},
        {"clip.mp4", "video_survey_mp4.htm"},
        {"clip.mp4.avi", "video_survey_mp4_avi.htm"},
        {"clip.wmv.mp4", "video_survey_wmv_mp4.htm"},
    };
    for (const auto& c : cases) {
        SetVideo(s->build.values, c.path);
        EXPECT_EQ(Capture(*s, [&] { tq::html::WriteVideo(*s, port); }), Golden(c.golden)) << c.path;
    }
    EXPECT_TRUE(port.shown.empty());
}

TEST(PictureWriter, FormBreaksDependOnTheLastPhpSlotSurveysHaveNone)
{
    auto s = MakeSession("FORM");
    SetPicture(s->build.values);
    s->build.lastPhpSlot = 0; // the first build of a run
    EXPECT_EQ(Capture(*s, [&] { tq::html::WritePicture(*s); }), Golden("picture_form_first_build.htm"));
    s->build.lastPhpSlot = 5;
    EXPECT_EQ(Capture(*s, [&] { tq::html::WritePicture(*s); }), Golden("picture_form_first_build.htm"));
    s->build.lastPhpSlot = 3;
    EXPECT_EQ(Capture(*s, [&] { tq::html::WritePicture(*s); }), Golden("picture_survey.htm"));
    auto survey = MakeSession("SURVEY");
    SetPicture(survey->build.values);
    EXPECT_EQ(Capture(*survey, [&] { tq::html::WritePicture(*survey); }), Golden("picture_survey.htm"));
    survey->build.values.ServerPath = "NONE";
    EXPECT_EQ(Capture(*survey, [&] { tq::html::WritePicture(*survey); }), "");
}

// Through the dispatcher: the attributes are read from the Entry's text first.
namespace {

const std::string kLineText = "[Line Width=50%] [Info: width]\r\n[Line Size=2] [Info: size]\r\n"
                              "[Align=center] [Choices=left,right,center]\r\n[Line Color=255] [Choices=colour]\r\n";

const std::string kVideoText = "[Server Video Path=clip.avi] [Info: path]\r\n[Align=right] [Choices=left]\r\n"
                               "[Video Width=320] [Info: w]\r\n[Video Height=240] [Info: h]\r\n"
                               "[Autostart=off] [Choices=on,off]\r\n[loop=infinite] [Choices=1 to 9]\r\n";

// A session whose SetupEntry was read: no global overrides.
std::unique_ptr<tq::Session> ReadySession(const std::string& mode)
{
    auto s = MakeSession(mode);
    s->build.setupValues.GlobalAlign = "NONE";
    s->build.setupValues.GlobalTextColor = "NONE";
    return s;
}

} // namespace

TEST(DispatchEntry, HorizontalLineIsReadAndWrittenInTheHtmlPassOnly)
{
    auto s = ReadySession("FORM");
    ScriptedPort port;
    auto run = [&](int pass) {
        return Capture(*s, [&] { tq::html::DispatchEntry(*s, port, pass, "horiz3", "Horizontal Line", kLineText); });
    };
    EXPECT_EQ(run(1), Golden("horizontal_line.htm"));
    EXPECT_EQ(run(2), "");
    EXPECT_TRUE(port.shown.empty());
    auto right = ReadySession("FORM"); // a global alignment reaches the line
    right->build.setupValues.GlobalAlign = "right";
    const std::string out =
        Capture(*right, [&] { tq::html::DispatchEntry(*right, port, 1, "horiz3", "horizontal line", kLineText); });
    EXPECT_NE(out.find(" align = \"right\" Width = \"50%\""), std::string::npos);
}

TEST(DispatchEntry, AVideosAlignFillsOnlyTheVideoAlignmentAndTheWrapperKeepsTheSharedOne)
{
    auto s = ReadySession("SURVEY");
    s->build.values.ALIGN = "left"; // left behind by the Entry before
    ScriptedPort port;
    EXPECT_EQ(Capture(*s, [&] { tq::html::DispatchEntry(*s, port, 1, "video5", "Video", kVideoText); }),
              Golden("video_survey_avi.htm"));
}

TEST(DispatchEntry, AnUnknownTypeOrAFaultyEntryWritesNothing)
{
    auto s = ReadySession("FORM");
    ScriptedPort port;
    EXPECT_EQ(Capture(*s, [&] { tq::html::DispatchEntry(*s, port, 1, "fancy5", "Fancy Widget", "[Title=x]"); }), "");
    EXPECT_EQ(s->build.buildError, 5);
    EXPECT_TRUE(port.shown.empty());
    auto faulty = ReadySession("FORM");
    const std::string text = "[Server Picture Path=c:\\pics\\a.gif] [Info: p]\r\n[Align=left] [Choices=l]\r\n"
                             "[Picture Width=20] [Info: w]\r\n[Picture Height=10] [Info: h]\r\n";
    EXPECT_EQ(Capture(*faulty, [&] { tq::html::DispatchEntry(*faulty, port, 1, "pictu3", "Picture", text); }), "");
    EXPECT_EQ(faulty->build.buildError, 1);
    ASSERT_FALSE(port.shown.empty());
    EXPECT_EQ(port.last().title, "ERROR");
}

TEST(DispatchEntry, EntryValuesAreClearedBeforeEachEntry)
{
    tq::build::WorkingValues v;
    v.Title = "t";
    v.DefaultValue = "d";
    v.REQ = "yes";
    v.Choices.push("a");
    v.ALIGN = "center";
    v.ButtonName = "Cancel";
    tq::html::ClearEntryValues(v);
    EXPECT_TRUE(v.Title.empty());
    EXPECT_TRUE(v.DefaultValue.empty());
    EXPECT_TRUE(v.REQ.empty());
    EXPECT_EQ(v.Choices.count(), 0);
    // what the page close reads stays from Entry to Entry
    EXPECT_EQ(v.ALIGN, "center");
    EXPECT_EQ(v.ButtonName, "Cancel");
}
