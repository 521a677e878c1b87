// SPDX-License-Identifier: GPL-3.0-or-later
#include "php/entry_php.h"

#include "model/text_ops.h"

namespace tq::php {

namespace {

// "$key = $_POST["key"];"
std::string TakePost(std::string_view key)
{
    return "$" + std::string(key) + " = $_POST[" + model::Quoted(key) + "];";
}

// "$key = check_entry($_POST["key"],"message");"
std::string CheckEntry(std::string_view key, std::string_view message)
{
    return "$" + std::string(key) + " = check_entry($_POST[" + model::Quoted(key) + "]," + model::Quoted(message) +
           ");";
}

void ShowPairingError(UiPort& ui, const std::string& type, std::string_view mustFollow)
{
    const std::string x = type.empty() ? std::string() : type.substr(type.size() - 1);
    // "conditon" is the word the box has always shown
    ui.message("A followup-" + x + std::string(mustFollow) + x + "\r\r" + "Delete the input type " + type + "\r" +
                   " and the input type conditon-" + x + "\r\r" + "and rebuild the form",
               "ERROR", Icon::Critical);
}

// Numbers the two messages of an Entry when `[NUMBER EACH QUESTION=` is YES:
// a lead of a pair advances `phpQuestionNumber` and gets " 3a. ", a Followup
// keeps the number and gets " 3b. ", every other type advances it and gets
// "3. "; " for question 3a" goes behind.
void NumberMessages(write::BuildState& state, model::Numbering numbering, std::string& msg, std::string& msg2)
{
    if (!model::EqualsNoCase(state.setupValues.NumberEachQuestion, "YES"))
        return;
    std::string label;
    switch (numbering) {
    case model::Numbering::PairFirst:
        ++state.phpQuestionNumber;
        label = " " + std::to_string(state.phpQuestionNumber) + "a. "; // the leading blank is shown
        break;
    case model::Numbering::PairSecond:
        label = " " + std::to_string(state.phpQuestionNumber) + "b. ";
        break;
    case model::Numbering::Own:
        ++state.phpQuestionNumber;
        label = std::to_string(state.phpQuestionNumber) + ". ";
        break;
    }
    const size_t dot = label.find('.');
    const std::string suffix =
        dot == std::string::npos ? std::string()
                                 : " for question " + std::string(model::Trim(std::string_view(label).substr(0, dot)));
    msg = label + msg + suffix;
    msg2 = label + msg2 + suffix;
}

// The general writer: the checks of one field on channel 1, from the Entry's
// values (MSG, MSG2, REQ, USERNAME, PASSWORD), and the new `lastConditionField`.
void WriteGeneralPhp(write::BuildState& state, const model::InputType& type, std::string_view keyView)
{
    using model::PhpWriter;
    if (keyView.empty())
        return;

    const std::string key(keyView);
    const write::WorkingValues& v = state.values;
    std::string msg = v.MSG;
    std::string msg2 = v.MSG2;
    NumberMessages(state, type.numbering, msg, msg2);
    const bool required = model::EqualsNoCase(v.REQ, "YES");
    write::LineWriter& out = state.channels[1];

    switch (type.php) {
    case PhpWriter::CheckEntry:
        if (required) {
            out.line(CheckEntry(key, msg));
            state.lastConditionField = key;
        } else {
            out.line(TakePost(key));
        }
        return;
    case PhpWriter::Email:
        if (required) {
            out.line(CheckEntry(key, msg2));
            // every required EMAIL lands in $email: a second one overwrites it
            out.line("$email = validate_email($_POST[" + model::Quoted(key) + "], " + model::Quoted(msg) + ");");
        } else {
            out.line(TakePost(key));
        }
        return;
    case PhpWriter::YesNo:
        if (required) {
            out.line("$" + key + " = validate_yesno($_POST[" + model::Quoted(key) + "], " + model::Quoted(msg) + ");");
            state.lastConditionField = key;
        } else {
            out.line(TakePost(key));
        }
        return;
    case PhpWriter::FollowupRadio:
    case PhpWriter::FollowupDropdown: {
        // With no field before it the first argument is empty ("$,"): the
        // script does not run. The edit and list checks guard against that.
        const char* check = type.php == PhpWriter::FollowupDropdown ? "validate_radio_notselected" : "validate_radio";
        out.line(TakePost(key));
        out.line(std::string(check) + "($" + state.lastConditionField + ",$" + key + "," + model::Quoted(msg) + ");");
        out.line("");
        state.lastConditionField.clear();
        return;
    }
    case PhpWriter::Dropdown:
        out.line(TakePost(key));
        out.line("validate_radio_dropdown_notselected($" + key + "," + model::Quoted(msg) + ");");
        out.line("");
        state.lastConditionField.clear();
        return;
    case PhpWriter::Checkbox:
        if (required)
            out.line("$" + key + " = validate_check($_POST[" + model::Quoted(key) + "], " + model::Quoted(msg) + ");");
        else
            out.line(TakePost(key));
        out.line("$" + key + " = getresults_check($" + key + ");");
        return;
    case PhpWriter::Login:
        if (required) {
            const std::string& expected = type.id == model::InputTypeId::UserName ? v.USERNAME : v.PASSWORD;
            out.line(CheckEntry(key, msg2));
            // the raw field, not the cleaned variable, is compared: exact and case-sensitive
            out.line("$" + key + " = validate_userpass($_POST[" + model::Quoted(key) + "]," + model::Quoted(expected) +
                     "," + model::Quoted(msg) + ");");
            out.line("");
            state.lastConditionField = key;
        } else {
            out.line(TakePost(key));
        }
        return;
    default:
        return; // numbered only
    }
}

// The download writer. DOWNLOAD FILES writes download_file() or its check,
// DOWNLOAD FILES WITH PASSWORD its check; FOLLOWUP FILES WITH PASSWORD must
// follow one of those or a Condition: then it writes its checks on channel 1
// and its password check on channel 2 (\downtemp.txt). Out of place, it shows
// the "ERROR" box and sets `buildError` to 1.
void WriteDownloadPhp(UiPort& ui, write::BuildState& state, const model::InputType& type, std::string_view keyView)
{
    using model::PhpWriter;
    const write::WorkingValues& v = state.values;
    if (keyView.empty() || v.Title.empty())
        return;
    const std::string t(type.name);
    const std::string key(keyView);
    std::string msg = v.MSG;
    std::string msg2 = v.MSG2;
    NumberMessages(state, type.numbering, msg, msg2);
    std::string req = v.REQ;
    if (type.php == PhpWriter::FollowupFiles)
        req = "yes";
    const bool required = model::EqualsNoCase(req, "YES");
    write::LineWriter& out = state.channels[1];

    if (type.php == PhpWriter::DownloadFiles) {
        if (!required) {
            // every visitor who gets this far sees the download page here
            out.line("download_file();");
            return;
        }
        out.line(CheckEntry(key, msg));
        state.lastConditionField = key;
        return;
    }
    if (type.php == PhpWriter::DownloadFilesPassword) {
        if (required)
            out.line(CheckEntry(key, msg));
        state.lastConditionField = key;
        return;
    }
    if (type.php != PhpWriter::FollowupFiles)
        return;

    const std::string p = model::ToUpper(state.lastConditionField.substr(0, 5));
    if (p == "DOWNL" && !model::EqualsNoCase(key.substr(0, 5), "FOLLO")) {
        // this type's key always starts with "follo": kept as the format has it
        ShowPairingError(ui, t, " must follow a download-");
        state.buildError = 1;
        state.channels.closeAll();
        return;
    }
    if (p != "DOWNL" && (p != "CONDI" || model::Trim(state.lastConditionField).empty())) {
        ShowPairingError(ui, t, " must follow a condition-");
        state.buildError = 1;
        return;
    }
    out.line(TakePost(key));
    out.line(CheckEntry(key, msg2));
    // the password check goes to \downtemp.txt so that it stands behind all others
    state.channels[2].line("$" + key + " = validate_userpass_download($_POST[" + model::Quoted(key) + "]," +
                           model::Quoted(v.PASSWORD) + ", " + model::Quoted(msg) + ");");
    state.lastConditionField.clear();
}

} // namespace

void WriteEntryPhp(UiPort& ui, write::BuildState& state, const model::InputType& type, std::string_view key)
{
    switch (type.php) {
    case model::PhpWriter::None:
        return;
    case model::PhpWriter::DownloadFiles:
    case model::PhpWriter::DownloadFilesPassword:
    case model::PhpWriter::FollowupFiles:
        WriteDownloadPhp(ui, state, type, key);
        return;
    default:
        WriteGeneralPhp(state, type, key);
        return;
    }
}

void WriteEntryPhp(UiPort& ui, write::BuildState& state, std::string_view inputType, std::string_view key)
{
    if (const model::InputType* type = model::FindInputType(inputType))
        WriteEntryPhp(ui, state, *type, key);
}

} // namespace tq::php
