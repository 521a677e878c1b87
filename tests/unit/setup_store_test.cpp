// SPDX-License-Identifier: GPL-3.0-or-later
#include "port/platform.h"
#include "scripted_port.h"
#include "store/setup_store.h"
#include "store/text_file.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <tuple>

using namespace tq;
using store::SetupStore;

TEST(SetupFile, WritesSeventyEightLinesAndReadsThemBack)
{
    SetupStore s;
    for (int n = 0; n < store::kSetupRows; ++n) {
        auto& r = s.rows[static_cast<size_t>(n)];
        r.MenuName = "Site " + std::to_string(n);
        r.WebServerPath = "https://h" + std::to_string(n) + ".example/a)b/index.htm";
        r.WebFolderPath = "/srv/www/" + std::to_string(n) + "  ";
        r.EmailAddress = n == 3 ? "" : "me@h" + std::to_string(n) + ".example";
    }
    const std::string bytes = store::SaveSetupFields(s);
    auto lines = store::SplitFileLines(bytes);
    ASSERT_EQ(lines.size(), 78u);
    EXPECT_EQ(bytes.substr(0, 21), " 0) Site 0\r\n 0) https");
    EXPECT_EQ(lines[18], " 3) ");         // an empty field keeps its prefix alone
    EXPECT_EQ(lines[50], " 10) Site 10"); // rows 10 to 14: a prefix one longer
    EXPECT_EQ(lines[73], " 14) me@h14.example");
    EXPECT_EQ(std::vector<std::string>(lines.begin() + 74, lines.end()),
              (std::vector<std::string>{"", "1) /usr/bin/filezilla", "2) /usr/bin/bluefish", "3) /usr/bin/xdg-open"}));
    EXPECT_EQ(bytes.substr(bytes.size() - 2), "\r\n");
    SetupStore back;
    ASSERT_TRUE(store::ReadSetupFields(back, bytes));
    // a ")" inside a value and trailing blanks survive
    const auto fields = [](const store::SetupRow& r) {
        return std::tie(r.MenuName, r.WebServerPath, r.WebFolderPath, r.EmailAddress);
    };
    for (size_t n = 0; n < back.rows.size(); ++n)
        EXPECT_EQ(fields(back.rows[n]), fields(s.rows[n])) << n;
    EXPECT_EQ(store::SaveSetupFields(back), bytes);
}

TEST(SetupFile, ImportOfAShortFileFillsWhatItHasAndAMissingFileIsSaid)
{
    test::TempDir dir;
    test::ScriptedPort port;
    SetupStore setup;
    // cut off behind the menu name of the second row
    test::WriteFileBytes(dir.file("setup.imp"), test::ReadFileBytes(TQ_TEST_DATA_DIR "/broken/truncated_setup.imp"));
    setup.rows[1].WebServerPath = "kept";
    store::ImportSetup(setup, port, dir.path(), true);
    EXPECT_EQ(setup.resultFlag, 1);
    EXPECT_TRUE(port.shown.empty()); // quiet at start
    EXPECT_EQ(setup.rows[0].EmailAddress, "m@m");
    EXPECT_EQ(setup.rows[1].MenuName, "Second");
    EXPECT_EQ(setup.rows[1].WebServerPath, "kept");
    std::filesystem::remove(dir.file("setup.imp"));
    store::ImportSetup(setup, port, dir.path(), false);
    EXPECT_TRUE(
        Said(port.last(),
             "No Setup file has been created. Enter your Setup Information and then go to File and Save Setup. If "
             "you need help in setting up your Setup File, go to Help",
             "SETUP NOT SAVED"));
}

