// SPDX-License-Identifier: GPL-3.0-or-later
#include "scripted_port.h"
#include "store/setup_store.h"
#include "store/text_file.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <tuple>

using namespace tq;
using store::SetupStore;

namespace {

SetupStore Filled()
{
    SetupStore s;
    for (int n = 0; n < store::kSetupRows; ++n) {
        auto& r = s.rows[static_cast<size_t>(n)];
        r.MenuName = "Site " + std::to_string(n);
        r.WebServerPath = "https://h" + std::to_string(n) + ".example/a)b/index.htm";
        r.WebFolderPath = "/srv/www/" + std::to_string(n) + "  ";
        r.EmailAddress = n == 3 ? "" : "me@h" + std::to_string(n) + ".example";
    }
    return s;
}

} // namespace

TEST(SetupFile, WritesSeventyEightLinesAndReadsThemBack)
{
    SetupStore s = Filled();
    const std::string bytes = store::SaveSetupFields(s);
    auto lines = store::SplitFileLines(bytes);
    ASSERT_EQ(lines.size(), 78u);
    EXPECT_EQ(bytes.substr(0, 21), " 0) Site 0\r\n 0) https");
    EXPECT_EQ(lines[18], " 3) ");         // an empty field keeps its prefix alone
    EXPECT_EQ(lines[50], " 10) Site 10"); // rows above 9: a prefix one longer
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

TEST(SetupFile, ValuesFollowTheFirstParenthesisWhateverTheNumber)
{
    SetupStore s;
    ASSERT_FALSE(store::ReadSetupFields(s, "99)   Left\nno parenthesis\n x) a) b \r\n"));
    EXPECT_EQ(s.rows[0].MenuName, "Left");
    EXPECT_EQ(s.rows[0].WebServerPath, "");
    EXPECT_EQ(s.rows[0].WebFolderPath, "a) b ");
    EXPECT_EQ(s.rows[0].EmailAddress, platform::kSampleEmail); // not reached: keeps its value
}

class SetupFlow : public ::testing::Test
{
  protected:
    std::string SetupPath() const { return dir.file("setup.imp"); }
    test::TempDir dir;
    test::ScriptedPort port;
    SetupStore setup;
};

TEST_F(SetupFlow, InitialRowsAndMenus)
{
    EXPECT_EQ(setup.rows[0].MenuName, "Test");
    EXPECT_EQ(setup.rows[0].WebServerPath, "https://www.tarnquill.example/test/index.htm");
    EXPECT_EQ(setup.rows[0].WebFolderPath, "c:\\users");
    setup.rows[5] = {"Five", "u", "f", "e", ""};
    store::ClearSetupRows(setup);
    EXPECT_TRUE(setup.rows[5].MenuName.empty());
    EXPECT_EQ(setup.rows[0].MenuName, "Test");
    setup.rows[2] = {"", "https://x", "/srv", "a@b", ""}; // paths but no name: hidden
    setup.rows[4].MenuName = "Shop";
    store::ApplySetupMenus(setup);
    EXPECT_TRUE(setup.siteMenus[0].visible);
    EXPECT_EQ(setup.siteMenus[0].caption, "Test");
    EXPECT_FALSE(setup.siteMenus[2].visible);
    EXPECT_EQ(setup.siteMenus[4].caption, "Shop");
    EXPECT_FALSE(setup.siteMenus[14].visible);
}

TEST_F(SetupFlow, ImportOfAShortFileFillsWhatItHas)
{
    test::WriteFileBytes(SetupPath(), " 0) Mine\r\n 0) https://m\r\n 0) /m\r\n 0) m@m\r\n\r\n 1) Second\r\n");
    setup.rows[1].WebServerPath = "kept";
    store::ImportSetup(setup, port, dir.path(), true);
    EXPECT_EQ(setup.resultFlag, 1);
    EXPECT_TRUE(port.shown.empty()); // quiet at start
    EXPECT_EQ(setup.rows[0].MenuName, "Mine");
    EXPECT_EQ(setup.rows[1].MenuName, "Second");
    EXPECT_EQ(setup.rows[1].WebServerPath, "kept");
    EXPECT_TRUE(setup.siteMenus[1].visible);
    std::filesystem::remove(SetupPath());
    store::ImportSetup(setup, port, dir.path(), false);
    EXPECT_TRUE(
        Said(port.last(),
             "No Setup file has been created. Enter your Setup Information and then go to File and Save Setup. If "
             "you need help in setting up your Setup File, go to Help",
             "SETUP NOT SAVED"));
}

TEST_F(SetupFlow, ExportSaysDoneEvenAfterNo)
{
    test::WriteFileBytes(SetupPath(), "old");
    port.answer(Answer::Yes); // SAVE
    port.answer(Answer::No);  // FILE EXIST
    store::SetupPageOnlyCommand(setup, port, dir.path());
    ASSERT_EQ(port.shown.size(), 4u);
    EXPECT_EQ(port.shown[0].text,
              "This option will save the current edit page as setup.imp and make them your defaults when you run "
              "Tarnquill\r\rDo you want to continue?");
    EXPECT_EQ(port.shown[1].text, "File " + SetupPath() + "  already exists. Do you want to replace it?");
    EXPECT_TRUE(Said(port.shown[2], "Setup Page was not saved", "ABORTED"));
    EXPECT_EQ(port.shown[3].title, "DONE");
    EXPECT_EQ(test::ReadFileBytes(SetupPath()), "old");
    EXPECT_EQ(setup.resultFlag, 1);
}

TEST_F(SetupFlow, ImportThenSaveAsDefaults)
{
    SetupStore other = Filled();
    test::WriteFileBytes(SetupPath(), store::SaveSetupFields(other));
    port.answer(Answer::Yes); // SAVE
    port.answer(Answer::Yes); // SETUP: make them the defaults
    port.answer(Answer::Yes); // FILE EXIST
    store::SetupPageOnlyOpenCommand(setup, port, dir.path());
    EXPECT_EQ(setup.rows[12].MenuName, "Site 12");
    EXPECT_TRUE(Said(port.last(),
                     "The new imported setup file was successfully saved\r\rThe settings on this page "
                     "will be your new defaults every time you run Tarnquill",
                     "DONE"));
    port.clear();
    port.answer(Answer::Yes);
    port.answer(Answer::No);
    store::SetupPageOnlyOpenCommand(setup, port, dir.path());
    EXPECT_EQ(port.last().text, "The new imported setup file will not be saved");
}

TEST_F(SetupFlow, BackupAndRestore)
{
    port.answer(Answer::Yes);
    store::RestoreBackup(port, dir.path());
    EXPECT_TRUE(Said(port.last(),
                     dir.file("setupbackup.imp") +
                         "\rDOES NOT EXIST\r\rYOU MUST FIRST CREATE A BACKUP BEFORE YOU CAN RESTORE FROM A "
                         "BACKUP",
                     "NO BACKUP FOUND"));
    test::WriteFileBytes(SetupPath(), "first");
    store::BackupSetupPage(port, dir.path());
    EXPECT_EQ(port.last().text, "Backup complete");
    test::WriteFileBytes(SetupPath(), "second");
    port.answer(Answer::No);
    store::RestoreBackup(port, dir.path());
    EXPECT_EQ(port.last().title, "NO CHANGES WERE MADE");
    EXPECT_EQ(test::ReadFileBytes(SetupPath()), "second");
    port.answer(Answer::Yes);
    store::RestoreBackup(port, dir.path());
    EXPECT_EQ(port.last().title, "RESTORED COMPLETE");
    EXPECT_EQ(test::ReadFileBytes(SetupPath()), "first");
}

TEST_F(SetupFlow, SortByNameUsesTheWholeTextAndCountsChangedNames)
{
    setup.rows[0] = {"beta", "2", "", "", ""};
    setup.rows[1] = {"Alpha", "z", "", "", ""};
    setup.rows[2] = {"alpha", "a", "f;g", "", ""};
    setup.rows[3] = {"", "orphan", "", "", ""};
    port.answer(Answer::Yes);
    store::SortSetupByName(setup, port, false);
    EXPECT_EQ(setup.rows[0].MenuName, "alpha"); // equal names order by the next field
    EXPECT_EQ(setup.rows[0].WebFolderPath, "f");
    EXPECT_EQ(setup.rows[0].EmailAddress, "g;"); // a ";" of its own splits the field
    EXPECT_EQ(setup.rows[1].MenuName, "Alpha");
    EXPECT_EQ(setup.rows[2].MenuName, "beta");
    EXPECT_TRUE(Said(port.last(),
                     "The Order has been updated.\rTotal entries sorted were 2\rBe sure to select File "
                     "and Save as Default to keep these changes",
                     "ORDER UPDATED"));
    EXPECT_EQ(setup.rows[14].WebServerPath, "orphan"); // unused rows come behind, sorted too
    port.answer(Answer::Yes);
    store::SortSetupByName(setup, port, true);
    EXPECT_EQ(setup.rows[0].MenuName, "beta");
    EXPECT_EQ(setup.rows[2].MenuName, "alpha");
    port.answer(Answer::Yes);
    store::SortSetupByName(setup, port, true);
    EXPECT_TRUE(Said(port.last(), "The list does not require any changes.", "NO CHANGES NEEDED"));
}

TEST_F(SetupFlow, SortByNumber)
{
    port.answer(Answer::Yes);
    store::SortSetupByNumber(setup, port, "FORM");
    EXPECT_TRUE(
        Said(port.last(), "Order number must be greater then 0 and contain a number from 1 to 15", "ORDER ERROR"));
    for (int n = 0; n < store::kSetupRows; ++n)
        setup.rows[static_cast<size_t>(n)].OrderNumber = std::to_string(n + 1);
    setup.rows[1].MenuName = "One";
    setup.rows[0].OrderNumber = "3abc";
    setup.rows[14].OrderNumber = "99"; // cut to 15
    port.answer(Answer::Yes);
    store::SortSetupByNumber(setup, port, "FORM");
    EXPECT_EQ(setup.rows[0].MenuName, "One");
    EXPECT_EQ(setup.rows[1].MenuName, "Test"); // "3abc" counts 3, ahead of the other 3 by row order
    EXPECT_EQ(setup.rows[2].MenuName, "");
    EXPECT_EQ(setup.rows[14].OrderNumber, "15");
    EXPECT_EQ(port.last().text, "The Order has been updated");
    port.answer(Answer::Yes);
    store::SortSetupByNumber(setup, port, "SURVEY");
    EXPECT_EQ(port.last().text, "The Survey is already in sequential order and does not need to be sorted.\r\rTo "
                                "change the Order, change the numbers below the Order button.");
}

TEST_F(SetupFlow, FindButtonsAndClipboard)
{
    port.file(std::nullopt);
    store::FindToolPath(setup, port, store::ToolKind::Browser);
    EXPECT_EQ(port.last().text, "ABORTED...");
    port.file("/opt/web/editor");
    store::FindToolPath(setup, port, store::ToolKind::WebEditor);
    EXPECT_EQ(port.last().text, "YOUR WEB EDITOR WILL BE\r/opt/web/editor SELECTED");
    EXPECT_EQ(setup.WebEditorPath, "/opt/web/editor");
    store::CopyFieldToClipboard(port, "/srv/www");
    EXPECT_EQ(port.clipboard, "/srv/www");
    EXPECT_EQ(port.last().text, "/srv/www\r\rhas been placed on the clipbaord");
    store::ShowSetupHelp(port, "DefaultPathBrowser");
    EXPECT_TRUE(
        Said(port.last(), "Enter your favorite Web Browser full path, such as Internet Explorer or Firefox", "HELP"));
}

TEST_F(SetupFlow, DataFolderIsAskedForUntilOneIsGiven)
{
    const std::string fixed = dir.file("fixed/tarnquill/forms");
    const std::string chosen = dir.file("data/deep/folder");
    port.input("");
    port.input(chosen);
    auto folder = store::LoadDataFolder(port, fixed);
    ASSERT_TRUE(folder);
    EXPECT_EQ(*folder, chosen);
    EXPECT_EQ(port.shown[0].title, "FOLDER PATH");
    EXPECT_EQ(port.shown[1].title, "NO FOLDER PATH WAS SELECTED");
    EXPECT_EQ(test::ReadFileBytes(fixed + "/Tarnquill.stt"), chosen + "\r\n");
    EXPECT_TRUE(std::filesystem::exists(chosen + "/FormHistory.txt"));
    EXPECT_TRUE(std::filesystem::exists(chosen + "/SurveyHistory.txt"));
    // a file where the folder should be can't be made into a folder
    test::WriteFileBytes(dir.file("blocker"), "x");
    std::filesystem::remove(fixed + "/Tarnquill.stt");
    port.clear();
    port.input(dir.file("blocker/sub"));
    port.input(std::nullopt);
    EXPECT_FALSE(store::LoadDataFolder(port, fixed));
    EXPECT_TRUE(Said(port.shown[1], "Unable to create the folder path. Please try again", "CREATION FAILURE"));
}

TEST_F(SetupFlow, AGoneDataFolderIsChangedBeforeTheStart)
{
    const std::string fixed = dir.file("fixed");
    std::filesystem::create_directories(fixed);
    test::WriteFileBytes(fixed + "/Tarnquill.stt", dir.file("gone") + "\r\n");
    port.answer(Answer::No); // CHANGE PATH
    port.answer(Answer::Yes);
    port.file(dir.file("new") + "/");
    auto folder = store::LoadDataFolder(port, fixed);
    ASSERT_TRUE(folder);
    EXPECT_EQ(*folder, dir.file("new"));
    EXPECT_EQ(port.shown[0].text,
              "This is the folder path where Tarnquill stores your files\r\rYour current path is \r" +
                  dir.file("gone") + "\r\rDo you want to change it?");
    EXPECT_EQ(port.shown[1].text, "No changes will be made to your path");
    EXPECT_TRUE(Said(port.last(),
                     "Your new Path is " + dir.file("new") +
                         "\rThe Path has been saved.\rYou must restart Tarnquill for the changes to be in "
                         "effect",
                     "RESTART TARNQUILL"));
}
