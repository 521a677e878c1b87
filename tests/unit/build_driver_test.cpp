// SPDX-License-Identifier: GPL-3.0-or-later
#include "compose/build_driver.h"
#include "project_text.h"
#include "scripted_port.h"
#include "session.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <string>

using tq::Answer;
using tq::Buttons;
using tq::Icon;
using tq::compose::BuildOutput;
using tq::test::ReadFileBytes;
using tq::test::ScriptedPort;
using tq::test::TempDir;
using tq::test::WriteFileBytes;

namespace {

struct Project
{
    TempDir web;
    TempDir data;
    std::unique_ptr<tq::Session> s = std::make_unique<tq::Session>();

    explicit Project(const std::string& output = "formtql.htm")
    {
        s->DataFolder = data.path();
        s->store.state.ProjectMode = tq::model::Mode::Form;
        auto& setupRow = s->store.pages[0][0];
        setupRow.InputTypeName = "Setup";
        setupRow.AttributeText = tq::test::SetupEntryText(web.path(), {.output = output});
    }

    void add(int row, const std::string& type, const std::string& text)
    {
        // the row keeps its ordinal as reference number: the build reorders by it
        s->store.pages[0][static_cast<size_t>(row)] = {type, text, std::to_string(row + 1), false,
                                                       tq::model::Highlight::None};
    }

    std::string html() const { return web.file("formtql.htm"); }
    std::string php() const { return web.file("formtql.php"); }
};

const std::string kPageOfSetupOnly = "<form action=\"formtql.php\" method=\"post\">\r\n"
                                     "\r\n"
                                     "<p align=\"LEFT\">\r\n"
                                     "<input type=\"submit\" style=\"color: 000000\" value=\"Submit Form\"></p>\r\n"
                                     "</form>\r\n";

} // namespace

TEST(OutputPaths, BothFilesFollowTheFolderAndTheOutputName)
{
    using namespace tq::compose;
    EXPECT_EQ(ComposeHtmlPath("/srv/web", "formtql.htm"), "/srv/web/formtql.htm");
    EXPECT_EQ(ComposeHtmlPath("/srv/web/", "formtql.htm"), "/srv/web/formtql.htm");
    EXPECT_EQ(ComposeFormAction("formtql.HTM"), "formtql.php");
    EXPECT_EQ(ComposeFormAction("a.htm.htm"), "a.php");
    EXPECT_EQ(ComposeFormAction("page.txt"), "php");
    EXPECT_EQ(ComposePhpPath("/srv/web", "formtql.HTM"), "/srv/web/formtql.php");
    EXPECT_EQ(ComposePhpPath("/srv/web/", "formtql.htm"), "/srv/web//formtql.php");
    EXPECT_EQ(ComposePhpPath("/srv/web", "index.asp"), "/srv/web/php");
}

TEST(BuildDriver, AMissingWebFolderGivesPathErrorAndOpensTheSetupEntry)
{
    Project p;
    const std::string missing = p.web.file("gone");
    p.s->store.pages[0][0].AttributeText = tq::test::SetupEntryText(missing);
    ScriptedPort port;
    BuildOutput(*p.s, port, {});
    EXPECT_EQ(p.s->build.buildError, 1);
    ASSERT_EQ(port.shown.size(), 1u);
    EXPECT_TRUE(
        Said(port.last(),
             "The path to the current web folder does not exist\r\rPath: " + missing +
                 "   does not exist\r\rThe invalid path will now be highlighted. Please correct the error and try "
                 "again",
             "PATH ERROR", Icon::Critical));
    ASSERT_EQ(port.editCalls.size(), 1u);
    EXPECT_EQ(port.editCalls[0].page, 1);
    EXPECT_EQ(port.editCalls[0].row, 0);
    EXPECT_EQ(port.busyCalls.back(), false);
}

