// SPDX-License-Identifier: GPL-3.0-or-later
// Writes that fail half way: the user's previous files stay byte for byte.
#include "build/build_driver.h"
#include "build/line_writer.h"
#include "port/file_system.h"
#include "project_text.h"
#include "scripted_port.h"
#include "session.h"
#include "show/show_file.h"
#include "store/project_file.h"
#include "store/setup_store.h"
#include "store/text_file.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <string>

using tq::Answer;
using tq::platform::ScopedWriteHook;
using tq::platform::WriteStep;
using tq::test::ReadFileBytes;
using tq::test::ScriptedPort;
using tq::test::TempDir;
using tq::test::WriteFileBytes;
namespace fs = std::filesystem;

namespace {

enum class Fault { NoSpace, NoPermission, FolderGone };

/// Makes the writes of files inside `folder` fail. NoPermission refuses the
/// open; NoSpace lets `writesBefore` write steps through and fails the next;
/// FolderGone moves the folder to `folder` + ".moved" at the first write
/// step, so that the writing goes on into a folder that is no longer there.
struct FaultPlan
{
    Fault fault;
    std::string folder;
    int writesBefore = 0;
    int writes = 0;
    int asked = 0;

    std::string moved() const { return folder + ".moved"; }
    /// Where a file of the folder is after the fault.
    std::string now(const std::string& file) const
    {
        if (fault != Fault::FolderGone)
            return file;
        return moved() + file.substr(folder.size());
    }
    int operator()(WriteStep step, const std::string& path)
    {
        if (path.compare(0, folder.size() + 1, folder + "/") != 0)
            return 0;
        ++asked;
        switch (fault) {
        case Fault::NoPermission:
            return step == WriteStep::Open ? EACCES : 0;
        case Fault::NoSpace:
            return step == WriteStep::Write && writes++ >= writesBefore ? ENOSPC : 0;
        case Fault::FolderGone:
            if (step == WriteStep::Write && writes++ == 0)
                fs::rename(folder, moved());
            return 0;
        }
        return 0;
    }
};

/// Runs `write` with the writes failing as `plan` says; the test keeps the plan to look at afterwards.
template <typename F> void WithFault(FaultPlan& plan, F write)
{
    ScopedWriteHook hook([&plan](WriteStep step, const std::string& path) { return plan(step, path); });
    write();
}

/// No temporary file is left in `folder`.
void ExpectNoTempFiles(const std::string& folder)
{
    for (const auto& e : fs::directory_iterator(folder))
        EXPECT_NE(e.path().extension(), ".tqtmp") << e.path();
}

std::string FaultName(Fault f)
{
    const char* names[] = {"NoSpace", "NoPermission", "FolderGone"};
    return names[static_cast<int>(f)];
}

std::string ErrorText(Fault f)
{
    const int codes[] = {ENOSPC, EACCES, ENOENT};
    return std::strerror(codes[static_cast<int>(f)]);
}

class FailedWrite : public ::testing::TestWithParam<Fault>
{
  protected:
    void TearDown() override
    {
        std::error_code ec;
        fs::remove_all(dir.path() + "/work.moved", ec);
    }
    /// A folder of its own for the files under test (the one that may go).
    std::string Work()
    {
        const std::string w = dir.file("work");
        fs::create_directories(w);
        return w;
    }
    TempDir dir;
    ScriptedPort port;
};

const std::string kOldBytes = "the user's old file\r\nkept as it was\r\n";

} // namespace

TEST_P(FailedWrite, WriteFileReplacingKeepsTheOldFileAndSetsErrno)
{
    const std::string work = Work();
    const std::string file = work + "/kept.txt";
    WriteFileBytes(file, kOldBytes);
    FaultPlan plan{GetParam(), work};
    WithFault(plan, [&] {
        errno = 0;
        EXPECT_FALSE(tq::store::WriteFileReplacing(file, std::string(100000, 'x')));
        EXPECT_EQ(std::string(std::strerror(errno)), ErrorText(GetParam()));
    });
    EXPECT_GT(plan.asked, 0);
    EXPECT_EQ(ReadFileBytes(plan.now(file)), kOldBytes);
    if (GetParam() != Fault::FolderGone)
        ExpectNoTempFiles(work);
}

