// SPDX-License-Identifier: GPL-3.0-or-later
// tarnquill-cli build: options, exit codes, messages on the error stream, and
// the shipped samples.
#include "run_cli.h"
#include "scripted_port.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

using tq::test::ReadFileBytes;
using tq::test::TempDir;
using tq::test::WriteFileBytes;

namespace {

struct CliRun
{
    int code;
    std::string out;
    std::string err;
};

CliRun Cli(const std::vector<std::string>& args)
{
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    const int code = tq::cli::RunCli(args, in, out, err);
    return {code, out.str(), err.str()};
}

std::string Sample(const std::string& name)
{
    return std::string(TQ_SOURCE_DIR) + "/data/samples/" + name;
}

// A project of one SetupEntry; `from` is the [FROM= value.
std::string SetupOnlyProject(const std::string& folder, const std::string& from)
{
    return "********************************\r\nSetup\r\n********************************\r\n\r\n"
           "[Drive Folder Path=" +
           folder + "] [Info: f]\r\n[TQL Output File=formtql.htm] [Info: f]\r\n[FROM=" + from +
           "] [Info: f]\r\n[Completed=thankyou.htm] [Info: f]\r\n[GLOBAL ALIGN=NONE] [Info: f]\r\n"
           "[GLOBAL TEXT COLOR=NONE] [Choices=f]\r\n[Submit Name=Send] [Info: f]\r\n[SUBMIT ALIGN=LEFT] [Choices=f]\r\n"
           "[Submit Button Color=0] [Choices=f]\r\n[Background image path=;x] [Info: f]\r\n"
           "[Email #1=webmaster@tarnquill.example] [Info: f]\r\n[Email #2=none] [Info: f]\r\n"
           "[Email #3=none] [Info: f]\r\n[Number Each Question=YES] [Info: f]\r\n[Show Tool Tips=YES] [Info: f]\r\n"
           "[Include Frame With Form=NO] [Info: f]\r\n[Frame Border Color=52736] [Info: f]\r\n"
           "[Frame Color=16384] [Info: f]\r\n[Total Frames=1] [Info: f]\r\n";
}

} // namespace

TEST(CliBuild, SamplesBuildIntoTheGivenWebFolder)
{
    for (const char* name : {"sample_form.fms", "sample_survey.srv"}) {
        TempDir web;
        TempDir data;
        const CliRun r = Cli({"build", Sample(name), "--web-folder", web.path(), "--data-folder", data.path()});
        EXPECT_EQ(r.code, 0) << name << "\n" << r.err;
        const std::string stem = std::string(name) == "sample_form.fms" ? "formtql" : "surveytql";
        EXPECT_EQ(r.out, web.file(stem + ".htm") + "\n" + web.file(stem + ".php") + "\n");
        EXPECT_NE(ReadFileBytes(web.file(stem + ".htm")).find("<form action=\"" + stem + ".php\""), std::string::npos);
        EXPECT_EQ(ReadFileBytes(web.file(stem + ".php")).rfind("<?php\r\n", 0), 0u);
    }
}

TEST(CliBuild, WholePageAndReplaceAnswerTheQuestionsAboutExistingFiles)
{
    TempDir web;
    TempDir data;
    const std::vector<std::string> args = {
        "build",    Sample("sample_form.fms"), "--web-folder", web.path(), "--data-folder", data.path(), "--whole-page",
        "--replace"};
    ASSERT_EQ(Cli(args).code, 0);
    const CliRun again = Cli(args);
    EXPECT_EQ(again.code, 0);
    EXPECT_NE(again.err.find("EDIT SETUP: "), std::string::npos);
    EXPECT_NE(again.err.find("Duplicate File: "), std::string::npos);
    EXPECT_EQ(ReadFileBytes(web.file("formtql.htm")).rfind("<html>\r\n<body>\r\n", 0), 0u);
}

TEST(CliBuild, TheSamplesFlagInTheSetupEntryStopsWithItsMessageAndExitOne)
{
    TempDir web;
    TempDir data;
    const std::string project = data.file("x.fms");
    WriteFileBytes(project, SetupOnlyProject(web.path(), ";My Web Page"));
    const CliRun r = Cli({"build", project, "--data-folder", data.path()});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(
        r.err.rfind("INVALID ENTRIES: THERE ARE ERRORS THAT NEED TO BE CORRECTED BEFORE YOU CAN BUILD YOUR FORM", 0),
        0u);
    EXPECT_EQ(r.out, "");
}

TEST(CliBuild, AMissingWebFolderIsAPathError)
{
    TempDir data;
    const std::string project = data.file("x.srv");
    WriteFileBytes(project, SetupOnlyProject(data.file("gone"), "Site"));
    const CliRun r = Cli({"build", project, "--data-folder", data.path()});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.err.rfind("PATH ERROR: The path to the current web folder does not exist\n", 0), 0u);
}

TEST(CliBuild, ModeComesFromTheExtensionUnlessGiven)
{
    TempDir web;
    TempDir data;
    const std::string project = data.file("x.fms");
    WriteFileBytes(project, SetupOnlyProject(web.path(), ";My Web Page"));
    const CliRun r = Cli({"build", project, "--data-folder", data.path(), "--mode", "Survey"});
    EXPECT_EQ(r.code, 1);
    EXPECT_NE(r.err.find("BUILD YOUR SURVEY IN SETUP"), std::string::npos);
}

TEST(CliBuild, UsageErrorsExitTwo)
{
    TempDir data;
    EXPECT_EQ(Cli({"build"}).code, 2);
    EXPECT_EQ(Cli({"build", "x.fms", "--mode", "poll", "--data-folder", data.path()}).code, 2);
    EXPECT_EQ(Cli({"build", "x.fms", "--colour", "--data-folder", data.path()}).code, 2);
    EXPECT_EQ(Cli({"build", "x.fms", "--data-folder"}).code, 2);
    EXPECT_EQ(Cli({"build", "x.fms", "--data-folder", data.file("none")}).code, 2);
    const CliRun missing = Cli({"build", data.file("nothing.fms"), "--data-folder", data.path()});
    EXPECT_EQ(missing.code, 1);
    EXPECT_NE(missing.err.find("cannot read"), std::string::npos);
}

TEST(CliBuild, TheBuiltProgramBuildsTheSample)
{
    TempDir web;
    TempDir data;
    const std::string cmd = std::string("'") + TQ_CLI_BINARY + "' build '" + Sample("sample_survey.srv") +
                            "' --web-folder '" + web.path() + "' --data-folder '" + data.path() + "' >/dev/null 2>&1";
    EXPECT_EQ(std::system(cmd.c_str()), 0);
    EXPECT_TRUE(std::filesystem::exists(web.file("surveytql.htm")));
}
