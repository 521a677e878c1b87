// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/entry_store.h"
#include "port/ui_port.h"
#include "store/text_file.h"

#include <functional>
#include <string>
#include <string_view>

namespace tq {
struct Session;
}

namespace tq::store {

/// The line of 32 asterisks that frames a type line in a project file.
inline constexpr std::string_view kMarkerLine = "********************************";

/// Calls into the editing and mode code that opening a project needs. The
/// shell fills them with the model's ClearAllRows and SwitchMode.
struct ProjectHooks
{
    /// The clear prompt (ClearAllRows with mode 1, run while LoadPending is
    /// set); returns the AbortFlag: 1 when the user kept the entries.
    std::function<int(Session&, UiPort&)> clearPrompt;
    /// SwitchMode(mode, targetPage, keepEntries 1): changes the mode without
    /// clearing the rows.
    std::function<void(Session&, UiPort&, model::Mode mode, int targetPage)> switchMode;
    /// What an open keeps of the file it read; unset: KeepInRecentList.
    std::function<void(Session&, UiPort&)> remember;
};

/// The first pass of a save: for each used row of Page 1 row 0 to Page 4 row
/// 24 the line ">>" + Input Type (not for a type that begins with "["), then
/// the AttributeText with no line end of its own, with a "-" stuck to its
/// front on Page 2. Every further save of a Page 2 row adds one more "-".
std::string WriteEntries(const model::EntryStore& store);

/// The second pass: turns each ">>" line into the framed type line (an empty
/// line first when the last plain line copied was not empty), copies every
/// other line. Every line of the result ends in CR LF.
std::string FormatProjectFile(std::string_view raw);

/// Reads one AttributeText from `in`: empty lines are dropped and put back
/// after every second line kept; a line starting with "*****" ends it and is
/// consumed, as is the end of the file.
std::string ReadAttributeBlock(LineReader& in);

/// Reads the rows of a project file into the Pages by position. Page 1 knows
/// the marker lines; Pages 2 to 4 take one type line and one block per row, so
/// a 26th row in the file lands out of step. The end of the file ends a stage;
/// rows the file doesn't reach keep what they held.
void ReadEntries(model::EntryStore& store, LineReader& in);

/// SaveProject(extension): the SaveForm / SaveSurvey commands ("fms" or
/// "srv"). Asks for the name (a name typed without an extension gets
/// `extension`), asks FILE EXIST over an existing file, writes
/// the final layout beside the target and renames it over, then updates the
/// recent list and the status. Returns true when a file was written; a
/// cancelled dialog, a No or a failed write return false with no message.
bool SaveProject(Session& s, UiPort& ui, std::string_view extension);

/// Takes the rows as they stand as the ones last opened or saved, so that
/// HasUnsavedChanges answers false until a row changes. Open and save call it.
void MarkSaved(Session& s);

/// True when a row of any Page differs from what the last open or save (or
/// MarkSaved) left.
bool HasUnsavedChanges(const Session& s);

/// OpenProject(sourcePage, extension, fromRecentList): sourcePage 1 is the
/// start page, 2 to 5 the four Pages. With fromRecentList the caller has put
/// the menu caption into CurrentProjectName. Returns 0 when the file was
/// read, 1 when the open ended early (entries kept, Cancel, an unreadable
/// file); no message is shown for a failure. Rows cleared by the clear prompt
/// of an open that ends early come back as they were.
int OpenProject(Session& s,
                UiPort& ui,
                int sourcePage,
                std::string_view extension,
                bool fromRecentList,
                const ProjectHooks& hooks = {});

/// The start page's openform: opens a form project and shows Page 1.
void OpenFormCommand(Session& s, UiPort& ui, const ProjectHooks& hooks = {});

/// The start page's OpenSurvey: opens a survey project, then asks EDIT.
void OpenSurveyCommand(Session& s, UiPort& ui, const ProjectHooks& hooks = {});

/// Sets s.run.status: the file label, the mode label, the four page captions
/// and the build menu captions.
void RefreshStatus(Session& s);

} // namespace tq::store
