// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli_fixture.h"
#include "project_text.h"
#include "run_process.h"
#include "scripted_port.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace tq::test;

namespace {

std::string SetupOnlyProject(const std::string& folder, const std::string& from)
{
    return ProjectFileText({{"Setup", SetupEntryText(folder, {.from = from, .submit = "Send", .image = ";x"})}});
}

/// A project of a SetupEntry and one Entry of `type` with a phone number's items.
std::string PhoneProject(const std::string& folder, const std::string& type)
{
    return ProjectFileText(
        {{"Setup", SetupEntryText(folder, {.from = "Shop", .submit = "Send", .image = ";x"})},
         {type, "[Title=Enter your cell phone number] [Info: d]\r\n[Error Message=Your contact phone number was not "
                "entered] [Info: e]\r\n[Title Size=3] [Info: f]\r\n[Phone # Default Value=none] [Info: n]\r\n"
                "[Align=left] [Choices=left,right,center]\r\n[Width=25] [Info: w]\r\n[Italics=off] [Info: o]\r\n"
                "[Bold=off] [Info: o]\r\n[Text Color=0] [Choices=Change the current color.]\r\n[Required=no] [Info: "
                "y]\r\n"}});
}

bool HavePhp()
{
    return tq::cli::RunProcess("php", {"-v"}, 10000).has_value();
}

} // namespace

TEST(CliBuild, EachSampleBuildsToItsGoldenPageAndScript)
{
    const struct
    {
        const char* project;
        const char* golden;
        const char* stem;
    } samples[] = {{"sample_form.fms", "form", "formtql"},
                   {"sample_form_2.fms", "form_2", "formtql"},
                   {"sample_survey.srv", "survey", "surveytql"},
                   {"sample_survey_2.srv", "survey_2", "surveytql"}};
    for (const auto& c : samples) {
        TempDir web, data;
        const CliRun r = Cli({"build", Sample(c.project), "--whole-page", "--replace", "--web-folder", web.path(),
                              "--data-folder", data.path()});
        ASSERT_EQ(r.code, 0) << c.project << r.err;
        const std::string stem = web.file(c.stem);
        EXPECT_EQ(r.out, stem + ".htm\n" + stem + ".php\n") << c.project;
        const std::string golden = std::string(TQ_GOLDEN_DIR) + "/samples/" + c.golden + "/" + c.stem;
        EXPECT_EQ(ReadFileBytes(stem + ".htm"), ReadFileBytes(golden + ".htm")) << c.project;
        EXPECT_EQ(ReadFileBytes(stem + ".php"), ReadFileBytes(golden + ".php")) << c.project;
    }
}

TEST(CliBuild, WholePageAndReplaceAnswerTheQuestionsAboutExistingFiles)
{
    TempDir web, data;
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

TEST(CliBuild, SamplesFlagAndModeOfTheSetupEntryStopWithTheirMessages)
{
    TempDir web, data;
    const std::string project = data.file("x.fms");
    WriteFileBytes(project, SetupOnlyProject(web.path(), ";My Web Page"));
    const CliRun r = Cli({"build", project, "--data-folder", data.path()});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(
        r.err.rfind("INVALID ENTRIES: THERE ARE ERRORS THAT NEED TO BE CORRECTED BEFORE YOU CAN BUILD YOUR FORM", 0),
        0u);
    EXPECT_EQ(r.out, "");
    // the mode comes from the extension unless given
    const CliRun survey = Cli({"build", project, "--data-folder", data.path(), "--mode", "Survey"});
    EXPECT_EQ(survey.code, 1);
    EXPECT_NE(survey.err.find("BUILD YOUR SURVEY IN SETUP"), std::string::npos);
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

TEST(CliPublishCheck, RunProcessReportsOutputExitCodeAndAMissingProgram)
{
    auto r = tq::cli::RunProcess("sh", {"-c", "echo out; echo err 1>&2; exit 3"}, 10000);
    ASSERT_TRUE(r.has_value());
    EXPECT_EQ(r->exitCode, 3);
    EXPECT_EQ(r->output, "out\nerr\n");
    EXPECT_FALSE(tq::cli::RunProcess("/no/such/program", {}, 10000).has_value());
    EXPECT_FALSE(tq::cli::RunProcess("sleep", {"5"}, 200).has_value());
}

TEST(CliPublishCheck, ACellPhoneNumberEntryIsNamedAndTheBuildStands)
{
    if (!HavePhp())
        GTEST_SKIP() << "php is not installed";
    TempDir web, data;
    WriteFileBytes(web.file("p.fms"), PhoneProject(web.path(), "Cell Phone Number"));
    const CliRun r = Cli({"build", web.file("p.fms"), "--data-folder", data.path()});
    EXPECT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(r.out, web.file("formtql.htm") + "\n" + web.file("formtql.php") + "\n");
    // the Entry sits in slot 3 of the flat list: its field name is "cell 3"
    EXPECT_NE(r.err.find("WARNING: PHP cannot run formtql.php: the field name \"cell 3\" of the Input Type Cell Phone "
                         "Number is not a valid PHP variable name (line "),
              std::string::npos)
        << r.err;
    EXPECT_EQ(std::count(r.err.begin(), r.err.end(), '\n'), 1) << r.err;
    EXPECT_NE(ReadFileBytes(web.file("formtql.php")).find("$cell 3 = $_POST[\"cell 3\"];"), std::string::npos);
    // the same Entry as a plain phone number parses: no warning
    WriteFileBytes(web.file("p.fms"), PhoneProject(web.path(), "Phone Number"));
    const CliRun ok = Cli({"build", web.file("p.fms"), "--data-folder", data.path(), "--replace"});
    EXPECT_EQ(ok.code, 0) << ok.err;
    EXPECT_EQ(ok.err.find("WARNING"), std::string::npos) << ok.err;
}

// CELL PHONE NUMBER and USER NAME take a blank into their variable name
// ("$cell 5"): the script is written as it stands and PHP refuses it at that line.
TEST(CliPublishCheck, ABlankInsideAVariableNameIsBuiltAndPhpNamesTheLine)
{
    TempDir web, data;
    const CliRun r = Cli({"build", std::string(TQ_SOURCE_DIR) + "/tests/e2e/fixtures/blank_keys.fms", "--whole-page",
                          "--replace", "--web-folder", web.path(), "--data-folder", data.path()});
    ASSERT_EQ(r.code, 0) << r.err;
    const std::string php = ReadFileBytes(web.file("formtql.php"));
    const size_t at = php.find("$cell 5 = $_POST[\"cell 5\"];\r\n");
    ASSERT_NE(at, std::string::npos);
    EXPECT_NE(php.find("$user 7 = check_entry($_POST[\"user 7\"],"), std::string::npos);
    const long lineNo = 1 + std::count(php.begin(), php.begin() + static_cast<long>(at), '\n');
    if (!HavePhp())
        GTEST_SKIP() << "php is not installed";
    const auto lint = tq::cli::RunProcess("php", {"-l", web.file("formtql.php")}, 10000);
    ASSERT_TRUE(lint.has_value());
    EXPECT_NE(lint->exitCode, 0) << lint->output;
    EXPECT_NE(lint->output.find("Parse error"), std::string::npos) << lint->output;
    EXPECT_NE(lint->output.find("on line " + std::to_string(lineNo)), std::string::npos) << lint->output;
}
