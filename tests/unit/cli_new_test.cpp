// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli_fixture.h"
#include "scripted_port.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <sys/wait.h>
#include <vector>

using tq::test::Cli;
using tq::test::CliRun;
using tq::test::ReadFileBytes;
using tq::test::TempDir;
using tq::test::WriteFileBytes;

namespace {

// The Input Type names of a project file, in file order.
std::vector<std::string> TypesOf(const std::string& file)
{
    std::vector<std::string> types;
    const std::string marker = "********************************\r\n";
    for (size_t at = file.find(marker); at != std::string::npos;) {
        const size_t from = at + marker.size();
        const size_t end = file.find("\r\n", from);
        types.push_back(file.substr(from, end - from));
        at = file.find(marker, file.find(marker, end) + marker.size());
    }
    return types;
}

int ExitCode(int status)
{
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace

TEST(CliNew, AFormOrASurveyHoldsTheSetupEntryAndTheDefaultRowsOfTheMode)
{
    TempDir dir;
    const CliRun r = Cli({"new", "form", dir.file("x.fms")});
    ASSERT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(r.out, dir.file("x.fms") + "\n");
    const std::string file = ReadFileBytes(dir.file("x.fms"));
    EXPECT_EQ(TypesOf(file), (std::vector<std::string>{"Setup", "Title 1 Single Line", "Subject", "Name", "Email",
                                                       "Comments Not Required", "Security Code"}));
    // the template's flags and sample folder are still there
    EXPECT_NE(file.find("[FROM=;My Web Page]\r\n"), std::string::npos);
    EXPECT_NE(file.find("[Completed=;thankyou.htm]\r\n"), std::string::npos);
    EXPECT_EQ(file.rfind("********************************\r\nSetup\r\n********************************\r\n\r\n", 0),
              0u);
    ASSERT_EQ(Cli({"new", "Survey", dir.file("x.srv")}).code, 0);
    const std::string survey = ReadFileBytes(dir.file("x.srv"));
    EXPECT_EQ(TypesOf(survey), (std::vector<std::string>{"Setup", "Title Header", "Survey Intro", "Title 1 Single Line",
                                                         "Table Choices Required", "Table Text Required",
                                                         "Comments Not Required", "Security Code"}));
    EXPECT_NE(survey.find("[TQL Output File=surveytql.htm]"), std::string::npos);
}

TEST(CliNew, ANewProjectStopsTheBuildWithTheProgramsMessage)
{
    TempDir dir;
    TempDir data;
    ASSERT_EQ(Cli({"new", "form", dir.file("x.fms")}).code, 0);
    const CliRun sample = Cli({"build", dir.file("x.fms"), "--data-folder", data.path()});
    EXPECT_EQ(sample.code, 1);
    EXPECT_EQ(sample.out, "");
    EXPECT_EQ(sample.err.rfind("PATH ERROR: The path to the current web folder does not exist\n", 0), 0u) << sample.err;
    // into a folder that exists, the semi-colon flags of the SetupEntry stop it
    TempDir web;
    const CliRun flags = Cli({"build", dir.file("x.fms"), "--data-folder", data.path(), "--web-folder", web.path()});
    EXPECT_EQ(flags.code, 1);
    EXPECT_EQ(flags.err.rfind("INVALID ENTRIES: ", 0), 0u) << flags.err;
}

TEST(CliNew, AnExistingFileIsReplacedOnlyWhenAskedTo)
{
    TempDir dir;
    WriteFileBytes(dir.file("x.fms"), "mine");
    const CliRun kept = Cli({"new", "form", dir.file("x.fms")});
    EXPECT_EQ(kept.code, 1);
    EXPECT_NE(kept.err.find("FILE EXIST: File " + dir.file("x.fms") + "  already exists."), std::string::npos);
    EXPECT_EQ(ReadFileBytes(dir.file("x.fms")), "mine");
    EXPECT_EQ(Cli({"new", "form", dir.file("x.fms"), "--replace"}).code, 0);
    EXPECT_EQ(TypesOf(ReadFileBytes(dir.file("x.fms"))).size(), 7u);
}

TEST(CliNew, UsageErrorsExitTwo)
{
    TempDir dir;
    EXPECT_EQ(Cli({"new"}).code, 2);
    EXPECT_EQ(Cli({"new", "poll", dir.file("x.fms")}).code, 2);
    EXPECT_EQ(Cli({"new", "form"}).code, 2);
    EXPECT_EQ(Cli({"new", "form", dir.file("x.fms"), dir.file("y.fms")}).code, 2);
    EXPECT_EQ(Cli({"new", "form", "--colour", dir.file("x.fms")}).code, 2);
}

TEST(CliNew, TheBuiltProgramNewThenBuildExitsOneWhileTheSamplesExitZero)
{
    TempDir dir;
    TempDir data;
    const std::string cli = std::string("'") + TQ_CLI_BINARY + "'";
    const std::string quiet = " >/dev/null 2>&1";
    const std::string x = "'" + dir.file("x.fms") + "'";
    EXPECT_EQ(ExitCode(std::system((cli + " new form " + x + quiet + " && " + cli + " build " + x + " --data-folder '" +
                                    data.path() + "'" + quiet)
                                       .c_str())),
              1);
    for (const char* sample : {"sample_form.fms", "sample_form_2.fms", "sample_survey.srv", "sample_survey_2.srv"}) {
        TempDir web;
        const std::string cmd = cli + " build '" + TQ_DATA_DIR + "/samples/" + sample + "' --data-folder '" +
                                data.path() + "' --web-folder '" + web.path() + "'" + quiet;
        EXPECT_EQ(ExitCode(std::system(cmd.c_str())), 0) << sample;
    }
}
