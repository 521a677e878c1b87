// SPDX-License-Identifier: GPL-3.0-or-later
// Writes that fail half way: the user's previous files stay byte for byte.
#include "compose/build_driver.h"
#include "port/file_system.h"
#include "project_text.h"
#include "scripted_port.h"
#include "session.h"
#include "show/show_file.h"
#include "store/project_file.h"
#include "store/setup_store.h"

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
using tq::test::WriteFileBytes;

namespace {

const std::string kOld = "the user's old file\r\nkept as it was\r\n";

/// A folder whose files can't be written: the open is refused (EACCES) or,
/// after `writesBefore` write steps, the disk is full (ENOSPC).
class FailedWrite : public ::testing::Test
{
  protected:
    std::string file(const std::string& name)
    {
        WriteFileBytes(dir.file(name), kOld);
        return dir.file(name);
    }
    ScopedWriteHook fail(int error, int writesBefore = 0)
    {
        return ScopedWriteHook(
            [this, error, writesBefore, writes = 0](WriteStep step, const std::string& path) mutable {
                if (path.rfind(dir.path() + "/", 0) != 0)
                    return 0;
                if (error == EACCES)
                    return step == WriteStep::Open ? EACCES : 0;
                return step == WriteStep::Write && writes++ >= writesBefore ? error : 0;
            });
    }
    void expectNoTempFiles()
    {
        for (const auto& e : std::filesystem::directory_iterator(dir.path()))
            EXPECT_NE(e.path().extension(), ".tqtmp") << e.path();
    }
    tq::test::TempDir dir, data;
    tq::test::ScriptedPort port;
};

} // namespace

TEST_F(FailedWrite, AProjectSaveKeepsTheOldProjectWithoutAWord)
{
    const std::string path = file("club.fms");
    tq::Session s;
    s.DataFolder = data.path();
    s.store.pages[0][0] = {"Setup", "[Drive Folder Path=/tmp] [Info: x]\r\n", "", false, tq::model::Highlight::None};
    port.file(path);
    port.answer(Answer::Yes); // FILE EXIST
    {
        auto hook = fail(ENOSPC);
        EXPECT_FALSE(tq::store::SaveProject(s, port, "fms"));
    }
    EXPECT_TRUE(port.messages().empty());
    EXPECT_EQ(ReadFileBytes(path), kOld);
    EXPECT_EQ(s.run.busyMark, tq::store::kIdle);
    expectNoTempFiles();
}

TEST_F(FailedWrite, ASetupExportKeepsTheOldSetupAndRaisesTheResultFlag)
{
    const std::string path = file("setup.imp");
    tq::store::SetupStore setup;
    port.answer(Answer::Yes); // FILE EXIST
    {
        auto hook = fail(EACCES);
        tq::store::ExportSetup(setup, port, dir.path());
    }
    EXPECT_EQ(setup.resultFlag, 1);
    EXPECT_EQ(ReadFileBytes(path), kOld);
}

TEST_F(FailedWrite, AShowSaveKeepsTheOldShowAndTellsTheFault)
{
    const std::string path = file("holiday.shw");
    tq::Session s;
    s.DataFolder = data.path();
    port.file(path);
    port.answer(Answer::Yes); // FILE EXIST
    {
        auto hook = fail(ENOSPC);
        EXPECT_FALSE(tq::show::SaveShow(s, port));
    }
    EXPECT_TRUE(Said(port.last(), std::string(std::strerror(ENOSPC)) + " when writing " + path, "ERROR"));
    EXPECT_EQ(ReadFileBytes(path), kOld);
    EXPECT_FALSE(std::filesystem::exists(data.file("history.txt"))); // not added to the recent list
}

TEST_F(FailedWrite, ABuildKeepsTheOldPageAndScriptAndStops)
{
    const std::string html = file("formtql.htm"), php = file("formtql.php");
    auto s = std::make_unique<tq::Session>();
    s->DataFolder = data.path();
    s->store.state.ProjectMode = tq::model::Mode::Form;
    s->store.pages[0][0] = {"Setup", tq::test::SetupEntryText(dir.path()), "1", false, tq::model::Highlight::None};
    port.answer(Answer::No);  // EDIT SETUP
    port.answer(Answer::Yes); // Duplicate File
    {
        auto hook = fail(ENOSPC, 2);
        tq::compose::CreateFormOnly(*s, port);
    }
    EXPECT_EQ(s->build.buildError, 1);
    EXPECT_TRUE(Said(port.last(), std::string(std::strerror(ENOSPC)) + " when writing " + html,
                     "UNRECOVERABLE ERROR. CONTACT SUPPORT"));
    EXPECT_EQ(ReadFileBytes(html), kOld);
    EXPECT_EQ(ReadFileBytes(php), kOld);
    EXPECT_FALSE(s->build.inProgress);
    expectNoTempFiles();
}
