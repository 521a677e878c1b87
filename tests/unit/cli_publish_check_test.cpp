// SPDX-License-Identifier: GPL-3.0-or-later
// tarnquill-cli build runs php -l on the script it wrote and warns when PHP
// cannot parse it; the exit code and the files stay as they are.
#include "run_cli.h"
#include "run_process.h"
#include "scripted_port.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>

using tq::test::ReadFileBytes;
using tq::test::TempDir;
using tq::test::WriteFileBytes;

namespace {

std::string Project(const std::string& folder, const std::string& secondType)
{
    std::string p = "********************************\r\nSetup\r\n********************************\r\n\r\n"
                    "[Drive Folder Path=" +
                    folder +
                    "] [Info: f]\r\n[TQL Output File=formtql.htm] [Info: f]\r\n[FROM=Shop] [Info: f]\r\n"
                    "[Completed=thankyou.htm] [Info: f]\r\n[GLOBAL ALIGN=NONE] [Info: f]\r\n"
                    "[GLOBAL TEXT COLOR=NONE] [Choices=f]\r\n[Submit Name=Send] [Info: f]\r\n"
                    "[SUBMIT ALIGN=LEFT] [Choices=f]\r\n[Submit Button Color=0] [Choices=f]\r\n"
                    "[Background image path=;x] [Info: f]\r\n[Email #1=webmaster@tarnquill.example] [Info: f]\r\n"
                    "[Email #2=none] [Info: f]\r\n[Email #3=none] [Info: f]\r\n[Number Each Question=YES] [Info: f]\r\n"
                    "[Show Tool Tips=YES] [Info: f]\r\n[Include Frame With Form=NO] [Info: f]\r\n"
                    "[Frame Border Color=52736] [Info: f]\r\n[Frame Color=16384] [Info: f]\r\n"
                    "[Total Frames=1] [Info: f]\r\n";
    p += "\r\n********************************\r\n" + secondType +
         "\r\n********************************\r\n\r\n"
         "[Title=Enter your cell phone number] [Info: d]\r\n[Error Message=Your contact phone number was not "
         "entered] [Info: e]\r\n[Title Size=3] [Info: f]\r\n[Phone # Default Value=none] [Info: n]\r\n"
         "[Align=left] [Choices=left,right,center]\r\n[Width=25] [Info: w]\r\n[Italics=off] [Info: o]\r\n"
         "[Bold=off] [Info: o]\r\n[Text Color=0] [Choices=Change the current color.]\r\n[Required=no] [Info: y]\r\n";
    return p;
}

struct CliRun
{
    int code;
    std::string out, err;
};

CliRun Build(const std::string& file, const std::string& data)
{
    std::istringstream in;
    std::ostringstream out, err;
    int code = tq::cli::RunCli({"build", file, "--data-folder", data}, in, out, err);
    return {code, out.str(), err.str()};
}

bool HavePhp()
{
    return tq::cli::RunProcess("php", {"-v"}, 10000).has_value();
}

} // namespace

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
    WriteFileBytes(web.file("p.fms"), Project(web.path(), "Cell Phone Number"));
    const CliRun r = Build(web.file("p.fms"), data.path());
    EXPECT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(r.out, web.file("formtql.htm") + "\n" + web.file("formtql.php") + "\n");
    // the Entry sits in slot 3 of the flat list: its field name is "cell 3"
    EXPECT_NE(r.err.find("WARNING: PHP cannot run formtql.php: the field name \"cell 3\" of the Input Type Cell Phone "
                         "Number is not a valid PHP variable name (line "),
              std::string::npos)
        << r.err;
    EXPECT_EQ(std::count(r.err.begin(), r.err.end(), '\n'), 1) << r.err;
    // the script keeps the name as the format writes it
    EXPECT_NE(ReadFileBytes(web.file("formtql.php")).find("$cell 3 = $_POST[\"cell 3\"];"), std::string::npos);
}

TEST(CliPublishCheck, AScriptThatParsesGivesNoWarning)
{
    if (!HavePhp())
        GTEST_SKIP() << "php is not installed";
    TempDir web, data;
    WriteFileBytes(web.file("p.fms"), Project(web.path(), "Phone Number"));
    const CliRun r = Build(web.file("p.fms"), data.path());
    EXPECT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(r.err, "");
}
