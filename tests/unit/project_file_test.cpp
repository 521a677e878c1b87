// SPDX-License-Identifier: GPL-3.0-or-later
#include "scripted_port.h"
#include "session.h"
#include "store/project_file.h"

#include <gtest/gtest.h>

using namespace tq;

namespace {

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

std::string Save(const Session& s)
{
    return store::FormatProjectFile(store::WriteEntries(s.store));
}

// A bad-input fixture of tests/data/broken, named after its defect.
std::string Broken(const std::string& name)
{
    return test::ReadFileBytes(TQ_TEST_DATA_DIR "/broken/" + name);
}

Session Load(const std::string& bytes)
{
    Session s;
    store::LineReader in = store::ReaderOf(bytes);
    store::ReadEntries(s.store, in);
    return s;
}

} // namespace

TEST(ProjectFile, RoundTripRegroupsLinesAndGrowsThePage2Dash)
{
    Session s;
    Put(s, 1, 0, "Setup", "[A=1]\r\n[B=2]\r\n\r\n[C=3]\r\n[D=4]\r\n\r\n");
    Put(s, 1, 5, "Name", "[A=1]\r\n[B=2]\r\n[C=3]\r\n\r\n[D=4]\r\n");
    Put(s, 2, 7, "Email", "[Title=e]\r\n[Size=3]\r\n\r\n");
    const std::string first = Save(s);
    Session back = Load(first);
    // rows return by position: the gap closes and Page 2's row lands on Page 1, lines two to a group
    EXPECT_EQ(At(back, 1, 1).InputTypeName, "Name");
    EXPECT_EQ(At(back, 1, 1).AttributeText, "[A=1]\r\n[B=2]\r\n\r\n[C=3]\r\n[D=4]\r\n\r\n");
    EXPECT_EQ(At(back, 1, 2).InputTypeName, "Email");
    EXPECT_EQ(At(back, 1, 2).AttributeText, "-[Title=e]\r\n[Size=3]\r\n\r\n");
    EXPECT_EQ(Save(back).substr(0, 120), first.substr(0, 120)); // the grouped Setup row saves the same
    // moved back to Page 2 the row collects one more "-" at every save
    Put(back, 2, 0, "Email", At(back, 1, 2).AttributeText);
    Put(back, 1, 2, "", "");
    EXPECT_EQ(At(Load(Save(back)), 1, 2).AttributeText, "--[Title=e]\r\n[Size=3]\r\n\r\n");
}

TEST(ProjectFile, ATwentySixthRowPutsPage2OutOfStep)
{
    Session s;
    for (int r = 0; r < 25; ++r)
        Put(s, 1, r, "T" + std::to_string(r), "[A=" + std::to_string(r) + "]\r\n[B=x]\r\n\r\n");
    Put(s, 3, 0, "Extra1", "[E=1]\r\n[F=1]\r\n\r\n");
    Put(s, 3, 1, "Extra2", "[E=2]\r\n[F=2]\r\n\r\n");
    Session back = Load(Save(s));
    for (int r = 0; r < 25; ++r)
        EXPECT_EQ(At(back, 1, r).AttributeText, At(s, 1, r).AttributeText) << r;
    std::vector<std::string> page2;
    for (int r = 0; r < 4; ++r)
        page2.insert(page2.end(), {At(back, 2, r).InputTypeName, At(back, 2, r).AttributeText});
    EXPECT_EQ(page2, (std::vector<std::string>{"Extra1", "", "", "[E=1]\r\n[F=1]\r\n\r\n", "Extra2", "", "",
                                               "[E=2]\r\n[F=2]\r\n\r\n"}));
}

TEST(ProjectFile, EmptyBinaryAndLfOnlyFilesLoadWithoutComplaint)
{
    Session s;
    Put(s, 1, 0, "Setup", "[A=1]\r\n");
    store::LineReader empty = store::ReaderOf(Broken("empty_project.fms"));
    store::ReadEntries(s.store, empty);
    EXPECT_EQ(At(s, 1, 0).InputTypeName, "Setup");
    Session b = Load(Broken("binary_noise.fms"));
    EXPECT_FALSE(At(b, 1, 0).InputTypeName.empty()); // lines of text, taken as type lines
    // LF line ends and a last line without one read as the same file saved with CR LF
    const std::string lf = Broken("lf_only_no_last_line_end.fms");
    std::string crlf;
    for (char c : lf)
        crlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
    Session fromLf = Load(lf);
    EXPECT_EQ(At(fromLf, 1, 0).InputTypeName, "Name");
    EXPECT_EQ(store::WriteEntries(fromLf.store), store::WriteEntries(Load(crlf + "\r\n").store));
}

TEST(ProjectFile, SaveAsksBeforeReplacingAndKeepsTheFileOnNo)
{
    test::TempDir dir;
    test::ScriptedPort port;
    Session s;
    s.DataFolder = dir.path();
    test::WriteFileBytes(dir.file("FormHistory.txt"), "");
    Put(s, 1, 0, "Setup", "[A=1]\r\n");
    const std::string path = dir.file("one.fms");
    port.file(path);
    EXPECT_TRUE(store::HasUnsavedChanges(s));
    ASSERT_TRUE(store::SaveProject(s, port, "fms"));
    EXPECT_EQ(test::ReadFileBytes(path), Save(s));
    EXPECT_FALSE(store::HasUnsavedChanges(s));
    Put(s, 1, 2, "Email", "[Title=e]\r\n");
    EXPECT_TRUE(store::HasUnsavedChanges(s));
    const std::string before = test::ReadFileBytes(path);
    port.file(path);
    port.answer(Answer::No);
    EXPECT_FALSE(store::SaveProject(s, port, "fms"));
    EXPECT_TRUE(Said(port.last(), "File " + path + "  already exists. Do you want to replace it?", "FILE EXIST"));
    EXPECT_EQ(test::ReadFileBytes(path), before);
    // a refused save leaves the rows unsaved; opening the file makes them the saved ones
    EXPECT_TRUE(store::HasUnsavedChanges(s));
    port.file(path);
    ASSERT_EQ(store::OpenProject(s, port, 2, "fms", false, {}), 0);
    EXPECT_FALSE(store::HasUnsavedChanges(s));
}
