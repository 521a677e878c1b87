// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing_fixture.h"
#include "model/attribute_text.h"
#include "model/new_project.h"

#include <gtest/gtest.h>

using namespace tq;
using namespace tq::model;
using test::EditFixture;

namespace {
std::vector<std::string> Page1Names(EditFixture& f)
{
    std::vector<std::string> out;
    for (int r = 0; r < 25; ++r)
        out.push_back(f.name(1, r));
    return out;
}

/// Page 1 with these names in its first rows and in rows 15 and 16, the rest empty.
std::vector<std::string> Page1(std::vector<std::string> top)
{
    top.resize(15);
    top.insert(top.end(), {"Comments Not Required", "Security Code"});
    top.resize(25);
    return top;
}

std::string Stored(std::string_view oneLine)
{
    test::ScriptedPort quiet;
    return NormalizeAttributeText(quiet, oneLine);
}

struct HookLog
{
    int busy = 0;
    bool loading = false;
    std::vector<std::string> calls;

    ModeHooks hooks()
    {
        ModeHooks h;
        h.busyMark = [this] { return busy; };
        h.loadInProgress = [this] { return loading; };
        h.reloadHistoryMenus = [this](std::string_view m) { calls.push_back("history " + std::string(m)); };
        h.refreshStatus = [this] { calls.push_back("status"); };
        return h;
    }
};
} // namespace

TEST(InitNewProject, AFormHasSevenRowsOnPage1)
{
    EditFixture f;
    InitNewProject(f.ctx);
    EXPECT_EQ(Page1Names(f), Page1({"Setup", "Title 1 Single Line", "Subject", "Name", "Email"}));
    EXPECT_EQ(CountFilledRows(f.store), 7);
    EXPECT_EQ(f.at(1, 0).AttributeText, Stored(f.catalogue.SetupTemplate));
    EXPECT_EQ(f.at(1, 3).AttributeText, Stored(CatalogueTemplate(f.catalogue, f.index("Name"))));
    EXPECT_TRUE(f.at(1, 16).EditEnabled);
    EXPECT_FALSE(f.at(1, 5).EditEnabled);
}

TEST(InitNewProject, ASurveyHasEightRowsOnPage1)
{
    EditFixture f("SURVEY");
    f.store.state.CurrentFileName = "/x/old.srv";
    InitNewProject(f.ctx);
    EXPECT_EQ(Page1Names(f), Page1({"Setup", "Title Header", "Survey Intro", "Title 1 Single Line",
                                    "Table Choices Required", "Table Text Required"}));
    EXPECT_EQ(f.store.state.CurrentFileName, "");
    EXPECT_NE(f.at(1, 0).AttributeText.find("[TQL Output File=surveytql.htm]\r\n"), std::string::npos);
}

TEST(InitSetupRow, PutsTheSettingsBackAndRebuildsTheSetupRow)
{
    EditFixture f;
    f.settings.BackgroundImagePath = "https://mine/bg.gif";
    f.settings.FromName = "Me";
    f.put(1, 0, "Name");
    InitSetupRow(f.ctx);
    EXPECT_EQ(f.settings.BackgroundImagePath, ";https://www.tarnquill.example/test/cloudark.gif");
    EXPECT_EQ(f.settings.FromName, ";My Web Page");
    EXPECT_EQ(f.name(1, 0), "Setup");
    EXPECT_NE(f.at(1, 0).AttributeText.find("[FROM=;My Web Page]\r\n"), std::string::npos);
}

TEST(SwitchMode, ClearsEverythingAndFollowsTheMode)
{
    EditFixture f;
    HookLog log;
    InitNewProject(f.ctx);
    f.settings.NumberEachQuestion = 0;
    f.settings.PicturePath = "mine";
    f.port.answer(Answer::Yes);
    EXPECT_EQ(SwitchMode(f.ctx, log.hooks(), "SURVEY", 3, 0), 0);
    EXPECT_EQ(f.store.state.ProjectMode, "SURVEY");
    EXPECT_EQ(CountFilledRows(f.store), 0);
    EXPECT_EQ(f.store.state.SavedSetupName, "Setup");
    EXPECT_EQ(f.settings.FrameOff, 1);
    EXPECT_EQ(f.settings.NumberEachQuestion, 1);
    EXPECT_EQ(f.settings.PicturePath, ";https://www.tarnquill.example/test/cloudark.gif");
    EXPECT_EQ(f.settings.VideoPath, ";https://www.tarnquill.example/test/videos/birds.mp4");
    EXPECT_EQ(f.settings.SubmitAlignDefault, "center");
    EXPECT_EQ(f.settings.SubmitNameDefault, "Submit Survey");
    EXPECT_EQ(f.catalogue.PickLists[0].size(), 35u);
    EXPECT_EQ(f.port.views.back(), View::Page2);
    EXPECT_EQ(log.calls, (std::vector<std::string>{"history SURVEY", "status"}));
    EXPECT_FALSE(f.store.state.SwitchInProgress);
}

