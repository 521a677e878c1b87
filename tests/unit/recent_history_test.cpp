// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/text_ops.h"
#include "scripted_port.h"
#include "session.h"
#include "store/recent_history.h"

#include <gtest/gtest.h>

using namespace tq;
using store::RecentList;

namespace {

class Recent : public ::testing::Test
{
  protected:
    void SetUp() override
    {
        s.DataFolder = dir.path();
        test::WriteFileBytes(Forms(), "");
        test::WriteFileBytes(Surveys(), "");
    }
    std::string Forms() const { return dir.file("FormHistory.txt"); }
    std::string Surveys() const { return dir.file("SurveyHistory.txt"); }
    /// A project file that exists, so the menus keep it.
    std::string Project(const std::string& name)
    {
        const std::string p = dir.file("p/" + name);
        test::WriteFileBytes(p, "");
        return p;
    }
    test::TempDir dir;
    test::ScriptedPort port;
    Session s;
};

} // namespace

TEST_F(Recent, SavedNameMovesToTheFrontIgnoringCase)
{
    const std::string a = Project("a.fms"), b = Project("b.fms"), c = Project("c.fms");
    test::WriteFileBytes(Forms(), a + "\r\n\r\n" + model::ToUpper(b) + "\r\n" + c + "\r\n");
    s.run.CurrentProjectName = b;
    store::UpdateRecentList(s, port);
    EXPECT_EQ(test::ReadFileBytes(Forms()), b + "\r\n" + a + "\r\n" + c + "\r\n");
    EXPECT_EQ(s.run.formMenu[0].caption, "1. " + b);
    EXPECT_EQ(s.run.formMenu[2].caption, "3. " + c);
    EXPECT_TRUE(s.run.formMenu[2].visible);
    EXPECT_FALSE(s.run.formMenu[3].visible);
    EXPECT_EQ(s.run.formMenu[3].caption, "None");
}

TEST_F(Recent, FifteenEntriesAtMostAndTheModeChoosesTheList)
{
    std::string list;
    for (int i = 1; i <= 15; ++i)
        list += Project(std::to_string(i) + ".srv") + "\r\n";
    test::WriteFileBytes(Forms(), list);
    s.run.CurrentProjectName = Project("new.srv"); // a survey name, but the mode is FORM
    store::UpdateRecentList(s, port);
    auto lines = store::SplitFileLines(test::ReadFileBytes(Forms()));
    ASSERT_EQ(lines.size(), 15u);
    EXPECT_EQ(lines[0], s.run.CurrentProjectName);
    EXPECT_EQ(lines[14], dir.file("p/14.srv"));
    EXPECT_EQ(test::ReadFileBytes(Surveys()), "");
}

TEST_F(Recent, AForeignLineCutsTheListAndLeadingTextIsDropped)
{
    const std::string a = Project("a.fms"), b = Project("b.fms");
    test::WriteFileBytes(Forms(), "7. " + a + "\r\nD:relative.fms\r\n" + b + "\r\n");
    s.run.CurrentProjectName = "E:elsewhere.fms"; // may stand on line 1
    store::UpdateRecentList(s, port);
    EXPECT_EQ(test::ReadFileBytes(Forms()), "E:elsewhere.fms\r\n" + a + "\r\n");
    port.clear();
    // at the next update the foreign line stands on line 2 and ends the list
    s.run.CurrentProjectName = b;
    store::UpdateRecentList(s, port);
    EXPECT_EQ(test::ReadFileBytes(Forms()), b + "\r\n");
}

TEST_F(Recent, AMissingFileIsReportedAndTakenOutOfTheShowListOnly)
{
    const std::string live = Project("live.fms");
    const std::string dead = dir.file("p/dead.fms");
    test::WriteFileBytes(Forms(), "x " + dead + "\r\n" + live + "\r\n");
    test::WriteFileBytes(dir.file("history.txt"), dir.file("show.shw") + "\r\n" + dead + "\r\n");
    store::RefreshFormList(s, port);
    const std::string text =
        dead + "\rdoes not exist\r\rEdit the History File and remove or update the path by going to FILE, "
               "RECENT, FORM and EDIT HISTORY";
    auto shown = port.messages();
    ASSERT_EQ(shown.size(), 2u); // once for each pass
    EXPECT_TRUE(Said(shown[0], text, "File not found", Icon::Exclamation));
    EXPECT_EQ(test::ReadFileBytes(dir.file("history.txt")), dir.file("show.shw") + "\r\n");
    EXPECT_EQ(test::ReadFileBytes(Forms()), "x " + dead + "\r\n" + live + "\r\n"); // keeps its dead line
    EXPECT_FALSE(s.run.formMenu[0].visible);                                       // the refresh ended there
}

TEST_F(Recent, PhotoListBacksUpAndDisablesWithoutAFile)
{
    store::RefreshPhotoList(s, port);
    EXPECT_FALSE(s.run.photoRecentEnabled);
    const std::string show = Project("one.shw");
    store::AppendShowHistory(s, port, show);
    store::AppendShowHistory(s, port, show);
    EXPECT_TRUE(s.run.photoRecentEnabled);
    EXPECT_EQ(s.run.photoMenu[1].caption, "2. " + show);
    EXPECT_EQ(test::ReadFileBytes(dir.file("historybak.txt")), show + "\r\n" + show + "\r\n");
    bool failed = false;
    store::RemoveHistoryLine(dir.file("history.txt"), model::ToUpper("one.SHW"), failed);
    EXPECT_FALSE(failed);
    EXPECT_EQ(test::ReadFileBytes(dir.file("history.txt")), "");
    store::RemoveHistoryLine(dir.file("history.txt"), "x", failed);
    EXPECT_TRUE(failed); // no lines
}

TEST_F(Recent, ChoosingAnEntryOpensItsPath)
{
    const std::string p = Project("pick.fms");
    test::WriteFileBytes(p, "Name\r\n*****\r\n[A=1]\r\n");
    test::WriteFileBytes(Forms(), p + "\r\n");
    store::RefreshFormList(s, port);
    store::ProjectHooks hooks;
    hooks.clearPrompt = [](Session&, UiPort&) { return 0; };
    EXPECT_EQ(store::ChooseRecentEntry(s, port, RecentList::Forms, 1, 1, hooks), 0);
    EXPECT_EQ(s.run.CurrentProjectName, p);
    EXPECT_EQ(s.store.pages[0][0].InputTypeName, "Name");
    EXPECT_EQ(test::ReadFileBytes(Forms()), p + "\r\n");
}
