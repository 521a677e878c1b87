// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/setup_store.h"

#include "store/text_file.h"

#include <filesystem>
#include <system_error>

namespace tq::store {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kCrLf = "\r\n";
constexpr std::string_view kSttName = "\\Tarnquill.stt";
constexpr std::string_view kSetupName = "\\setup.imp";
constexpr std::string_view kBackupName = "\\setupbackup.imp";
constexpr std::string_view kNoFolderText = "You must choose a folder path before you can continue";
constexpr std::string_view kNoFolderTitle = "NO FOLDER PATH WAS SELECTED";
constexpr std::string_view kCreationText = "Unable to create the folder path. Please try again";
constexpr std::string_view kCreationTitle = "CREATION FAILURE";

bool FolderExists(const std::string& path)
{
    std::error_code ec;
    return !path.empty() && fs::is_directory(path, ec);
}

bool MakeFolder(const std::string& path)
{
    std::error_code ec;
    if (FolderExists(path))
        return true;
    fs::create_directories(path, ec);
    return FolderExists(path);
}

std::string WithoutTrailingSeparator(std::string path)
{
    while (path.size() > 1 && (path.back() == '/' || path.back() == '\\'))
        path.pop_back();
    return path;
}

bool WriteStt(const std::string& fixedFolder, const std::string& path)
{
    return WriteFileReplacing(platform::JoinPath(fixedFolder, kSttName),
                              WithoutTrailingSeparator(path) + std::string(kCrLf));
}

/// The form and survey lists must exist before the first update: nothing
/// else creates them.
void InstallHistoryFiles(const std::string& dataFolder)
{
    for (std::string_view name : {"\\FormHistory.txt", "\\SurveyHistory.txt"}) {
        std::string path = platform::JoinPath(dataFolder, name);
        std::error_code ec;
        if (!fs::exists(path, ec))
            WriteFileReplacing(path, "");
    }
}

/// The value of a setup line: what follows the first ")", blanks at its left
/// end removed. A value may hold ")" and keeps its trailing blanks.
std::string SetupValue(const std::string& line)
{
    size_t close = line.find(')');
    if (close == std::string::npos)
        return std::string();
    size_t start = line.find_first_not_of(' ', close + 1);
    return start == std::string::npos ? std::string() : line.substr(start);
}

} // namespace

std::optional<std::string> ReadStt(const std::string& fixedFolder)
{
    auto bytes = ReadWholeFile(platform::JoinPath(fixedFolder, kSttName));
    if (!bytes)
        return std::nullopt;
    auto lines = SplitFileLines(*bytes);
    return lines.empty() ? std::string() : lines.front();
}

std::array<SetupRow, kSetupRows> InitialSetupRows()
{
    std::array<SetupRow, kSetupRows> rows{};
    rows[0].MenuName = "Test";
    rows[0].WebServerPath = std::string(platform::kSampleSite) + "/test/index.htm";
    rows[0].WebFolderPath = "c:\\users";
    rows[0].EmailAddress = std::string(platform::kSampleEmail);
    return rows;
}

void ClearSetupRows(SetupStore& setup)
{
    for (int n = 1; n < kSetupRows; ++n) {
        SetupRow& r = setup.rows[static_cast<size_t>(n)];
        r.MenuName.clear();
        r.WebServerPath.clear();
        r.WebFolderPath.clear();
        r.EmailAddress.clear();
    }
}

void ApplySetupMenus(SetupStore& setup)
{
    for (size_t n = 0; n < setup.rows.size(); ++n) {
        const bool used = !setup.rows[n].MenuName.empty();
        setup.siteMenus[n].visible = used;
        if (used)
            setup.siteMenus[n].caption = setup.rows[n].MenuName;
    }
}

