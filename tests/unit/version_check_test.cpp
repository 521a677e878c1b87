// SPDX-License-Identifier: GPL-3.0-or-later
#include "scripted_port.h"
#include "shell/version_check.h"

#include <gtest/gtest.h>

using namespace tq;

namespace {
const char* kUrl = "http://127.0.0.1:1/tarnquill/download/revision.txt";
const char* kPage = "http://127.0.0.1:1/tarnquill/download/download.htm";
} // namespace

TEST(VersionCheck, EqualTextIsUpToDate)
{
    test::ScriptedPort ui;
    ui.http(std::string("2.00.0002"));
    shell::CheckForUpdate(ui, kUrl, kPage);
    ASSERT_EQ(ui.shown.size(), 1u);
    EXPECT_TRUE(Said(ui.last(),
                     "Current version : 2.00.0002\rLatest Version    : 2.00.0002\r\rYou have the latest version",
                     "VERSION UP TO DATE"));
    EXPECT_EQ(ui.httpUrls.at(0), kUrl);
    EXPECT_EQ(ui.busyCalls, (std::vector<bool>{true, false}));
}

TEST(VersionCheck, AnyDifferenceOffersTheDownloadAndYesOpensIt)
{
    for (std::string body : {"2.00.0003", "1.00.0000", "2.00.0002\r\n"}) {
        test::ScriptedPort ui;
        ui.http(body);
        ui.answer(Answer::Yes);
        shell::CheckForUpdate(ui, kUrl, kPage);
        EXPECT_TRUE(Said(ui.last(),
                         "Current version : 2.00.0002\rLatest Version    : " + body +
                             "\r\rA new version is available. Would you like to download the new version?"
                             "\r\rNote: Exit Tarnquill before installing the new version of Tarnquill",
                         "DOWNLOAD NEW VERSION"));
        EXPECT_EQ(ui.opened, std::vector<std::string>{kPage});
    }
    test::ScriptedPort ui;
    ui.http(std::string("3"));
    ui.answer(Answer::No);
    shell::CheckForUpdate(ui, kUrl, kPage);
    EXPECT_TRUE(ui.opened.empty());
}

TEST(VersionCheck, EmptyBodyAndTransferFailureHaveTheirOwnMessages)
{
    test::ScriptedPort empty;
    empty.http(std::string());
    shell::CheckForUpdate(empty, kUrl, kPage);
    EXPECT_TRUE(Said(empty.last(), "Cannot retrieve the revision from the website", "ERROR", Icon::Critical));
    test::ScriptedPort down;
    down.http(std::nullopt);
    shell::CheckForUpdate(down, kUrl, kPage);
    EXPECT_EQ(down.last().text, "Cannot retrieve revision. Web Server may be down");
    EXPECT_EQ(down.busyCalls.back(), false);
}
