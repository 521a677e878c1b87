// SPDX-License-Identifier: GPL-3.0-or-later
#include "cmd_serve.h"
#include "commands.h"
#include "run_process.h"
#include "scripted_port.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>

using namespace tq;

TEST(CliServe, PointsTheProjectAtTheServedFolder)
{
    bool found = false;
    const std::string project = "********************************\r\nSetup\r\n****\r\n\r\n"
                                "[Drive Folder Path=/home/ann/site]\r\n[TQL Output File=formtql.htm]\r\n";
    EXPECT_EQ(cli::PointProjectAt(project, "/tmp/x/site", found),
              "********************************\r\nSetup\r\n****\r\n\r\n"
              "[Drive Folder Path=/tmp/x/site]\r\n[TQL Output File=formtql.htm]\r\n");
    EXPECT_TRUE(found);
    // an unclosed value ends at the line end; the case of the key does not matter
    EXPECT_EQ(cli::PointProjectAt("[DRIVE folder PATH=C:\\web\r\n[X=1]", "/s", found),
              "[DRIVE folder PATH=/s\r\n[X=1]");
    EXPECT_EQ(cli::PointProjectAt("[Title=x]", "/s", found), "[Title=x]");
    EXPECT_FALSE(found);
}

TEST(CliServe, MailCaptureStoresEachMailWhole)
{
    test::TempDir dir;
    const std::string script = dir.file("capture.sh");
    test::WriteFileBytes(script, cli::MailCaptureScript(dir.path()));
    const std::string cmd = "printf 'To: a@b.c\\nSubject: S\\n\\nbody' | sh '" + script + "'";
    ASSERT_EQ(std::system(cmd.c_str()), 0);
    ASSERT_EQ(std::system(cmd.c_str()), 0);
    int mails = 0;
    for (const auto& e : std::filesystem::directory_iterator(dir.path())) {
        if (e.path().filename().string().rfind("mail-", 0) != 0)
            continue;
        ++mails;
        EXPECT_EQ(test::ReadFileBytes(e.path().string()), "To: a@b.c\nSubject: S\n\nbody");
    }
    EXPECT_EQ(mails, 2);
}

TEST(CliServe, UsageAndMissingPhp)
{
    std::ostringstream out, err;
    EXPECT_EQ(cli::CmdServe({}, out, err), 2);
    EXPECT_EQ(cli::CmdServe({"a.fms", "--port", "0"}, out, err), 2);
    // with no php on the path the command says how to get it
    const auto r =
        cli::RunProcess("sh", {"-c", "PATH=/nonexistent '" + std::string(TQ_CLI_BINARY) + "' serve x.fms"}, 10000);
    ASSERT_TRUE(r.has_value());
    std::string text = r->output;
    text.erase(text.find_last_not_of('\n') + 1); // the last line end
    EXPECT_EQ(r->exitCode, 1);
    EXPECT_TRUE(text.ends_with("Install it with: sudo apt-get install php-cli")) << text;
}