std::string LoadDataFolder(UiPort& ui, const std::string& fixedFolder)
{
    MakeFolder(fixedFolder);
    std::string dataFolder;
    for (;;) {
        if (auto line = ReadStt(fixedFolder)) {
            dataFolder = *line;
            if (FolderExists(dataFolder)) {
                InstallHistoryFiles(dataFolder);
                return dataFolder;
            }
            // the folder is gone: the user may name another one, which is
            // used from the next start on; this run keeps the old name
            ChangeDataFolder(ui, fixedFolder);
            return dataFolder;
        }
        if (dataFolder.empty())
            dataFolder = fixedFolder;
        auto answer = ui.inputBox("Choose the folder path where the forms will be saved", "FOLDER PATH", dataFolder);
        // the program cannot start without a folder: a cancelled box asks again
        if (!answer || answer->empty()) {
            ui.message(kNoFolderText, kNoFolderTitle, Icon::Exclamation);
            continue;
        }
        if (!MakeFolder(*answer)) {
            ui.message(kCreationText, kCreationTitle, Icon::Exclamation);
            continue;
        }
        if (!WriteStt(fixedFolder, *answer))
            ui.message(kCreationText, kCreationTitle, Icon::Exclamation);
    }
}

FolderChange ChangeDataFolder(UiPort& ui, const std::string& fixedFolder)
{
    for (;;) {
        const std::string current = ReadStt(fixedFolder).value_or(std::string());
        const std::string question =
            "This is the folder path where Tarnquill stores your files\r\rYour current path is \r" + current +
            "\r\rDo you want to change it?";
        Answer a = ui.ask(question, "CHANGE PATH", Buttons::YesNo, Icon::Question, 1);
        if (a == Answer::No) {
            ui.message("No changes will be made to your path", "NO CHANGES", Icon::Information);
            return FolderChange::Kept;
        }
        if (a != Answer::Yes)
            return FolderChange::NoAnswer;
        auto chosen = ui.browseForFolder("Choose the folder path where the Tarnquill files will be saved", current);
        if (!chosen || chosen->empty()) {
            ui.message(kNoFolderText, kNoFolderTitle, Icon::Exclamation);
            continue;
        }
        if (!MakeFolder(*chosen) || !WriteStt(fixedFolder, *chosen)) {
            ui.message(kCreationText, kCreationTitle, Icon::Exclamation);
            continue;
        }
        const std::string saved = WithoutTrailingSeparator(*chosen);
        ui.message("Your new Path is " + saved +
                       "\rThe Path has been saved.\rYou must restart Tarnquill for the changes to be in effect",
                   "RESTART TARNQUILL", Icon::Information);
        return FolderChange::Saved;
    }
}

std::string SaveSetupFields(const SetupStore& setup)
{
    std::string out;
    for (int n = 0; n < kSetupRows; ++n) {
        const SetupRow& r = setup.rows[static_cast<size_t>(n)];
        const std::string prefix = " " + std::to_string(n) + ") ";
        for (const std::string* field : {&r.MenuName, &r.WebServerPath, &r.WebFolderPath, &r.EmailAddress}) {
            out += prefix;
            out += *field;
            out += kCrLf;
        }
        out += kCrLf;
    }
    out += "1) " + setup.FTPProgramPath + std::string(kCrLf);
    out += "2) " + setup.WebEditorPath + std::string(kCrLf);
    out += "3) " + setup.BrowserPath + std::string(kCrLf);
    return out;
}

bool ReadSetupFields(SetupStore& setup, std::string_view bytes)
{
    LineReader in = ReaderOf(bytes);
    std::string line;
    // the position of a line alone says what it is: the row number in the
    // prefix is never compared
    for (auto& r : setup.rows) {
        for (std::string* field : {&r.MenuName, &r.WebServerPath, &r.WebFolderPath, &r.EmailAddress}) {
            if (!in.next(line))
                return false;
            *field = SetupValue(line);
        }
        if (!in.next(line))
            return false;
    }
    for (std::string* field : {&setup.FTPProgramPath, &setup.WebEditorPath, &setup.BrowserPath}) {
        if (!in.next(line))
            return false;
        *field = SetupValue(line);
    }
    return true;
}

void ExportSetup(SetupStore& setup, UiPort& ui, const std::string& dataFolder)
{
    setup.resultFlag = 0;
    const std::string path = platform::JoinPath(dataFolder, kSetupName);
    if (FileReadable(path)) {
        const std::string q = "File " + path + "  already exists. Do you want to replace it?";
        if (ui.ask(q, "FILE EXIST", Buttons::YesNo, Icon::Question, 1) != Answer::Yes) {
            ui.message("Setup Page was not saved", "ABORTED", Icon::Exclamation);
            setup.resultFlag = 1;
            return;
        }
    }
    if (!WriteFileReplacing(path, SaveSetupFields(setup)))
        setup.resultFlag = 1;
}