TEST_P(FailedWrite, AProjectSaveKeepsTheOldProjectWithoutAWord)
{
    const std::string work = Work();
    const std::string file = work + "/club.fms";
    WriteFileBytes(file, kOldBytes);
    tq::Session s;
    s.DataFolder = dir.path();
    s.store.pages[0][0] = {"Setup", "[Drive Folder Path=/tmp] [Info: x]\r\n", "", false, tq::model::Highlight::None};
    s.store.pages[0][1] = {"Name", "[Title=Your name] [Info: x]\r\n", "", false, tq::model::Highlight::None};
    port.file(file);
    port.answer(Answer::Yes); // FILE EXIST
    FaultPlan plan{GetParam(), work, 0};
    WithFault(plan, [&] { EXPECT_FALSE(tq::store::SaveProject(s, port, "fms")); });
    EXPECT_TRUE(port.messages().empty()); // the save has no message of its own
    EXPECT_EQ(ReadFileBytes(plan.now(file)), kOldBytes);
    EXPECT_EQ(s.store.state.CurrentFileName, "");
    EXPECT_EQ(s.run.busyMark, tq::store::kIdle);
}

TEST_P(FailedWrite, ASetupExportKeepsTheOldSetupAndRaisesTheResultFlag)
{
    const std::string work = Work();
    WriteFileBytes(work + "/setup.imp", kOldBytes);
    tq::store::SetupStore setup;
    setup.rows[0].MenuName = "Club";
    port.answer(Answer::Yes); // FILE EXIST
    FaultPlan plan{GetParam(), work};
    WithFault(plan, [&] { tq::store::ExportSetup(setup, port, work); });
    EXPECT_EQ(setup.resultFlag, 1);
    EXPECT_TRUE(port.messages().empty());
    EXPECT_EQ(ReadFileBytes(plan.now(work + "/setup.imp")), kOldBytes);
}

TEST_P(FailedWrite, AShowSaveKeepsTheOldShowAndTellsTheFault)
{
    const std::string work = Work();
    const std::string file = work + "/holiday.shw";
    WriteFileBytes(file, kOldBytes);
    tq::Session s;
    s.DataFolder = dir.path();
    port.file(file);
    port.answer(Answer::Yes); // FILE EXIST
    FaultPlan plan{GetParam(), work};
    WithFault(plan, [&] { EXPECT_FALSE(tq::show::SaveShow(s, port)); });
    ASSERT_EQ(port.messages().size(), 1u);
    EXPECT_TRUE(Said(port.last(), ErrorText(GetParam()) + " when writing " + file, "ERROR"));
    EXPECT_EQ(ReadFileBytes(plan.now(file)), kOldBytes);
    EXPECT_FALSE(fs::exists(dir.file("history.txt"))); // not added to the recent list
}

namespace {

/// A FORM with a title and a line whose two output files exist from an
/// earlier build; the questions about them are answered No (keep the
/// folder) and Yes (replace them).
struct Built
{
    std::string web;
    std::unique_ptr<tq::Session> s = std::make_unique<tq::Session>();