TEST(SetupFile, SortMessages)
{
    test::ScriptedPort port;
    SetupStore setup;
    setup.rows[0] = {"beta", "2", "", "", ""};
    setup.rows[1] = {"Alpha", "z", "", "", ""};
    port.answer(Answer::Yes);
    store::SortSetupByName(setup, port, false);
    EXPECT_EQ(setup.rows[0].MenuName, "Alpha");
    EXPECT_TRUE(Said(port.last(),
                     "The Order has been updated.\rTotal entries sorted were 2\rBe sure to select File "
                     "and Save as Default to keep these changes",
                     "ORDER UPDATED"));
    port.answer(Answer::Yes);
    store::SortSetupByName(setup, port, false);
    EXPECT_TRUE(Said(port.last(), "The list does not require any changes.", "NO CHANGES NEEDED"));
    port.answer(Answer::Yes);
    store::SortSetupByNumber(setup, port, tq::model::Mode::Form);
    EXPECT_TRUE(
        Said(port.last(), "Order number must be greater then 0 and contain a number from 1 to 15", "ORDER ERROR"));
    for (int n = 0; n < store::kSetupRows; ++n)
        setup.rows[static_cast<size_t>(n)].OrderNumber = std::to_string(n + 1);
    setup.rows[0].OrderNumber = "3abc"; // counts 3, ahead of the other 3 by row order
    port.answer(Answer::Yes);
    store::SortSetupByNumber(setup, port, tq::model::Mode::Form);
    EXPECT_EQ(setup.rows[1].MenuName, "Alpha");
    EXPECT_EQ(port.last().text, "The Order has been updated");
    port.answer(Answer::Yes);
    store::SortSetupByNumber(setup, port, tq::model::Mode::Survey);
    EXPECT_EQ(port.last().text, "The Survey is already in sequential order and does not need to be sorted.\r\rTo "
                                "change the Order, change the numbers below the Order button.");
}

TEST(DataFolder, TheStartAsksUntilAFolderIsGivenAndAGoneFolderIsKeptForThisRun)
{
    test::TempDir dir;
    const std::string fixed = dir.file("docs/tarnquill/forms");
    const std::string chosen = dir.file("my forms");
    test::ScriptedPort port;
    port.input(std::nullopt); // cancelled
    port.input("");
    port.input(chosen);
    EXPECT_EQ(store::LoadDataFolder(port, fixed), chosen);
    const auto shown = port.messages();
    ASSERT_EQ(shown.size(), 2u);
    for (const auto& m : shown)
        EXPECT_TRUE(Said(m, "You must choose a folder path before you can continue", "NO FOLDER PATH WAS SELECTED"));
    EXPECT_EQ(test::ReadFileBytes(fixed + "/Tarnquill.stt"), chosen + "\r\n");
    EXPECT_TRUE(std::filesystem::exists(chosen + "/FormHistory.txt"));

    // the folder is gone: one CHANGE PATH run, and this start keeps the old name
    std::filesystem::remove_all(chosen);
    const std::string other = dir.file("other");
    port.clear();
    port.answer(Answer::Yes);
    port.file(other);
    EXPECT_EQ(store::LoadDataFolder(port, fixed), chosen);
    EXPECT_EQ(port.shown.front().title, "CHANGE PATH");
    EXPECT_EQ(port.last().title, "RESTART TARNQUILL");
    EXPECT_EQ(test::ReadFileBytes(fixed + "/Tarnquill.stt"), other + "\r\n");
    EXPECT_FALSE(std::filesystem::exists(chosen));
}

TEST(DataFolder, TheFixedFolderLiesInTheDocumentsFolderOfTheDesktop)
{
    test::TempDir dir;
    const auto keep = [](const char* name) {
        const char* v = std::getenv(name);
        return v ? std::optional<std::string>(v) : std::nullopt;
    };
    const auto home = keep("HOME"), config = keep("XDG_CONFIG_HOME"), docs = keep("XDG_DOCUMENTS_DIR");
    ::setenv("HOME", dir.path().c_str(), 1);
    ::setenv("XDG_CONFIG_HOME", dir.file("cfg").c_str(), 1);
    ::unsetenv("XDG_DOCUMENTS_DIR");
    EXPECT_EQ(platform::FixedFolder(), dir.path() + "/Documents/tarnquill/forms");
    test::WriteFileBytes(dir.file("cfg/user-dirs.dirs"), "# made by hand\nXDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\n");
    EXPECT_EQ(platform::FixedFolder(), dir.path() + "/Dokumente/tarnquill/forms");
    ::setenv("XDG_DOCUMENTS_DIR", "/srv/papers", 1);
    EXPECT_EQ(platform::FixedFolder(), "/srv/papers/tarnquill/forms");
    using Saved = std::pair<const char*, std::optional<std::string>>;
    for (const Saved& v : {Saved{"HOME", home}, Saved{"XDG_CONFIG_HOME", config}, Saved{"XDG_DOCUMENTS_DIR", docs}})
        v.second ? ::setenv(v.first, v.second->c_str(), 1) : ::unsetenv(v.first);
}