TEST(SwitchMode, ARefusedClearIsAbortedButTheModeStaysChanged)
{
    EditFixture f;
    HookLog log;
    InitNewProject(f.ctx);
    f.port.answer(Answer::No);
    EXPECT_EQ(SwitchMode(f.ctx, log.hooks(), "SURVEY", 2, 0), 1);
    EXPECT_EQ(f.store.state.AbortFlag, 1);
    EXPECT_EQ(f.store.state.ProjectMode, "SURVEY");
    EXPECT_EQ(CountFilledRows(f.store), 7);
    EXPECT_TRUE(Said(f.port.last(), "All entries must be cleared before you can switch to the SURVEY page", "ABORTED",
                     Icon::Information));
    EXPECT_TRUE(log.calls.empty());
    EXPECT_FALSE(f.store.state.SwitchInProgress);
    f.port.answer(Answer::No);
    SwitchMode(f.ctx, log.hooks(), "FORM", 2, 0, true);
    EXPECT_EQ(f.port.last().text,
              "That is because all input type colors must be changed to black\rAll entries must be cleared before "
              "you can switch the table off.");
}

TEST(SwitchMode, ASaveOrALoadKeepsTheSubmitValuesAndTheView)
{
    EditFixture f;
    HookLog log;
    log.busy = 1;
    log.loading = true;
    f.settings.SubmitNameDefault = "From the file";
    EXPECT_EQ(SwitchMode(f.ctx, log.hooks(), "SURVEY", 2, 1), 0);
    EXPECT_EQ(f.settings.SubmitNameDefault, "From the file");
    EXPECT_TRUE(f.port.views.empty());
    EXPECT_EQ(log.calls, (std::vector<std::string>{"status"}));
}

TEST(SwitchMode, KeepEntriesLeavesTheRows)
{
    EditFixture f;
    InitNewProject(f.ctx);
    EXPECT_EQ(SwitchMode(f.ctx, {}, "FORM", 1, 1), 0);
    EXPECT_EQ(CountFilledRows(f.store), 7);
    EXPECT_EQ(f.port.views.back(), View::StartPage);
    EXPECT_EQ(f.settings.FrameOff, 0);
}

TEST(CreateNewProject, KeepsTheUsersSetupEntryAcrossModes)
{
    EditFixture f;
    InitNewProject(f.ctx);
    f.at(1, 0).AttributeText = "[FROM=Me]\r\n";
    f.port.answer(Answer::Yes);
    ASSERT_TRUE(CreateNewProject(f.ctx, {}, "SURVEY", 2));
    EXPECT_EQ(f.at(1, 0).AttributeText, "[FROM=Me]\r\n");
    EXPECT_EQ(f.name(1, 5), "Table Text Required");
    EXPECT_FALSE(f.store.state.NewProjectPending);
}

TEST(CreateNewProject, AStoreWithoutASetupRowGetsTheFreshOne)
{
    EditFixture f("FORM");
    ASSERT_TRUE(CreateNewProject(f.ctx, {}, "FORM", 2));
    EXPECT_EQ(f.name(1, 0), "Setup");
    EXPECT_EQ(CountFilledRows(f.store), 7);
}

TEST(SwitchProjectList, GivesTheFreshSetupOfTheNewMode)
{
    EditFixture f;
    InitNewProject(f.ctx);
    f.at(1, 0).AttributeText = "[FROM=Me]\r\n";
    f.port.answer(Answer::Yes);
    ASSERT_TRUE(SwitchProjectList(f.ctx, {}, "SURVEY"));
    EXPECT_NE(f.at(1, 0).AttributeText.find("[TQL Output File=surveytql.htm]"), std::string::npos);
    EXPECT_FALSE(f.store.state.KeepSetupRow);
    f.port.answer(Answer::No);
    EXPECT_FALSE(SwitchProjectList(f.ctx, {}, "FORM"));
    EXPECT_EQ(f.name(1, 5), "Table Text Required"); // refused: the rows stay
}
