// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/mode.h"
#include "port/ui_port.h"

#include <string>
#include <string_view>
#include <vector>

namespace tq {
struct Session;
}

namespace tq::shell {

/// The edit page shows at most this many rows; a longer text is an InternalError.
constexpr int kMaxEditFields = 21;

/// A key as the edit page compares it: blanks trimmed, upper case.
std::string UpperKey(std::string_view key);

/// How a row of the edit page is edited, decided from its upper-cased key.
enum class FieldKind { NumberList, AlignList, LoopList, OnOffList, YesNoList, ColorField, TextField };

/// One row of the edit page: a group of three lines of the AttributeText.
struct EditField
{
    std::string ItemText; // the whole item line, "[Title=Enter your full name]"
    std::string Key;      // between the first "[" and the first "=", as written
    std::string Value;    // behind the first "=", less the line's last character
    std::string HelpLine; // the second line of the group
    std::string HelpText; // Key + " - " + HelpLine
    FieldKind Kind = FieldKind::TextField;
    bool visible = true;
    bool failed = false; // the last commit stopped at this row (painted red)
    /// For an AlignList: the choices its "[Choices=" help line names, read
    /// through TakeChoiceList (empty for an "[Info:" help line).
    std::vector<std::string> helpChoices;
};

/// The edit page's state while it is open on one Entry.
struct EditState
{
    std::string EntryName;  // the Entry's InputTypeName
    std::string TextAtOpen; // the AttributeText as it was when the page opened
    int EditPage = 1;
    int EditRow = 0;
    std::string Caption; // "Make your changes for ... and then select Exit"
    std::vector<EditField> fields;
    int failedRow = -1; // the row the last commit stopped at, or -1
};

/// The kind of a row for `key` (any case, blanks around it ignored).
FieldKind KindOfKey(std::string_view key);

/// The items of a pull-down row: 1 to 1000 (with "%" for TITLE SHADE WIDTH,
/// LINE WIDTH and SHADE WIDTH), LEFT RIGHT CENTER (and NONE for GLOBAL
/// ALIGN), 1 to 50 and "infinite", on off (and mouseover for AUTOSTART),
/// YES NO. Empty for a colour or text row.
std::vector<std::string> PullDownItems(const EditField& field);

/// Splits an AttributeText into rows, three lines a group (item, help,
/// blank), stopping at the first group whose item and help lines are both
/// empty. Throws model::InternalError past kMaxEditFields groups.
std::vector<EditField> ReadEditFields(std::string_view text);

/// True for the three rows behind INCLUDE FRAME WITH FORM on a SETUP page.
bool IsFrameRow(std::string_view key);

/// The SETUP rules: in SURVEY, INCLUDE FRAME WITH FORM and every row after it
/// are hidden; in FORM the three frame rows are hidden while it reads NO.
/// Other Entries show every row.
void ApplySetupVisibility(EditState& st, model::Mode mode);

/// Opens the edit page on (page, row): reads the rows, sets the caption and
/// the visibility, keeps EditPage/EditRow in the state record, marks the row
/// red and brings the edit page to the front. Throws InternalError past 21 rows.
EditState OpenEditPage(Session& s, UiPort& ui, int page, int row);

/// A pull-down changed: the text goes into the row's value, then ApplyToggle.
void SetPullDownValue(Session& s, UiPort& ui, EditState& st, int row, std::string_view text);

/// The switches behind a pull-down of the SETUP page: INCLUDE FRAME WITH FORM
/// (FORM only) sets FrameOff and hides or shows the frame rows, SHOW TOOL
/// TIPS and NUMBER EACH QUESTION set their settings.
void ApplyToggle(Session& s, UiPort& ui, EditState& st, int row);

/// The colour a ColorField paints itself in: its decimal value, white for
/// NONE or a value that is not a number.
long FieldColor(const EditField& field);

/// Change Color: the colour dialog starting at the row's colour; the chosen
/// colour goes into the value as a decimal number, and for the colour keys
/// that have a default setting that setting follows. False on Cancel.
bool ChangeColor(Session& s, UiPort& ui, EditState& st, int row);

/// The right click on Change Color: GLOBAL TEXT COLOR may be set to NONE
/// after a question. Does nothing for any other row.
void ClearGlobalTextColor(Session& s, UiPort& ui, EditState& st, int row);

/// What the Edit command of a text row leaves to the shell.
enum class EditAction { Done, OpenEditWindow };

/// The Edit command of a TextField: the COMPLETED chooser, the BACKGROUND
/// IMAGE HELP message, the DRIVE FOLDER PATH folder browser; otherwise the
/// shell opens the edit window on the row.
EditAction EditTextField(Session& s, UiPort& ui, EditState& st, int row);

/// The keys written without the blank-to-&nbsp; step of WindowToValue.
bool IsPlainValueKey(std::string_view key);

/// The text of the edit window for a value: every backslash-n (any case)
/// becomes CR LF, and for keys that are not plain "&nbsp;" two blanks.
std::string ValueToWindow(std::string_view key, std::string_view value);

/// The value for the edit window's text (CR LF or LF line ends). "NONE" in
/// any case stays; line breaks become backslash-n, trailing ones are cut;
/// keys that are not plain get "&nbsp;" for each two blanks and each tab.
/// A text too short for the line-break step loses its line breaks, so that
/// no CR LF ever stands inside an item.
std::string WindowToValue(std::string_view key, std::string_view text);

/// The Help message of a row (title "HELP", exclamation).
std::string FieldHelpMessage(const EditField& field);
/// Shows FieldHelpMessage.
void ShowFieldHelp(UiPort& ui, const EditField& field);

/// The Help menu of the page; the SETUP page has three more lines in front.
std::string PageHelpMessage(std::string_view entryName);
void ShowPageHelp(UiPort& ui, const EditState& st);

/// The AttributeText the rows make: every item rebuilt from its text up to
/// the first "=", the value and "]", then its help line and a blank line.
std::string ComposeEditText(const EditState& st);

/// The checks of the commit: compose::CheckAttribute on every shown row with a
/// key (none while QuickPreviewActive). Returns 1 at the first failure with
/// the row marked failed and `st.failedRow` set; with `keepValues` a value
/// that a check changed ("none") goes back into its row.
int CheckEditRows(Session& s, UiPort& ui, EditState& st, bool keepValues);

/// Commit. Runs compose::CheckAttribute on every shown row (unless
/// QuickPreviewActive) and returns 1 at the first failure, with the row
/// marked in `st.failedRow` and the page left open; hidden rows are kept as
/// they stand. On success (0) the SETUP values are copied into the settings
/// and the text is stored in the row without the normaliser. With `dryRun`
/// nothing is stored and no message is shown.
int CommitEditPage(Session& s, UiPort& ui, EditState& st, bool dryRun = false);

/// Exit of the edit page: commits with commitMode Exit; on success clears the
/// highlights, marks the row green and goes back to its create page. False
/// when the page stays open.
bool ExitEditPage(Session& s, UiPort& ui, EditState& st);

/// The Abort menu: a dry-run commit; with errors the ABORT question decides.
/// Returns true when the page is left (the row keeps its old text).
bool AbortEditPage(Session& s, UiPort& ui, EditState& st);

} // namespace tq::shell
