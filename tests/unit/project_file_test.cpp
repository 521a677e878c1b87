// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/text_ops.h"
#include "scripted_port.h"
#include "session.h"
#include "store/project_file.h"
#include "store/recent_history.h"

#include <filesystem>
#include <gtest/gtest.h>

using namespace tq;
using store::LineReader;

namespace {

const std::string kStars = "********************************";

void Put(Session& s, int page, int row, std::string type, std::string text)
{
    auto& e = s.store.pages[static_cast<size_t>(page - 1)][static_cast<size_t>(row)];
    e.InputTypeName = std::move(type);
    e.AttributeText = std::move(text);
}

const model::Entry& At(const Session& s, int page, int row)
{
    return s.store.pages[static_cast<size_t>(page - 1)][static_cast<size_t>(row)];
}

Session Load(const std::string& bytes)
{
    Session s;
    LineReader in = store::ReaderOf(bytes);
    store::ReadEntries(s.store, in);
    return s;
}

} // namespace

TEST(ProjectFile, WritesTheFramedLayoutByteForByte)
{
    Session s;
    Put(s, 1, 0, "Setup", "[A=1]\r\n[B=2]\r\n\r\n");
    Put(s, 1, 3, "Name", "[Title=x]\r\n");
    Put(s, 1, 4, "[continued", "[More=y]\r\n");
    Put(s, 2, 0, "Email", "[Title=e]\r\n[Size=3]\r\n");
    Put(s, 3, 24, "Comments", "");
    const std::string raw = store::WriteEntries(s.store);
    EXPECT_EQ(raw, ">>Setup\r\n[A=1]\r\n[B=2]\r\n\r\n>>Name\r\n[Title=x]\r\n[More=y]\r\n"
                   ">>Email\r\n-[Title=e]\r\n[Size=3]\r\n>>Comments\r\n");
    const std::string expected = kStars + "\r\nSetup\r\n" + kStars + "\r\n\r\n" + "[A=1]\r\n[B=2]\r\n\r\n" + kStars +
                                 "\r\nName\r\n" + kStars + "\r\n\r\n" + "[Title=x]\r\n[More=y]\r\n" + "\r\n" + kStars +
                                 "\r\nEmail\r\n" + kStars + "\r\n\r\n" + "-[Title=e]\r\n[Size=3]\r\n" + "\r\n" +
                                 kStars + "\r\nComments\r\n" + kStars + "\r\n\r\n";
    EXPECT_EQ(store::FormatProjectFile(raw), expected);
    EXPECT_EQ(store::FormatProjectFile(""), "");
}

TEST(ProjectFile, RoundTripRegroupsLinesAndGrowsThePage2Dash)
{
    Session s;
    Put(s, 1, 0, "Setup", "[A=1]\r\n[B=2]\r\n\r\n[C=3]\r\n[D=4]\r\n\r\n");
    Put(s, 1, 5, "Name", "[A=1]\r\n[B=2]\r\n[C=3]\r\n\r\n[D=4]\r\n");
    Put(s, 2, 7, "Email", "[Title=e]\r\n[Size=3]\r\n\r\n");
    const std::string first = store::FormatProjectFile(store::WriteEntries(s.store));
    Session back = Load(first);
    // rows return by position: the gap closes and Page 2's row lands on Page 1
    EXPECT_EQ(At(back, 1, 0).AttributeText, "[A=1]\r\n[B=2]\r\n\r\n[C=3]\r\n[D=4]\r\n\r\n");
    EXPECT_EQ(At(back, 1, 1).InputTypeName, "Name");
    EXPECT_EQ(At(back, 1, 1).AttributeText, "[A=1]\r\n[B=2]\r\n\r\n[C=3]\r\n[D=4]\r\n\r\n");
    EXPECT_EQ(At(back, 1, 2).InputTypeName, "Email");
    EXPECT_EQ(At(back, 1, 2).AttributeText, "-[Title=e]\r\n[Size=3]\r\n\r\n");
    EXPECT_TRUE(At(back, 1, 5).InputTypeName.empty());
    EXPECT_TRUE(At(back, 2, 7).InputTypeName.empty());
    // the Setup row, grouped two to a group, saves the same lines again
    const std::string second = store::FormatProjectFile(store::WriteEntries(back.store));
    EXPECT_EQ(second.substr(0, 120), first.substr(0, 120));
    // moved back to Page 2 the row collects one more "-" at every save
    Put(back, 2, 0, "Email", At(back, 1, 2).AttributeText);
    Put(back, 1, 2, "", "");
    Session again = Load(store::FormatProjectFile(store::WriteEntries(back.store)));
    EXPECT_EQ(At(again, 1, 2).AttributeText, "--[Title=e]\r\n[Size=3]\r\n\r\n");
}

