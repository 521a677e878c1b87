// SPDX-License-Identifier: GPL-3.0-or-later
#include "scripted_port.h"
#include "shell/version_check.h"

#include <gtest/gtest.h>

using namespace tq;

TEST(VersionCheck, EachOutcomeHasItsMessage)
{
    const char* url = "http://127.0.0.1:1/tarnquill/download/revision.txt";
    const char* page = "http://127.0.0.1:1/tarnquill/download/download.htm";
    const std::string current = "Current version : 2.00.0002\rLatest Version    : ";
    const std::string offer = "\r\rA new version is available. Would you like to download the new version?"
                              "\r\rNote: Exit Tarnquill before installing the new version of Tarnquill";
    const struct
    {
        std::optional<std::string> body;
        std::string text;
        std::string title;
        Icon icon;
    } cases[] = {
        {"2.00.0002", current + "2.00.0002\r\rYou have the latest version", "VERSION UP TO DATE", Icon::Information},
        {"2.00.0003", current + "2.00.0003" + offer, "DOWNLOAD NEW VERSION", Icon::Question},
        {"2.00.0002\r\n", current + "2.00.0002\r\n" + offer, "DOWNLOAD NEW VERSION", Icon::Question},
        {"", "Cannot retrieve the revision from the website", "ERROR", Icon::Critical},
        {std::nullopt, "Cannot retrieve revision. Web Server may be down", "Tarnquill", Icon::Exclamation},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        test::ScriptedPort ui;
        ui.http(c.body);
        if (c.title == "DOWNLOAD NEW VERSION")
            ui.answer(Answer::Yes); // No is the default button: only Yes opens the page
        shell::CheckForUpdate(ui, url, page);
        ASSERT_EQ(ui.shown.size(), 1u);
        EXPECT_TRUE(Said(ui.last(), c.text, c.title, c.icon));
        EXPECT_EQ(ui.httpUrls.at(0), url);
        EXPECT_EQ(ui.busyCalls, (std::vector<bool>{true, false}));
        EXPECT_EQ(ui.opened,
                  c.title == "DOWNLOAD NEW VERSION" ? std::vector<std::string>{page} : std::vector<std::string>{});
    }
}