TEST(BuildDriver, AnEmptyFolderOrAReminderPastOneAsksNothing)
{
    Project p;
    ScriptedPort port;
    BuildOutput(*p.s, port, {});
    EXPECT_EQ(p.s->build.buildError, 0);
    EXPECT_TRUE(port.messages().empty());
    EXPECT_EQ(p.s->build.formAction, "formtql.php");
    EXPECT_EQ(ReadFileBytes(p.html()), kPageOfSetupOnly);
    EXPECT_TRUE(std::filesystem::exists(p.php()));
    WriteFileBytes(p.html(), "old page");
    WriteFileBytes(p.php(), "old script");
    p.s->build.reminderCounter = 2;
    BuildOutput(*p.s, port, {});
    EXPECT_TRUE(port.shown.empty());
    EXPECT_EQ(ReadFileBytes(p.html()), kPageOfSetupOnly);
    EXPECT_NE(ReadFileBytes(p.php()), "old script");
}

TEST(BuildDriver, ExistingFilesAreReplacedAfterNoToTheFolderAndYesToTheDuplicate)
{
    Project p;
    WriteFileBytes(p.html(), "old page");
    WriteFileBytes(p.php(), "old script");
    ScriptedPort port;
    port.answer(Answer::No);
    port.answer(Answer::Yes);
    BuildOutput(*p.s, port, {});
    ASSERT_EQ(port.shown.size(), 2u);
    const auto& folder = port.shown[0];
    EXPECT_EQ(folder.title, "EDIT SETUP");
    EXPECT_EQ(folder.buttons, Buttons::YesNoCancel);
    EXPECT_EQ(folder.defaultButton, 2);
    EXPECT_EQ(folder.text, p.web.path() +
                               "\r is the current folder where all the files that Tarnquill creates will be stored\r\r"
                               "Do you want to change the folder path?");
    const auto& duplicate = port.shown[1];
    EXPECT_EQ(duplicate.title, "Duplicate File");
    EXPECT_EQ(duplicate.buttons, Buttons::YesNo);
    EXPECT_EQ(duplicate.text, p.php() + "\r and \r" + p.html() +
                                  "\r exist\r\rThese are output files that Tarnquill previously created.\r\r"
                                  "Do you want to replace them with the new created Tarnquill output files?");
    EXPECT_EQ(p.s->build.buildError, 0);
    EXPECT_EQ(ReadFileBytes(p.html()), kPageOfSetupOnly);
}

TEST(BuildDriver, OtherAnswersKeepTheOldFiles)
{
    const struct
    {
        const char* name;
        std::vector<Answer> answers;
        size_t shown;
        std::string editKey;
    } cases[] = {{"No to replacing says CHANGE FILE", {Answer::No, Answer::No}, 3, ""},
                 {"Yes to changing the folder opens its line", {Answer::Yes}, 1, "DRIVE FOLDER PATH"},
                 {"Cancel leaves without a word", {Answer::Cancel}, 1, ""}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Project p;
        WriteFileBytes(p.html(), "old page");
        WriteFileBytes(p.php(), "old script");
        ScriptedPort port;
        for (Answer a : c.answers)
            port.answer(a);
        BuildOutput(*p.s, port, {});
        EXPECT_EQ(p.s->build.cancelled, c.answers.back() == Answer::Cancel);
        EXPECT_EQ(p.s->build.buildError, p.s->build.cancelled ? 0 : 1);
        ASSERT_EQ(port.shown.size(), c.shown);
        EXPECT_EQ(port.editCalls.empty() ? "" : port.editCalls[0].key, c.editKey);
        EXPECT_EQ(ReadFileBytes(p.html()), "old page");
        EXPECT_EQ(ReadFileBytes(p.php()), "old script");
        if (c.answers.size() == 2) {
            EXPECT_TRUE(
                Said(port.last(), "Change " + p.php() + " in setup and try again", "CHANGE FILE", Icon::Exclamation));
        }
    }
}

