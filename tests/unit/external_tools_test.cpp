// SPDX-License-Identifier: GPL-3.0-or-later
#include "scripted_port.h"
#include "shell/external_tools.h"

#include <gtest/gtest.h>

using namespace tq;
using namespace tq::shell;
using test::ScriptedPort;
using test::TempDir;

namespace {

store::SetupStore Tools()
{
    store::SetupStore s;
    s.FTPProgramPath = "/opt/ftp tools/bin/ftpclient";
    s.WebEditorPath = "/usr/bin/webedit";
    s.BrowserPath = "/usr/bin/browser";
    s.rows[2].MenuName = "Club";
    s.rows[2].WebServerPath = "https://club.example/index.htm";
    s.rows[2].WebFolderPath = "/home/me/My Web Sites/club";
    return s;
}

void ExpectOneMessage(const ScriptedPort& ui, const std::string& text, const std::string& title)
{
    ASSERT_EQ(ui.messages().size(), 1u);
    EXPECT_TRUE(Said(ui.messages()[0], text, title));
}

} // namespace

TEST(ExternalTools, LaunchFtpStartsTheProgramInItsFolderOrSaysWhy)
{
    EXPECT_EQ(ProgramFolder("/usr/bin/filezilla"), "/usr/bin");
    EXPECT_EQ(ProgramFolder("C:\\Program Files\\FTP\\ftp.exe"), "C:\\Program Files\\FTP");
    EXPECT_EQ(ProgramFolder("C:\\ftp.exe"), "C:");
    EXPECT_EQ(ProgramFolder("/ftp"), "");
    EXPECT_EQ(ProgramFolder("ftp"), "");
    EXPECT_EQ(ProgramFolder(""), "");
    ScriptedPort ui;
    EXPECT_TRUE(LaunchFTP(Tools(), ui));
    ASSERT_EQ(ui.started.size(), 1u);
    EXPECT_EQ(ui.started[0].program, "/opt/ftp tools/bin/ftpclient");
    EXPECT_TRUE(ui.started[0].args.empty());
    EXPECT_EQ(ui.started[0].folder, "/opt/ftp tools/bin");
    EXPECT_TRUE(ui.shown.empty());
    auto empty = Tools();
    empty.FTPProgramPath.clear();
    ScriptedPort none;
    EXPECT_FALSE(LaunchFTP(empty, none));
    EXPECT_TRUE(none.started.empty());
    ExpectOneMessage(none,
                     "No FTP program was selected in SETUP. Go to setup and enter the full path of the FTP program "
                     "that you will be using",
                     "Error launching FTP CLIENT");
    ScriptedPort failing;
    failing.startResult = false;
    EXPECT_FALSE(LaunchFTP(Tools(), failing));
    ExpectOneMessage(failing,
                     "File not found\rThe FTP path in SETUP does not exist.\r\rGo to setup and enter the full path of "
                     "the FTP program that you will be using",
                     "Error launching FTP CLIENT ");
}

TEST(ExternalTools, OpenLiveRowStartsTheBrowserWithTheRowsServerPath)
{
    ScriptedPort ui;
    EXPECT_TRUE(OpenLiveRow(Tools(), 3, ui));
    ASSERT_EQ(ui.started.size(), 1u);
    EXPECT_EQ(ui.started[0].program, "/usr/bin/browser");
    EXPECT_EQ(ui.started[0].args, std::vector<std::string>{"https://club.example/index.htm"});
    // a row with a name but no server path, and numbers outside 1..15
    auto setup = Tools();
    setup.rows[4].MenuName = "Named only";
    for (int n : {5, 0, 16}) {
        ScriptedPort missing;
        EXPECT_FALSE(OpenLiveRow(setup, n, missing));
        EXPECT_TRUE(missing.started.empty());
        ExpectOneMessage(missing, "To add a menu item to the list, go to setup and add the new web folder to the list",
                         "NO ENTRY FOUND");
    }
    ScriptedPort failing;
    failing.startResult = false;
    EXPECT_FALSE(OpenLiveRow(Tools(), 3, failing));
    ExpectOneMessage(failing,
                     "File not found when launching your default Internet Browser\r\rGo to setup and enter a valid "
                     "path of your Internet Browser that you will be using",
                     "Error launching Internet Browser");
}

