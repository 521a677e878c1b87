// SPDX-License-Identifier: GPL-3.0-or-later
#include "run_cli.h"
#include "scripted_port.h"
#include "show/show_file.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>

using namespace tq;

namespace {

int RunShow(const std::vector<std::string>& args, std::string& out, std::string& err)
{
    std::istringstream in;
    std::ostringstream o, e;
    int code = cli::RunCli(args, in, o, e);
    out = o.str();
    err = e.str();
    return code;
}

} // namespace

TEST(CliShow, BuildsASavedShowWithoutQuestions)
{
    test::TempDir dir, data;
    show::ShowSettings s;
    s.ImageFolder = dir.path();
    s.WebImageFolder = "https://club.example/photos";
    const std::string file = dir.file("a.shw");
    test::WriteFileBytes(file, show::ShowFileText(s));

    std::string out, err;
    ASSERT_EQ(
        RunShow({"show", file, "--template", std::string(TQ_DATA_DIR) + "/photodata.php", "--data-folder", data.path()},
                out, err),
        0)
        << err;
    EXPECT_EQ(out, dir.file("photoshow.php") + "\n" + dir.file("readmeshow.txt") + "\n" +
                       "https://club.example/photos/photoshow.php\n");
    EXPECT_EQ(err.rfind("DONE: 1. FTP all of your images to your web server to https://club.example/photos\n", 0), 0u)
        << err;
    EXPECT_NE(test::ReadFileBytes(dir.file("photoshow.php")).find("\r\n$imgsperline=5;\r\n"), std::string::npos);
    EXPECT_TRUE(std::filesystem::exists(data.file("history.txt")));
}

TEST(CliShow, UsageErrorsAndStops)
{
    test::TempDir dir;
    std::string out, err;
    EXPECT_EQ(RunShow({"show"}, out, err), 2);
    EXPECT_EQ(RunShow({"show", "a.shw"}, out, err), 2);
    EXPECT_EQ(RunShow({"show", "a.shw", "--template", "t", "--what"}, out, err), 2);
    EXPECT_EQ(RunShow({"show", dir.file("none.shw"), "--template", "t"}, out, err), 1);

    // a show whose image folder is gone stops with the check's message
    show::ShowSettings s;
    s.ImageFolder = dir.file("gone");
    test::WriteFileBytes(dir.file("a.shw"), show::ShowFileText(s));
    EXPECT_EQ(RunShow({"show", dir.file("a.shw"), "--template", "t"}, out, err), 1);
    EXPECT_EQ(err, "ERROR: " + dir.file("gone") + " DOES NOT EXIST\n\nCHECK THE FOLDER PATH AND TRY AGAIN\n");
    EXPECT_EQ(out, "");
}