TEST(ProjectFile, ATwentySixthRowPutsPage2OutOfStep)
{
    Session s;
    for (int r = 0; r < 25; ++r)
        Put(s, 1, r, "T" + std::to_string(r), "[A=" + std::to_string(r) + "]\r\n[B=x]\r\n\r\n");
    Put(s, 3, 0, "Extra1", "[E=1]\r\n[F=1]\r\n\r\n");
    Put(s, 3, 1, "Extra2", "[E=2]\r\n[F=2]\r\n\r\n");
    Session back = Load(store::FormatProjectFile(store::WriteEntries(s.store)));
    for (int r = 0; r < 25; ++r) {
        EXPECT_EQ(At(back, 1, r).InputTypeName, "T" + std::to_string(r));
        EXPECT_EQ(At(back, 1, r).AttributeText, At(s, 1, r).AttributeText);
    }
    std::vector<std::string> page2;
    for (int r = 0; r < 4; ++r)
        page2.insert(page2.end(), {At(back, 2, r).InputTypeName, At(back, 2, r).AttributeText});
    EXPECT_EQ(page2, (std::vector<std::string>{"Extra1", "", "", "[E=1]\r\n[F=1]\r\n\r\n", "Extra2", "", "",
                                               "[E=2]\r\n[F=2]\r\n\r\n"}));
}

TEST(ProjectFile, ReaderQuirks)
{
    // a type line beginning with "*****" on Page 1 is read as a marker
    Session s = Load("*****odd\r\nName\r\n" + kStars + "\r\n\r\n[A=1]\r\n");
    EXPECT_EQ(At(s, 1, 0).InputTypeName, "Name");
    EXPECT_EQ(At(s, 1, 0).AttributeText, "[A=1]\r\n");
    // lone LF reads like CR LF; a last line with no line end counts
    Session lf = Load(kStars + "\nName\n" + kStars + "\n\n[A=1]\n[B=2]");
    EXPECT_EQ(At(lf, 1, 0).AttributeText, "[A=1]\r\n[B=2]\r\n\r\n");
    // an empty Page 2 text leaves a bare "-": the next row joins its line
    Session p2;
    Put(p2, 2, 0, "Blank", "");
    Put(p2, 2, 1, "Lost", "[A=1]\r\n");
    EXPECT_EQ(store::WriteEntries(p2.store), ">>Blank\r\n->>Lost\r\n-[A=1]\r\n");
    Session back = Load(store::FormatProjectFile(store::WriteEntries(p2.store)));
    EXPECT_EQ(At(back, 1, 0).InputTypeName, "Blank");
    EXPECT_EQ(At(back, 1, 0).AttributeText, "->>Lost\r\n-[A=1]\r\n\r\n");
    EXPECT_TRUE(At(back, 1, 1).InputTypeName.empty());
}

TEST(ProjectFile, EmptyAndBinaryFilesLoadWithoutComplaint)
{
    Session s;
    Put(s, 1, 0, "Setup", "[A=1]\r\n");
    LineReader empty = store::ReaderOf("");
    store::ReadEntries(s.store, empty);
    EXPECT_EQ(At(s, 1, 0).InputTypeName, "Setup");
    std::string binary;
    for (int i = 0; i < 4096; ++i)
        binary += static_cast<char>((i * 7919) & 0xff);
    Session b = Load(binary);
    int filled = 0;
    for (auto& page : b.store.pages)
        for (auto& e : page)
            filled += e.InputTypeName.empty() ? 0 : 1;
    EXPECT_GT(filled, 0); // lines of text, taken as type lines
}

