// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/text_ops.h"
#include "scripted_port.h"
#include "session.h"
#include "store/recent_history.h"

#include <filesystem>
#include <gtest/gtest.h>

using namespace tq;

namespace {

class Recent : public ::testing::Test
{
  protected:
    void SetUp() override
    {
        s.DataFolder = dir.path();
        test::WriteFileBytes(Forms(), "");
        test::WriteFileBytes(dir.file("SurveyHistory.txt"), "");
    }
    std::string Forms() const { return dir.file("FormHistory.txt"); }
    /// A project file that exists, so the menus keep it.
    std::string Project(const std::string& name)
    {
        const std::string p = dir.file("p/" + name);
        test::WriteFileBytes(p, "");
        return p;
    }
    void Update(const std::string& name)
    {
        s.run.CurrentProjectName = name;
        store::UpdateRecentList(s, port);
    }
    test::TempDir dir;
    test::ScriptedPort port;
    Session s;
};

} // namespace

TEST_F(Recent, SavedNameMovesToTheFrontIgnoringCaseAndTheListKeepsFifteen)
{
    const std::string a = Project("a.fms"), b = Project("b.fms"), c = Project("c.fms");
    test::WriteFileBytes(Forms(), a + "\r\n\r\n" + model::ToUpper(b) + "\r\n" + c + "\r\n");
    Update(b);
    EXPECT_EQ(test::ReadFileBytes(Forms()), b + "\r\n" + a + "\r\n" + c + "\r\n");
    std::string list;
    for (int i = 1; i <= 15; ++i)
        list += Project(std::to_string(i) + ".srv") + "\r\n";
    test::WriteFileBytes(Forms(), list);
    Update(Project("new.srv")); // a survey name, but the mode is FORM
    auto lines = store::SplitFileLines(test::ReadFileBytes(Forms()));
    ASSERT_EQ(lines.size(), 15u);
    EXPECT_EQ(lines[0], dir.file("p/new.srv"));
    EXPECT_EQ(lines[14], dir.file("p/14.srv"));
    EXPECT_EQ(test::ReadFileBytes(dir.file("SurveyHistory.txt")), "");
}

TEST_F(Recent, AForeignLineCutsTheListAndTextBeforeThePathIsDropped)
{
    const std::string a = Project("a.fms"), b = Project("b.fms");
    test::WriteFileBytes(Forms(), "7. " + a + "\r\nD:relative.fms\r\n" + b + "\r\n");
    Update("E:elsewhere.fms"); // may stand on line 1
    EXPECT_EQ(test::ReadFileBytes(Forms()), "E:elsewhere.fms\r\n" + a + "\r\n");
    Update(b); // on line 2 the foreign line ends the list
    EXPECT_EQ(test::ReadFileBytes(Forms()), b + "\r\n");
}

TEST_F(Recent, AMissingFileIsReportedAndTakenOutOfTheShowListOnlyAndTheLinesBehindItStay)
{
    const std::string live = Project("live.fms");
    const std::string dead = dir.file("p/dead.fms");
    test::WriteFileBytes(Forms(), "x " + dead + "\r\n" + live + "\r\n");
    test::WriteFileBytes(dir.file("history.txt"), dir.file("show.shw") + "\r\n" + dead + "\r\n");
    store::RefreshFormList(s, port);
    auto shown = port.messages();
    ASSERT_EQ(shown.size(), 2u); // once for each pass
    EXPECT_TRUE(Said(shown[0],
                     dead + "\rdoes not exist\r\rEdit the History File and remove or update the path by going to "
                            "FILE, RECENT, FORM and EDIT HISTORY",
                     "No such file or directory", Icon::Exclamation));
    EXPECT_EQ(test::ReadFileBytes(dir.file("history.txt")), dir.file("show.shw") + "\r\n");
    EXPECT_EQ(test::ReadFileBytes(Forms()), "x " + dead + "\r\n" + live + "\r\n"); // keeps its dead line
    EXPECT_TRUE(s.run.formMenu[0].visible);
    EXPECT_EQ(s.run.formMenu[0].caption, "1. " + live);
    EXPECT_FALSE(s.run.formMenu[1].visible);

    // without a show list to search, the refresh ends at the dead line
    std::filesystem::remove(dir.file("history.txt"));
    port.shown.clear();
    store::RefreshFormList(s, port);
    EXPECT_EQ(port.messages().size(), 1u);
    EXPECT_FALSE(s.run.formMenu[0].visible);
}