    Built(const std::string& webFolder, const std::string& dataFolder, ScriptedPort& port) : web(webFolder)
    {
        s->DataFolder = dataFolder;
        s->store.state.ProjectMode = "FORM";
        s->store.pages[0][0] = {"Setup", tq::test::SetupEntryText(web), "1", false, tq::model::Highlight::None};
        s->store.pages[0][1] = {"Title",
                                "[Title=Club news] [Info: t]\r\n[Title Size=3] [Info: s]\r\n[Align=LEFT] "
                                "[Choices=l]\r\n[Italics=off] [Info: i]\r\n[Bold=off] [Info: b]\r\n[Text "
                                "Color=0] [Choices=c]\r\n",
                                "2", false, tq::model::Highlight::None};
        WriteFileBytes(html(), "old page\r\n");
        WriteFileBytes(php(), "old script\r\n");
        port.answer(Answer::No);  // EDIT SETUP
        port.answer(Answer::Yes); // Duplicate File
    }
    std::string html() const { return web + "/formtql.htm"; }
    std::string php() const { return web + "/formtql.php"; }
};

} // namespace

TEST_P(FailedWrite, ABuildKeepsTheOldOutputFilesAndStops)
{
    const std::string work = Work();
    Built b(work, dir.path(), port);
    FaultPlan plan{GetParam(), work, 2};
    WithFault(plan, [&] { tq::build::CreateFormOnly(*b.s, port); });
    EXPECT_EQ(b.s->build.buildError, 1);
    ASSERT_FALSE(port.messages().empty());
    EXPECT_EQ(port.last().title, "UNRECOVERABLE ERROR. CONTACT SUPPORT");
    const std::string verb = GetParam() == Fault::NoPermission ? " when opening " : " when writing ";
    EXPECT_EQ(port.last().text, ErrorText(GetParam()) + verb + b.html());
    EXPECT_EQ(ReadFileBytes(plan.now(b.html())), "old page\r\n");
    EXPECT_EQ(ReadFileBytes(plan.now(b.php())), "old script\r\n");
    EXPECT_FALSE(b.s->build.inProgress);
    if (GetParam() != Fault::FolderGone)
        ExpectNoTempFiles(work);
}

INSTANTIATE_TEST_SUITE_P(Faults,
                         FailedWrite,
                         ::testing::Values(Fault::NoSpace, Fault::NoPermission, Fault::FolderGone),
                         [](const auto& info) { return FaultName(info.param); });

TEST(FailedWrite, AFaultInTheScriptKeepsTheOldScriptBesideTheNewPage)
{
    TempDir web, data;
    ScriptedPort port;
    Built b(web.path(), data.path(), port);
    // the page goes through; the script's writing runs out of space
    tq::platform::ScopedWriteHook hook([&b](WriteStep step, const std::string& path) {
        return step == WriteStep::Write && path == b.php() ? ENOSPC : 0;
    });
    tq::build::CreateFormOnly(*b.s, port);
    EXPECT_EQ(b.s->build.buildError, 1);
    EXPECT_TRUE(Said(port.last(), std::string(std::strerror(ENOSPC)) + " when writing " + b.php(),
                     "UNRECOVERABLE ERROR. CONTACT SUPPORT"));
    EXPECT_EQ(ReadFileBytes(b.php()), "old script\r\n");
    EXPECT_NE(ReadFileBytes(b.html()), "old page\r\n");
    ExpectNoTempFiles(web.path());
}

TEST(LineWriter, WritesToATemporaryNameAndReplacesTheFileOnClose)
{
    TempDir dir;
    const std::string file = dir.file("out.htm");
    WriteFileBytes(file, "old\r\n");
    tq::build::LineWriter out;
    ASSERT_TRUE(out.open(file));
    out.line("new");
    EXPECT_EQ(ReadFileBytes(file), "old\r\n"); // nothing replaced before the close
    out.close();
    EXPECT_TRUE(out.good());
    EXPECT_EQ(out.error(), 0);
    EXPECT_EQ(ReadFileBytes(file), "new\r\n");
    ExpectNoTempFiles(dir.path());
    // a writer that goes out of scope still ends its file
    {
        tq::build::LineWriter scoped;
        ASSERT_TRUE(scoped.open(file));
        scoped.piece("last");
    }
    EXPECT_EQ(ReadFileBytes(file), "last");
}