TEST(BuildDriver, PreviewWritesToTheDataFolderAndLeavesTheWebFolderAlone)
{
    Project p;
    WriteFileBytes(p.html(), "old page");
    p.s->store.state.PreviewSlots[0] = {"Blank Line", "[New Line=0]\r\n"};
    ScriptedPort port;
    BuildOutput(*p.s, port, {tq::compose::BuildKind::EditPreview});
    EXPECT_EQ(p.s->build.buildError, 0);
    EXPECT_TRUE(port.shown.empty());
    const std::string page = ReadFileBytes(p.data.file("Preview.htm"));
    EXPECT_EQ(page.rfind("<html>\r\n<body>\r\n\r\n<form action=\"\" method=\"post\">\r\n", 0), 0u);
    EXPECT_FALSE(std::filesystem::exists(p.data.file("Preview.php"))); // no script for an Entry preview
    EXPECT_EQ(ReadFileBytes(p.html()), "old page");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(p.web.path()), {}), 1);
}

namespace {

std::string Golden(const std::string& name)
{
    return ReadFileBytes(std::string(TQ_GOLDEN_DIR) + "/html/builds/" + name);
}

const std::string kTitleShade = "[Title=Our Services\\nand Prices] [Info: t]\r\n[Title Size=4] [Info: s]\r\n"
                                "[Title Shade Width=100%] [Info: w]\r\n[Height=34] [Info: h]\r\n"
                                "[Align=left] [Choices=l]\r\n[Italics=on] [Info: i]\r\n[Bold=off] [Info: b]\r\n"
                                "[Text Color=0] [Info: c]\r\n";
const std::string kLine = "[Line Width=50%] [Info: width]\r\n[Line Size=2] [Info: size]\r\n"
                          "[Align=center] [Choices=left,right,center]\r\n[Line Color=255] [Choices=colour]\r\n";
const std::string kBlank = "[New Line=3] [Info: n]\r\n";
const std::string kPicture = "[Server Picture Path=https://www.tarnquill.example/test/cloudark.gif] [Info: p]\r\n"
                             "[Align=center] [Choices=l]\r\n[Picture Width=200] [Info: w]\r\n"
                             "[Picture Height=100] [Info: h]\r\n";

std::string
Video(const std::string& path, const std::string& align, const std::string& autostart, const std::string& loop)
{
    return "[Server Video Path=" + path + "] [Info: path]\r\n[Align=" + align +
           "] [Choices=l]\r\n[Video Width=320] [Info: w]\r\n[Video Height=240] [Info: h]\r\n[Autostart=" + autostart +
           "] [Choices=on,off]\r\n[loop=" + loop + "] [Choices=1 to 9]\r\n";
}

} // namespace

TEST(WholeBuild, FormWithTitlesLinesPicturesAndVideosInAFrame)
{
    Project p;
    p.s->store.pages[0][0].AttributeText = tq::test::SetupEntryText(p.web.path(), {.frame = "YES"});
    p.add(1, "Title Shade", kTitleShade);
    p.add(2, "Horizontal Line", kLine);
    p.add(3, "Blank Line", kBlank);
    p.add(4, "Picture", kPicture);
    p.add(5, "Video", Video("https://www.tarnquill.example/test/videos/clip.wmv", "center", "ON", "1"));
    ScriptedPort port;
    tq::compose::CreateFormHTMLCode(*p.s, port);
    EXPECT_TRUE(port.shown.empty());
    EXPECT_EQ(ReadFileBytes(p.html()), Golden("form_whole_non_questions.htm"));
}

TEST(WholeBuild, SurveyPutsVideosAndPicturesInTheWrapperTable)
{
    Project p("surveytql.htm");
    p.s->store.state.ProjectMode = tq::model::Mode::Survey;
    p.s->store.pages[0][0].AttributeText = tq::test::SetupEntryText(
        p.web.path(), {.output = "surveytql.htm", .frame = "YES", .lead = "[Background Color=9022343] [Info: c]\r\n"});
    p.add(1, "Title Shade", kTitleShade);
    p.add(2, "Video", Video("clip.avi", "right", "off", "infinite"));
    p.add(3, "Picture", kPicture);
    p.add(4, "Blank Line", kBlank);
    ScriptedPort port;
    tq::compose::CreateFormHTMLCode(*p.s, port);
    EXPECT_TRUE(port.shown.empty());
    EXPECT_EQ(ReadFileBytes(p.web.file("surveytql.htm")), Golden("survey_whole_non_questions.htm"));
}

