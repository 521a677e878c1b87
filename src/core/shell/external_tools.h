// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"
#include "store/setup_store.h"
#include "write/build_state.h"

#include <string>
#include <string_view>

namespace tq::shell {

/// The folder of a program path: walks from its last character back to the
/// third until a "/" or "\" is met and keeps the text before it; empty when
/// none is met ("/usr/bin/filezilla" gives "/usr/bin").
std::string ProgramFolder(std::string_view programPath);

/// LaunchFTP (the commands FTP): starts FTPProgramPath with no arguments in
/// its own folder. An empty path or a failed start is told (Error launching
/// FTP CLIENT). Returns true when the program was started.
bool LaunchFTP(const store::SetupStore& setup, UiPort& ui);

/// OpenLiveRow(n) (LivePreview1..15): starts the browser with the
/// WebServerPath of row n - 1. An empty path says NO ENTRY FOUND; a failed
/// start says how to set the browser. Returns true when it was started.
bool OpenLiveRow(const store::SetupStore& setup, int n, UiPort& ui);

/// OpenEditorRow(n) (Web1..15): starts the web editor with the WebFolderPath
/// of row n - 1 as one argument, blanks and all. Each failure is told.
/// Returns true when it was started; the previews are hidden then.
bool OpenEditorRow(const store::SetupStore& setup, int n, UiPort& ui);

/// OpenTarget: opens up to three links, files or folders. A text with a "."
/// is opened as it stands; a folder that does not exist is told and another
/// path asked for (NO PATH); an empty answer ends the run. An empty `first`
/// does nothing.
void OpenTarget(std::string first, std::string second, std::string third, UiPort& ui);

/// BrowseForFolder: the folder the user picks, or an empty text on Cancel.
std::string BrowseForFolder(std::string_view title, std::string_view initial, UiPort& ui);

/// The web address of a Help menu command ("contact", "Tutorial", ...) on the
/// program's host; empty for a name that is not one of them.
std::string HelpPageUrl(std::string_view command);

/// Opens the page of a Help menu command: SampleForms directly, the others
/// through OpenTarget. Returns false for a name that is not a Help page.
bool OpenHelpPage(std::string_view command, UiPort& ui);

/// ViewTarnquillFolder: opens the DataFolder through OpenTarget.
void ViewTarnquillFolder(std::string_view dataFolder, UiPort& ui);

/// ViewFolder (final page): opens the output folder of the last build with
/// its trailing separator removed; nothing when there was no build.
void ViewFolder(const write::BuildState& build, UiPort& ui);

/// ShowOutputInEditor: opens the last output file (the page) with the
/// desktop's handler; nothing when there was no build. Returns true when it
/// was opened.
bool ShowOutputInEditor(const write::BuildState& build, UiPort& ui);

} // namespace tq::shell
