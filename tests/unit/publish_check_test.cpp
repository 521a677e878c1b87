// SPDX-License-Identifier: GPL-3.0-or-later
#include "scripted_port.h"
#include "shell/publish_check.h"

#include <gtest/gtest.h>

using namespace tq;
using namespace tq::shell;
using test::ScriptedPort;
using test::TempDir;
using test::WriteFileBytes;

namespace {

// A build whose flat list holds NAME in slot 3 and CELL PHONE NUMBER in slot 11.
build::BuildState Built(const std::string& phpPath)
{
    build::BuildState b;
    b.phpPath = phpPath;
    b.flatList.at(1) = "Setup";
    b.flatList.at(3) = "Name";
    b.flatList.at(11) = "Cell Phone Number";
    b.flatList.at(13) = "Email";
    b.flatList.EntryLineCount = 14;
    return b;
}

const std::string kScript = "<?php\r\n$name3 = $_POST[\"name3\"];\r\n$cell 11 = $_POST[\"cell 11\"];\r\n?>\r\n";
const std::string kRefused = "PHP Parse error:  syntax error, unexpected integer \"11\" in /w/formtql.php on line 3\n"
                             "Errors parsing /w/formtql.php\n";

} // namespace

TEST(PublishCheck, PhpsLineAndWordsMakeTheWarning)
{
    EXPECT_EQ(PhpErrorLine(kRefused), 3);
    EXPECT_EQ(PhpErrorLine("No syntax errors detected in x.php\n"), 0);
    EXPECT_EQ(PhpErrorLine("on line 99999999999999"), 0);
    auto b = Built("/w/formtql.php");
    b.flatList.at(11) = "Phone Number";
    EXPECT_EQ(PublishWarning(b, kRefused, kScript),
              "WARNING: PHP cannot run formtql.php (line 3): syntax error, unexpected integer \"11\"");
}

TEST(PublishCheck, NamesTheInputTypeWhoseFieldNameBreaksTheScriptAndNothingElse)
{
    TempDir dir;
    WriteFileBytes(dir.file("formtql.php"), kScript);
    ScriptedPort ui;
    ui.process(ProcessResult{255, kRefused});
    const PublishCheck r = CheckPublishedScript(Built(dir.file("formtql.php")), ui);
    ASSERT_EQ(ui.ran.size(), 1u);
    EXPECT_EQ(ui.ran[0], (std::vector<std::string>{"php", "-l", dir.file("formtql.php")}));
    EXPECT_TRUE(r.checked);
    EXPECT_FALSE(r.parses);
    EXPECT_EQ(r.warning, "WARNING: PHP cannot run formtql.php: the field name \"cell 11\" of the Input Type Cell "
                         "Phone Number is not a valid PHP variable name (line 3). Remove or replace that Entry "
                         "before you upload formtql.php.");
    EXPECT_TRUE(ui.shown.empty());
    // the script is only read
    EXPECT_EQ(test::ReadFileBytes(dir.file("formtql.php")), kScript);
    // a script that parses, or no php, gives no warning
    ScriptedPort ok;
    ok.process(ProcessResult{0, "No syntax errors detected in formtql.php\n"});
    const PublishCheck parsed = CheckPublishedScript(Built(dir.file("formtql.php")), ok);
    EXPECT_TRUE(parsed.checked);
    EXPECT_TRUE(parsed.parses);
    EXPECT_EQ(parsed.warning, "");
    ScriptedPort noPhp; // nothing queued: php could not be started
    const PublishCheck unchecked = CheckPublishedScript(Built(dir.file("formtql.php")), noPhp);
    EXPECT_FALSE(unchecked.checked);
    EXPECT_TRUE(unchecked.parses);
    ScriptedPort noScript;
    EXPECT_FALSE(CheckPublishedScript(Built(dir.file("missing.php")), noScript).checked);
    EXPECT_TRUE(noScript.ran.empty());
}