class ProjectFlow : public ::testing::Test
{
  protected:
    void SetUp() override
    {
        s.DataFolder = dir.path();
        test::WriteFileBytes(dir.file("FormHistory.txt"), "");
        test::WriteFileBytes(dir.file("SurveyHistory.txt"), "");
        Put(s, 1, 0, "Setup", "[A=1]\r\n[B=2]\r\n\r\n");
        Put(s, 1, 1, "Name", "[Title=n]\r\n");
    }
    test::TempDir dir;
    test::ScriptedPort port;
    Session s;
};

TEST_F(ProjectFlow, SaveAsksBeforeReplacingAndKeepsTheFileOnNo)
{
    const std::string path = dir.file("one.fms");
    port.file(path);
    ASSERT_TRUE(store::SaveProject(s, port, "fms"));
    EXPECT_EQ(port.shown.back().kind, "save");
    EXPECT_EQ(test::ReadFileBytes(path), store::FormatProjectFile(store::WriteEntries(s.store)));
    EXPECT_EQ(s.run.LastFormFile, path);
    EXPECT_EQ(s.run.status.fileLabel, "FILE LOADED: " + model::ToUpper(path));
    EXPECT_EQ(test::ReadFileBytes(dir.file("FormHistory.txt")), path + "\r\n");
    EXPECT_EQ(s.run.busyMark, store::kIdle);
    Put(s, 1, 2, "Email", "[Title=e]\r\n");
    const std::string before = test::ReadFileBytes(path);
    port.file(path);
    port.answer(Answer::No);
    EXPECT_FALSE(store::SaveProject(s, port, "fms"));
    EXPECT_TRUE(Said(port.last(), "File " + path + "  already exists. Do you want to replace it?", "FILE EXIST"));
    EXPECT_EQ(test::ReadFileBytes(path), before);
    EXPECT_EQ(s.run.busyMark, store::kIdle);
    // a survey name leaves LastFormFile alone; Cancel writes nothing
    port.file(dir.file("two.srv"));
    EXPECT_TRUE(store::SaveProject(s, port, "srv"));
    EXPECT_EQ(s.run.LastFormFile, path);
    port.file(std::nullopt);
    EXPECT_FALSE(store::SaveProject(s, port, "srv"));
    EXPECT_TRUE(port.messages().empty());
}

TEST_F(ProjectFlow, AFailedWriteLeavesTheOldFileByteForByte)
{
    const std::string path = dir.file("keep.fms");
    test::WriteFileBytes(path, "old bytes\r\n");
    std::filesystem::create_directory(path + ".tqtmp"); // the temporary name can't be opened
    port.file(path);
    port.answer(Answer::Yes);
    EXPECT_FALSE(store::SaveProject(s, port, "fms"));
    EXPECT_EQ(test::ReadFileBytes(path), "old bytes\r\n");
    EXPECT_TRUE(port.messages().empty());
    EXPECT_EQ(test::ReadFileBytes(dir.file("FormHistory.txt")), "");
    // after a failed validation the save asks nothing
    port.clear();
    s.build.buildError = 1;
    EXPECT_FALSE(store::SaveProject(s, port, "fms"));
    EXPECT_TRUE(port.shown.empty());
}

