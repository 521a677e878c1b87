// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/mode.h"
#include "port/platform.h"
#include "port/ui_port.h"
#include "store/run_values.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace tq::store {

constexpr int kSetupRows = 15;

/// One row of the web site table; row n feeds Web(n+1) and LivePreview(n+1).
struct SetupRow
{
    std::string MenuName; // empty: the row is unused
    std::string WebServerPath;
    std::string WebFolderPath;
    std::string EmailAddress;
    std::string OrderNumber; // for "Sort by Number"; never stored
};

/// The 15 rows with row 0 at its initial text ("Test", the sample page, ...).
std::array<SetupRow, kSetupRows> InitialSetupRows();

/// The web-folder table and the three tool paths.
struct SetupStore
{
    std::array<SetupRow, kSetupRows> rows = InitialSetupRows();
    std::string FTPProgramPath{platform::kDefaultFtp};
    std::string WebEditorPath{platform::kDefaultEditor};
    std::string BrowserPath{platform::kDefaultBrowser};
    /// Captions and visibility of Web1..Web15 and LivePreview1..LivePreview15,
    /// the same on all six pages that carry the two menus.
    std::array<MenuSlot, kSetupRows> siteMenus;
    /// The shared result flag of the export and the import: 1 when the last
    /// one did not complete.
    int resultFlag = 0;
};

/// ClearSetupRows: empties the four fields of rows 1 to 14.
void ClearSetupRows(SetupStore& setup);

/// ApplySetupMenus: shows Web(n+1) / LivePreview(n+1) for each row with a
/// MenuName and gives it that caption; hides the others.
void ApplySetupMenus(SetupStore& setup);

/// The first line of "\Tarnquill.stt" in `fixedFolder`, the data folder it
/// names (empty for an empty file); nullopt when the file can't be read.
[[nodiscard]] std::optional<std::string> ReadStt(const std::string& fixedFolder);

/// LoadDataFolder: reads "\Tarnquill.stt" in `fixedFolder` (created with its
/// parents first). Asks for a folder until one is given (FOLDER PATH, NO
/// FOLDER PATH WAS SELECTED, CREATION FAILURE; a cancelled box asks again).
/// A folder that is gone gets one run of ChangeDataFolder and is returned as
/// it stands: a new choice takes effect at the next start. Installs the empty
/// form and survey lists into the folder when they are missing.
std::string LoadDataFolder(UiPort& ui, const std::string& fixedFolder);

/// What ChangeDataFolder did.
enum class FolderChange { Saved, Kept, NoAnswer };

/// ChangeDataFolder (SelectTQL): asks CHANGE PATH, lets the user pick a folder
/// and writes it to "\Tarnquill.stt". Takes effect at the next start. NoAnswer
/// when the port gave neither Yes nor No.
FolderChange ChangeDataFolder(UiPort& ui, const std::string& fixedFolder);

/// SaveSetupFields: the 78 lines of "\setup.imp", CR LF each.
std::string SaveSetupFields(const SetupStore& setup);

/// ReadSetupFields: fills the fields from `bytes` in file order. Returns false
/// when the file ends early; the fields read so far are filled, the rest keep
/// their values.
[[nodiscard]] bool ReadSetupFields(SetupStore& setup, std::string_view bytes);

/// ExportSetup: writes "\setup.imp" in `dataFolder` after FILE EXIST when it
/// exists (No: ABORTED, resultFlag 1).
void ExportSetup(SetupStore& setup, UiPort& ui, const std::string& dataFolder);

/// ImportSetup(quiet): reads "\setup.imp", then ApplySetupMenus. An unreadable
/// or short file sets resultFlag; unless quiet it says SETUP NOT SAVED.
void ImportSetup(SetupStore& setup, UiPort& ui, const std::string& dataFolder, bool quiet);

/// The SetupPageOnly command: asks SAVE, exports, then says DONE.
void SetupPageOnlyCommand(SetupStore& setup, UiPort& ui, const std::string& dataFolder);

/// The SetupPageOnlyOpen command: asks SAVE, imports, then offers to save the
/// imported rows as the new defaults (SETUP, DONE).
void SetupPageOnlyOpenCommand(SetupStore& setup, UiPort& ui, const std::string& dataFolder);

/// BackupSetupPage: copies "\setup.imp" to "\setupbackup.imp" (DONE).
void BackupSetupPage(UiPort& ui, const std::string& dataFolder);

/// RestoreBackup: asks RESTORE, copies the backup over "\setup.imp"
/// (RESTORED COMPLETE, NO BACKUP FOUND, NO CHANGES WERE MADE).
void RestoreBackup(UiPort& ui, const std::string& dataFolder);

/// The commands "Sort A-Z" / AZ (descending false) and ZA (true): an exchange
/// sort of the joined row texts, with REORDER ENTRIES, NO CHANGES NEEDED and
/// ORDER UPDATED.
void SortSetupByName(SetupStore& setup, UiPort& ui, bool descending);

/// "Sort by Number": orders the rows by their order numbers, with the
/// messages of the Pages' Order command. `mode` is the ProjectMode.
void SortSetupByNumber(SetupStore& setup, UiPort& ui, model::Mode mode);

/// The three find buttons.
enum class ToolKind { WebEditor, FtpProgram, Browser };

/// A find button: a file dialog for the program; Cancel says ABORTED, a
/// choice fills the matching path and says so.
void FindToolPath(SetupStore& setup, UiPort& ui, ToolKind kind, bool wow64 = false);

/// The right-press clipboard help: puts `text` on the clipboard and says DONE.
void CopyFieldToClipboard(UiPort& ui, std::string_view text);

/// The text of a Help command of the Setup page (Clipboard1, MenuName,
/// WebServerPath, WebFolderPath, WebEditorPath, FTPProgramPath,
/// DefaultPathBrowser, EmailAdrress); empty for another name.
std::string SetupHelpText(std::string_view command);

/// Shows a Help command's text, title "HELP".
void ShowSetupHelp(UiPort& ui, std::string_view command);

} // namespace tq::store
