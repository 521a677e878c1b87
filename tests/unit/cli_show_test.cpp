// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli_fixture.h"
#include "scripted_port.h"
#include "show/show_file.h"

#include <filesystem>
#include <gtest/gtest.h>

using namespace tq;
using test::Cli;

TEST(CliShow, BuildsASavedShowWithoutQuestions)
{
    test::TempDir dir, data;
    show::ShowSettings s;
    s.ImageFolder = dir.path();
    s.WebImageFolder = "https://club.example/photos";
    const std::string file = dir.file("a.shw");
    test::WriteFileBytes(file, show::ShowFileText(s));
    const auto r =
        Cli({"show", file, "--template", std::string(TQ_DATA_DIR) + "/photodata.php", "--data-folder", data.path()});
    ASSERT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(r.out, dir.file("photoshow.php") + "\n" + dir.file("readmeshow.txt") + "\n" +
                         "https://club.example/photos/photoshow.php\n");
    EXPECT_EQ(r.err.rfind("DONE: 1. FTP all of your images to your web server to https://club.example/photos\n", 0), 0u)
        << r.err;
    EXPECT_NE(test::ReadFileBytes(dir.file("photoshow.php")).find("\r\n$imgsperline=5;\r\n"), std::string::npos);
    EXPECT_TRUE(std::filesystem::exists(data.file("history.txt")));
}

TEST(CliShow, UsageErrorsAndStops)
{
    test::TempDir dir;
    EXPECT_EQ(Cli({"show"}).code, 2);
    EXPECT_EQ(Cli({"show", "a.shw"}).code, 2);
    EXPECT_EQ(Cli({"show", "a.shw", "--template", "t", "--what"}).code, 2);
    EXPECT_EQ(Cli({"show", dir.file("none.shw"), "--template", "t"}).code, 1);
    // a show whose image folder is gone stops with the check's message
    show::ShowSettings s;
    s.ImageFolder = dir.file("gone");
    test::WriteFileBytes(dir.file("a.shw"), show::ShowFileText(s));
    const auto r = Cli({"show", dir.file("a.shw"), "--template", "t"});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.err, "ERROR: " + dir.file("gone") + " DOES NOT EXIST\n\nCHECK THE FOLDER PATH AND TRY AGAIN\n");
    EXPECT_EQ(r.out, "");
}