TEST_F(ProjectFlow, OpenKeepsTheModeAndUpdatesTheModesList)
{
    const std::string path = dir.file("a.srv");
    test::WriteFileBytes(path, kStars + "\r\nSetup\r\n" + kStars + "\r\n\r\n[Z=9]\r\n");
    int prompts = 0;
    store::ProjectHooks hooks;
    hooks.clearPrompt = [&](Session& ses, UiPort&) {
        EXPECT_TRUE(ses.store.state.LoadPending);
        ++prompts;
        return 0;
    };
    port.file(path);
    EXPECT_EQ(store::OpenProject(s, port, 1, "srv", false, hooks), 0);
    EXPECT_EQ(prompts, 1);
    EXPECT_EQ(At(s, 1, 0).AttributeText, "[Z=9]\r\n");
    EXPECT_EQ(At(s, 1, 1).InputTypeName, "Name"); // rows the file doesn't reach stay
    EXPECT_EQ(s.store.state.ProjectMode, "FORM");
    EXPECT_EQ(s.run.status.modeLabel, "FORM IS ACTIVE");
    EXPECT_EQ(s.run.LastProjectPath, path);
    EXPECT_TRUE(s.run.LastFormFile.empty());
    EXPECT_EQ(test::ReadFileBytes(dir.file("FormHistory.txt")), path + "\r\n");
    EXPECT_EQ(s.run.formMenu[0].caption, "1. " + path);
    EXPECT_FALSE(s.store.state.LoadPending);
    EXPECT_FALSE(s.run.LoadInProgress);
    EXPECT_EQ(s.run.busyMark, store::kIdle);
    // the user keeps the entries: nothing is asked or read
    hooks.clearPrompt = [](Session&, UiPort&) { return 1; };
    EXPECT_EQ(store::OpenProject(s, port, 2, "fms", false, hooks), 1);
    // Cancel in the dialog shows the asking page again, with no message
    hooks.clearPrompt = [](Session&, UiPort&) { return 0; };
    port.file(std::nullopt);
    EXPECT_EQ(store::OpenProject(s, port, 3, "fms", false, hooks), 1);
    EXPECT_EQ(port.views.back(), View::Page2);
    EXPECT_TRUE(port.messages().empty());
}

TEST_F(ProjectFlow, RecentEntriesSwitchToSurveyOnlyForASrvInFormMode)
{
    const std::string srv = dir.file("b.srv");
    const std::string fms = dir.file("c.fms");
    test::WriteFileBytes(srv, "Name\r\n" + kStars + "\r\n[S=1]\r\n");
    test::WriteFileBytes(fms, "Name\r\n" + kStars + "\r\n[F=1]\r\n");
    std::vector<std::string> switches;
    store::ProjectHooks hooks;
    hooks.clearPrompt = [](Session&, UiPort&) -> int {
        ADD_FAILURE() << "the recent-list switch path runs no clear prompt";
        return 1;
    };
    hooks.switchMode = [&](Session& ses, UiPort&, const std::string& mode, int) {
        switches.push_back(mode);
        ses.store.state.ProjectMode = mode;
    };
    s.run.CurrentProjectName = "1. " + srv;
    EXPECT_EQ(store::OpenProject(s, port, 2, "srv", true, hooks), 0);
    EXPECT_EQ(switches, std::vector<std::string>{"SURVEY"});
    EXPECT_EQ(s.run.CurrentProjectName, srv); // the "1. " is cut at the drive mark
    EXPECT_EQ(At(s, 1, 0).AttributeText, "[S=1]\r\n");
    // a .fms picked in SURVEY mode stays in SURVEY mode
    s.run.CurrentProjectName = "2. " + fms;
    EXPECT_EQ(store::OpenProject(s, port, 2, "fms", true, hooks), 0);
    EXPECT_EQ(switches, (std::vector<std::string>{"SURVEY", "SURVEY"}));
    EXPECT_EQ(s.store.state.ProjectMode, "SURVEY");
    EXPECT_EQ(s.run.LastFormFile, fms);
    EXPECT_EQ(s.run.status.pageCaptions[1], "Page 2 of 4     Create: Survey");
    EXPECT_EQ(s.run.status.buildOnly, "Build Survey Only");
}

TEST_F(ProjectFlow, StatusTexts)
{
    store::RefreshStatus(s);
    EXPECT_EQ(s.run.status.fileLabel, "NOTHING IS CURRENTLY LOADED");
    EXPECT_EQ(s.run.status.pageCaptions[0], "Page 1 of 4     Create: Form");
    EXPECT_EQ(s.run.status.buildMenu, "&Build-Form");
    EXPECT_EQ(s.run.status.buildWithHtml, "Build Form With HTML");
    s.run.CurrentProjectName = "/x/my.Srv";
    s.store.state.ProjectMode = "SURVEY";
    store::RefreshStatus(s);
    EXPECT_EQ(s.run.status.fileLabel, "FILE LOADED: /X/MY.SRV");
    EXPECT_EQ(s.run.status.modeLabel, "SURVEY IS ACTIVE");
    EXPECT_EQ(s.run.status.buildMenu, "&Build-Survey");
    EXPECT_EQ(s.run.status.buildWithHtml, "Build Survey With HTML");
}
