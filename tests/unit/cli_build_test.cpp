// SPDX-License-Identifier: GPL-3.0-or-later
// tarnquill-cli run in process, and the built program run by a shell.
#include "project_text.h"
#include "run_cli.h"
#include "run_process.h"
#include "scripted_port.h"
#include "show/show_file.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>

using namespace tq::test;

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
    std::ostringstream out, err;
    const int code = tq::cli::RunCli(args, in, out, err);
    return {code, out.str(), err.str()};
}

/// Runs a shell command line; stdout and stderr come back as one text.
tq::ProcessResult Shell(const std::string& line)
{
    const auto r = tq::cli::RunProcess("sh", {"-c", line}, 60000);
    return r ? *r : tq::ProcessResult{-1, "not run"};
}

} // namespace

TEST(CliBuild, UsageErrorsExitTwo)
{
    TempDir data;
    for (const auto& args :
         std::vector<std::vector<std::string>>{{"build"},
                                               {"build", "x.fms", "--mode", "poll"},
                                               {"build", "x.fms", "--data-folder", data.file("none")},
                                               {"new", "poll", data.file("x.fms")},
                                               {"show", "a.shw"},
                                               {"serve", "a.fms", "--port", "0"}})
        EXPECT_EQ(Cli(args).code, 2) << args.back();
}

TEST(CliBuild, AScriptPhpRefusesIsNamedOnStderrAndTheBuildStands)
{
    if (!tq::cli::RunProcess("php", {"-v"}, 10000))
        GTEST_SKIP() << "php is not installed";
    auto project = [](const std::string& folder, const std::string& type) {
        return ProjectFileText(
            {{"Setup", SetupEntryText(folder, {.from = "Shop", .submit = "Send", .image = ";x"})},
             {type, "[Title=Enter your cell phone number] [Info: d]\r\n[Error Message=No phone] [Info: e]\r\n"
                    "[Title Size=3] [Info: f]\r\n[Phone # Default Value=none] [Info: n]\r\n"
                    "[Align=left] [Choices=left,right,center]\r\n[Width=25] [Info: w]\r\n[Italics=off] [Info: o]\r\n"
                    "[Bold=off] [Info: o]\r\n[Text Color=0] [Choices=c]\r\n[Required=no] [Info: y]\r\n"}});
    };
    TempDir web, data;
    WriteFileBytes(web.file("p.fms"), project(web.path(), "Cell Phone Number"));
    const CliRun r = Cli({"build", web.file("p.fms"), "--data-folder", data.path()});
    EXPECT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(r.out, web.file("formtql.htm") + "\n" + web.file("formtql.php") + "\n");
    // the Entry sits in slot 3 of the flat list: its field name is "cell 3"
    EXPECT_EQ(r.err.rfind("WARNING: PHP cannot run formtql.php: the field name \"cell 3\" of the Input Type Cell "
                          "Phone Number is not a valid PHP variable name (line ",
                          0),
              0u)
        << r.err;
    EXPECT_EQ(std::count(r.err.begin(), r.err.end(), '\n'), 1) << r.err;
    WriteFileBytes(web.file("p.fms"), project(web.path(), "Phone Number"));
    const CliRun ok = Cli({"build", web.file("p.fms"), "--data-folder", data.path(), "--replace"});
    EXPECT_EQ(ok.code, 0) << ok.err;
    EXPECT_EQ(ok.err.find("WARNING"), std::string::npos) << ok.err;
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
}

TEST(CliNew, TheProgramsNewThenBuildStopsWithItsMessageWhileTheSamplesBuild)
{
    TempDir dir, data;
    const std::string cli = std::string("'") + TQ_CLI_BINARY + "'";
    const std::string x = "'" + dir.file("x.fms") + "'";
    const auto stopped = Shell(cli + " new form " + x + " >/dev/null && " + cli + " build " + x + " --data-folder '" +
                               data.path() + "'");
    EXPECT_EQ(stopped.exitCode, 1);
    EXPECT_EQ(stopped.output.rfind("PATH ERROR: The path to the current web folder does not exist\n", 0), 0u)
        << stopped.output;
    for (const char* sample : {"sample_form.fms", "sample_form_2.fms", "sample_survey.srv", "sample_survey_2.srv"}) {
        TempDir out;
        const auto r = Shell(cli + " build '" + std::string(TQ_DATA_DIR) + "/samples/" + sample + "' --data-folder '" +
                             data.path() + "' --web-folder '" + out.path() + "' >/dev/null");
        EXPECT_EQ(r.exitCode, 0) << sample << r.output;
    }
}

TEST(CliShow, AMissingShowAndAMissingImageFolderStopWithTheirMessages)
{
    TempDir dir;
    const auto none = Cli({"show", dir.file("none.shw"), "--template", "t"});
    EXPECT_EQ(none.code, 1);
    EXPECT_EQ(none.err, "tarnquill-cli: show: cannot read '" + dir.file("none.shw") + "'\n");
    tq::show::ShowSettings s;
    s.ImageFolder = dir.file("gone");
    WriteFileBytes(dir.file("a.shw"), tq::show::ShowFileText(s));
    const auto r = Cli({"show", dir.file("a.shw"), "--template", "t"});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.err, "ERROR: " + dir.file("gone") + " DOES NOT EXIST\n\nCHECK THE FOLDER PATH AND TRY AGAIN\n");
    EXPECT_EQ(r.out, "");
}

TEST(CliServe, WithoutPhpItSaysHowToGetIt)
{
    const auto r = Shell("PATH=/nonexistent '" + std::string(TQ_CLI_BINARY) + "' serve x.fms");
    EXPECT_EQ(r.exitCode, 1);
    std::string text = r.output;
    text.erase(text.find_last_not_of('\n') + 1);
    EXPECT_TRUE(text.ends_with("Install it with: sudo apt-get install php-cli")) << text;
}