TEST(WholeBuild, ACountPastItsTableStopsWithAnInternalError)
{
    Project p;
    p.add(1, "Blank Line", "[New Line=40000] [Info: n]\r\n");
    ScriptedPort port;
    BuildOutput(*p.s, port, {});
    EXPECT_EQ(p.s->build.buildError, 1);
    ASSERT_FALSE(port.messages().empty());
    EXPECT_EQ(port.messages().back().title, "INTERNAL ERROR");
    EXPECT_EQ(port.messages().back().icon, Icon::Critical);
    EXPECT_FALSE(std::filesystem::exists(p.php()));
}

namespace {

// The default stored text of a type, with its Required answer turned to no.
std::string NotRequired(const std::string& mode, const std::string& file)
{
    std::string text = ReadFileBytes(std::string(TQ_GOLDEN_DIR) + "/templates/" + mode + "/" + file + ".txt");
    const std::string yes = "[Required=yes]";
    if (const size_t at = text.find(yes); at != std::string::npos)
        text.replace(at, yes.size(), "[Required=no]");
    return text;
}

// The script's validation lines: between the banner and the fixed tail.
std::string ValidationLines(const std::string& script)
{
    const std::string banner = "/* Validation Code */\r\n/*******************/\r\n\r\n";
    const size_t from = script.find(banner);
    const size_t to = script.find("\r\n/***********************************/\r\n/* Get Public IP");
    if (from == std::string::npos || to == std::string::npos || to < from)
        return "no validation section in:\n" + script;
    return script.substr(from + banner.size(), to - from - banner.size());
}

} // namespace

// A Followup sets no condition field in the page pass: a not-required
// Condition keeps the field the page pass left, which names the Condition
// that was written last, never a Followup.
TEST(WholeBuild, FollowupsOfNotRequiredConditionsNameTheLastConditionOfThePagePass)
{
    for (const std::string mode : {"form", "survey"}) {
        SCOPED_TRACE(mode);
        const bool survey = mode == "survey";
        const std::string output = survey ? "surveytql.htm" : "formtql.htm";
        const std::string script = survey ? "surveytql.php" : "formtql.php";
        {
            Project p(output);
            p.s->store.state.ProjectMode = survey ? tq::model::Mode::Survey : tq::model::Mode::Form;
            p.add(1, "Condition With Comment", NotRequired(mode, "condition_with_comment"));
            p.add(2, "Followup With Multiple Choices", NotRequired(mode, "followup_with_multiple_choices"));
            ScriptedPort port;
            tq::compose::CreateFormHTMLCode(*p.s, port);
            EXPECT_TRUE(port.shown.empty());
            EXPECT_EQ(ValidationLines(ReadFileBytes(p.web.file(script))),
                      ReadFileBytes(std::string(TQ_GOLDEN_DIR) + "/php/condition_pairs/pair_not_required.php"));
        }
        {
            Project p(output);
            p.s->store.state.ProjectMode = survey ? tq::model::Mode::Survey : tq::model::Mode::Form;
            p.add(1, "Condition With Dropdown", NotRequired(mode, "condition_with_dropdown"));
            p.add(2, "Followup With Dropdown", NotRequired(mode, "followup_with_dropdown"));
            // behind Page 1's rows by number: the build's reordering keeps them last
            auto& page2 = p.s->store.pages[1];
            page2[0] = {"Condition With Comment", NotRequired(mode, "condition_with_comment"), "4", false,
                        tq::model::Highlight::None};
            page2[1] = {"Followup With Multiple Choices", NotRequired(mode, "followup_with_multiple_choices"), "5",
                        false, tq::model::Highlight::None};
            ScriptedPort port;
            tq::compose::CreateFormHTMLCode(*p.s, port);
            EXPECT_TRUE(port.shown.empty());
            EXPECT_EQ(ValidationLines(ReadFileBytes(p.web.file(script))),
                      ReadFileBytes(std::string(TQ_GOLDEN_DIR) + "/php/condition_pairs/later_followup_on_page_2.php"));
        }
    }
}