void ImportSetup(SetupStore& setup, UiPort& ui, const std::string& dataFolder, bool quiet)
{
    setup.resultFlag = 0;
    auto bytes = ReadWholeFile(platform::JoinPath(dataFolder, kSetupName));
    const bool complete = bytes && ReadSetupFields(setup, *bytes);
    ApplySetupMenus(setup);
    if (complete)
        return;
    setup.resultFlag = 1;
    if (!quiet)
        ui.message(
            "No Setup file has been created. Enter your Setup Information and then go to File and Save Setup. If "
            "you need help in setting up your Setup File, go to Help",
            "SETUP NOT SAVED", Icon::Exclamation);
}

void SetupPageOnlyCommand(SetupStore& setup, UiPort& ui, const std::string& dataFolder)
{
    const std::string q = "This option will save the current edit page as setup.imp and make them your defaults when "
                          "you run Tarnquill\r\rDo you want to continue?";
    if (ui.ask(q, "SAVE", Buttons::YesNo, Icon::Question, 1) != Answer::Yes)
        return;
    ExportSetup(setup, ui, dataFolder);
    // the command does not look at the result flag: DONE follows a No as well
    ui.message("The Setup Page has been exported successfully\r\rThe settings on this page will now be your new "
               "defaults every time you run Tarnquill",
               "DONE", Icon::Information);
}

void SetupPageOnlyOpenCommand(SetupStore& setup, UiPort& ui, const std::string& dataFolder)
{
    const std::string q = "This option will open setup.imp and replace all of the entries on the Setup Page with this "
                          "file.\r\rDo you want to continue?";
    if (ui.ask(q, "SAVE", Buttons::YesNo, Icon::Question, 1) != Answer::Yes)
        return;
    ImportSetup(setup, ui, dataFolder, false);
    if (setup.resultFlag == 1)
        return;
    const std::string q2 = "The Setup Page has been imported successfully\r\rDo you want to make the new entries on "
                           "this page your new defaults the next time you run Tarnquill";
    if (ui.ask(q2, "SETUP", Buttons::YesNo, Icon::Question, 1) != Answer::Yes) {
        ui.message("The new imported setup file will not be saved", "SETUP", Icon::Information);
        return;
    }
    ExportSetup(setup, ui, dataFolder);
    if (setup.resultFlag != 1)
        ui.message("The new imported setup file was successfully saved\r\rThe settings on this page will be your new "
                   "defaults every time you run Tarnquill",
                   "DONE", Icon::Information);
}

void BackupSetupPage(UiPort& ui, const std::string& dataFolder)
{
    // a missing setup.imp gives no message at all
    if (CopyFileReplacing(platform::JoinPath(dataFolder, kSetupName), platform::JoinPath(dataFolder, kBackupName)))
        ui.message("Backup complete", "DONE", Icon::Information);
}

void RestoreBackup(UiPort& ui, const std::string& dataFolder)
{
    const std::string q = "This option will over-ride the default setup page\r\rDo you want to continue?";
    if (ui.ask(q, "RESTORE", Buttons::YesNo, Icon::Question, 2) != Answer::Yes) {
        ui.message("Aborted..", "NO CHANGES WERE MADE", Icon::Information);
        return;
    }
    const std::string backup = platform::JoinPath(dataFolder, kBackupName);
    if (!FileReadable(backup)) {
        ui.message(backup + "\rDOES NOT EXIST\r\rYOU MUST FIRST CREATE A BACKUP BEFORE YOU CAN RESTORE FROM A BACKUP",
                   "NO BACKUP FOUND", Icon::Exclamation);
        return;
    }
    if (CopyFileReplacing(backup, platform::JoinPath(dataFolder, kSetupName)))
        ui.message("Restart Tarnquill for changes to take effect", "RESTORED COMPLETE", Icon::Information);
}

} // namespace tq::store
