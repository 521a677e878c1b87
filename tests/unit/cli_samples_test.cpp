// SPDX-License-Identifier: GPL-3.0-or-later
// The shipped samples, built with tarnquill-cli in process, against their
// reviewed golden pages and scripts; and a built project whose script PHP
// cannot run by design.
#include "run_cli.h"
#include "scripted_port.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

using tq::test::ReadFileBytes;
using tq::test::TempDir;

namespace {

struct Built
{
    int code = 0;
    std::string err;
    std::string html;
    std::string php;
};

// Builds `project` with the whole page into a fresh web folder.
Built BuildWholePage(const std::string& project, const std::string& stem)
{
    TempDir web;
    TempDir data;
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    Built b;
    b.code = tq::cli::RunCli(
        {"build", project, "--whole-page", "--replace", "--web-folder", web.path(), "--data-folder", data.path()}, in,
        out, err);
    b.err = err.str();
    b.html = ReadFileBytes(web.file(stem + ".htm"));
    b.php = ReadFileBytes(web.file(stem + ".php"));
    return b;
}

struct SampleCase
{
    const char* project; // under data/samples
    const char* golden;  // folder under tests/golden/samples
    const char* stem;    // output file name without extension
};

constexpr SampleCase kSamples[] = {
    {"sample_form.fms", "form", "formtql"},
    {"sample_form_2.fms", "form_2", "formtql"},
    {"sample_survey.srv", "survey", "surveytql"},
    {"sample_survey_2.srv", "survey_2", "surveytql"},
};

} // namespace

TEST(CliSamples, EachSampleBuildsToItsGoldenPageAndScript)
{
    for (const auto& c : kSamples) {
        SCOPED_TRACE(c.project);
        const Built b = BuildWholePage(std::string(TQ_DATA_DIR) + "/samples/" + c.project, c.stem);
        ASSERT_EQ(b.code, 0) << b.err;
        const std::string golden = std::string(TQ_GOLDEN_DIR) + "/samples/" + c.golden + "/" + c.stem;
        EXPECT_EQ(b.html, ReadFileBytes(golden + ".htm"));
        EXPECT_EQ(b.php, ReadFileBytes(golden + ".php"));
    }
}

// CELL PHONE NUMBER and USER NAME take a blank into their variable name
// ("$cell 5"): the build writes the script as it stands, and PHP refuses it
// at that line. A project holding either can be built but not submitted.
TEST(CliSamples, ABlankInsideAVariableNameIsBuiltAndPhpNamesTheLine)
{
    const Built b = BuildWholePage(std::string(TQ_SOURCE_DIR) + "/tests/e2e/fixtures/blank_keys.fms", "formtql");
    ASSERT_EQ(b.code, 0) << b.err;
    const std::string line = "$cell 5 = $_POST[\"cell 5\"];\r\n";
    const size_t at = b.php.find(line);
    ASSERT_NE(at, std::string::npos);
    EXPECT_NE(b.php.find("$user 7 = check_entry($_POST[\"user 7\"],"), std::string::npos);
    const long lineNo = 1 + std::count(b.php.begin(), b.php.begin() + static_cast<long>(at), '\n');

    if (std::system("php -v >/dev/null 2>&1") != 0)
        GTEST_SKIP() << "php is not installed";
    TempDir dir;
    tq::test::WriteFileBytes(dir.file("formtql.php"), b.php);
    const std::string cmd = "php -l '" + dir.file("formtql.php") + "' 2>&1";
    FILE* p = ::popen(cmd.c_str(), "r");
    ASSERT_NE(p, nullptr);
    std::string said;
    char buf[512];
    while (size_t n = std::fread(buf, 1, sizeof buf, p))
        said.append(buf, n);
    EXPECT_NE(::pclose(p), 0) << said;
    EXPECT_NE(said.find("Parse error"), std::string::npos) << said;
    EXPECT_NE(said.find("on line " + std::to_string(lineNo)), std::string::npos) << said;
}