TEST(ExternalTools, OpenEditorRowPassesTheFolderWithItsBlanksAsOneArgument)
{
    ScriptedPort ui;
    EXPECT_TRUE(OpenEditorRow(Tools(), 3, ui));
    ASSERT_EQ(ui.started.size(), 1u);
    EXPECT_EQ(ui.started[0].program, "/usr/bin/webedit");
    EXPECT_EQ(ui.started[0].args, std::vector<std::string>{"/home/me/My Web Sites/club"});
    EXPECT_EQ(ui.previewsHidden, 1);
    ScriptedPort noRow;
    EXPECT_FALSE(OpenEditorRow(Tools(), 2, noRow));
    ExpectOneMessage(noRow,
                     "No Web Editor has been selected for this entry. Please go to the Setup Page and choose a path "
                     "for your Web Editor",
                     "NO ENTRY HAS BEEN MADE IN SETUP");
    auto noEditor = Tools();
    noEditor.WebEditorPath.clear();
    ScriptedPort unset;
    EXPECT_FALSE(OpenEditorRow(noEditor, 3, unset));
    EXPECT_TRUE(unset.started.empty());
    ExpectOneMessage(unset,
                     "No Web Editor was selected in SETUP. Go to setup and enter the full path of the Web Editor that "
                     "you will be using",
                     "Error launching Web Editor");
    ScriptedPort failing;
    failing.startResult = false;
    EXPECT_FALSE(OpenEditorRow(Tools(), 3, failing));
    ExpectOneMessage(failing,
                     "The Path does not exist. File not found\r\rGo to setup and enter the full path of the Web Editor "
                     "that you will be using",
                     "Error launching Web Editor");
}

TEST(ExternalTools, OpenTargetOpensWhatExistsAndAsksForAMissingFolder)
{
    TempDir dir;
    ScriptedPort ui;
    OpenTarget("https://www.tarnquill.example/tarnquill/index.htm", dir.path(), "notes.txt", ui);
    EXPECT_EQ(ui.opened,
              (std::vector<std::string>{"https://www.tarnquill.example/tarnquill/index.htm", dir.path(), "notes.txt"}));
    EXPECT_TRUE(ui.shown.empty());
    ScriptedPort nothing;
    OpenTarget("", "b.htm", "c.htm", nothing);
    EXPECT_TRUE(nothing.opened.empty());
    const std::string gone = dir.path() + "/nowhere";
    ScriptedPort asked;
    asked.input(dir.path());
    asked.input("");
    OpenTarget(gone, gone + "2", "x.htm", asked);
    EXPECT_EQ(asked.opened, std::vector<std::string>{dir.path()});
    // the third target is never reached: the empty answer ends the run
    ASSERT_EQ(asked.shown.size(), 4u);
    EXPECT_EQ(asked.shown[0].text, gone + " folder needs to be created.");
    EXPECT_EQ(asked.shown[1].kind, "input");
    EXPECT_TRUE(Said(asked.shown[1], "Enter the desired path", "NO PATH"));
    EXPECT_EQ(asked.shown[2].text, gone + "2 folder needs to be created.");
    EXPECT_EQ(asked.shown[3].text, "Enter the desired path that is already created");
    ScriptedPort cancelled;
    cancelled.input(std::nullopt);
    OpenTarget(gone, "", "", cancelled);
    EXPECT_TRUE(cancelled.opened.empty());
}

TEST(ExternalTools, HelpPagesLiveOnTheProgramsHost)
{
    const std::vector<std::pair<std::string, std::string>> pages = {{"HomePage", "index.htm"},
                                                                    {"SampleForms", "download/download.htm#samples"}};
    for (const auto& [command, path] : pages) {
        ScriptedPort ui;
        EXPECT_TRUE(OpenHelpPage(command, ui)) << command;
        EXPECT_EQ(ui.opened, std::vector<std::string>{"https://www.tarnquill.example/tarnquill/" + path}) << command;
    }
    ScriptedPort ui;
    EXPECT_FALSE(OpenHelpPage("About", ui));
    EXPECT_EQ(HelpPageUrl("about"), "");
    EXPECT_TRUE(ui.opened.empty());
}

TEST(ExternalTools, FolderOpenersAndTheOutputInTheEditor)
{
    TempDir dir;
    ScriptedPort ui;
    ViewTarnquillFolder(dir.path(), ui);
    build::BuildState b;
    ViewFolder(b, ui); // no build yet: nothing
    EXPECT_FALSE(ShowOutputInEditor(b, ui));
    b.setupValues.WebFolder = dir.path() + "/";
    b.htmlPath = dir.path() + "/formtql.htm";
    ViewFolder(b, ui);
    EXPECT_TRUE(ShowOutputInEditor(b, ui));
    EXPECT_EQ(ui.opened, (std::vector<std::string>{dir.path(), dir.path(), dir.path() + "/formtql.htm"}));
    EXPECT_TRUE(ui.shown.empty());
    ScriptedPort folder;
    folder.file(dir.path());
    EXPECT_EQ(BrowseForFolder("Pick", "/", folder), dir.path());
    folder.file(std::nullopt);
    EXPECT_EQ(BrowseForFolder("Pick", "/", folder), "");
}
