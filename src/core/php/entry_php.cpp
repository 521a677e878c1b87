// SPDX-License-Identifier: GPL-3.0-or-later
#include "php/entry_php.h"

#include "model/text_ops.h"

#include <algorithm>
#include <array>

namespace tq::php {

namespace {

bool OneOf(const std::string& t, std::initializer_list<std::string_view> names)
{
    return std::find(names.begin(), names.end(), t) != names.end();
}

bool StartsWith(std::string_view s, std::string_view head)
{
    return s.substr(0, head.size()) == head;
}

std::string Q(std::string_view s)
{
    return "\"" + std::string(s) + "\"";
}

// "$key = $_POST["key"];"
std::string TakePost(std::string_view key)
{
    return "$" + std::string(key) + " = $_POST[" + Q(key) + "];";
}

// "$key = check_entry($_POST["key"],"message");"
std::string CheckEntry(std::string_view key, std::string_view message)
{
    return "$" + std::string(key) + " = check_entry($_POST[" + Q(key) + "]," + Q(message) + ");";
}

void ShowPairingError(UiPort& ui, const std::string& type, std::string_view mustFollow)
{
    const std::string x = type.empty() ? std::string() : type.substr(type.size() - 1);
    // "conditon" is the word the box has always shown
    ui.message("A followup-" + x + std::string(mustFollow) + x + "\r\r" + "Delete the input type " + type + "\r" +
                   " and the input type conditon-" + x + "\r\r" + "and rebuild the form",
               "ERROR", Icon::Critical);
}

} // namespace

bool IsDownloadType(std::string_view inputType)
{
    return OneOf(model::ToUpper(inputType),
                 {"DOWNLOAD FILES", "DOWNLOAD FILES WITH PASSWORD", "FOLLOWUP FILES WITH PASSWORD"});
}

bool HasEntryPhp(std::string_view inputType)
{
    return OneOf(model::ToUpper(inputType), {"NAME",
                                             "SUBJECT",
                                             "EMAIL",
                                             "PHONE NUMBER",
                                             "CELL PHONE NUMBER",
                                             "CANCEL BUTTON",
                                             "TITLE 1 SINGLE LINE",
                                             "TITLE 2 DOUBLE LINE",
                                             "TITLE HEADER",
                                             "SURVEY INTRO",
                                             "USER NAME",
                                             "PASSWORD",
                                             "SECURITY CODE",
                                             "QUESTION MULTIPLE CHOICES COMMENTS",
                                             "QUESTION MULTIPLE CHOICES",
                                             "QUESTION YESNO REQUIRED",
                                             "QUESTION YESNO NOT REQUIRED",
                                             "QUESTION YESNO VERTICAL REQUIRED",
                                             "CONDITION WITH COMMENT",
                                             "DOWNLOAD FILES",
                                             "DOWNLOAD FILES WITH PASSWORD",
                                             "CONDITION WITH DROPDOWN",
                                             "CONDITION WITH MULTIPLE CHOICES",
                                             "TABLE TEXT REQUIRED",
                                             "TABLE CHOICES REQUIRED",
                                             "FOLLOWUP FILES WITH PASSWORD",
                                             "FOLLOWUP WITH MULTIPLE CHOICES",
                                             "DROPDOWN REQUIRED",
                                             "DROPDOWN NOT REQUIRED",
                                             "FOLLOWUP WITH DROPDOWN",
                                             "CHECKBOX HORIZONTAL",
                                             "CHECKBOX VERTICAL",
                                             "COMMENTS REQUIRED",
                                             "COMMENTS NOT REQUIRED",
                                             "COMMENTS WITH TEXT",
                                             "FOLLOWUP WITH COMMENT"});
}

void NumberMessages(compose::BuildState& state, std::string_view inputType, std::string& msg, std::string& msg2)
{
    if (!model::EqualsNoCase(state.setupValues.NumberEachQuestion, "YES"))
        return;
    const std::string t = model::ToUpper(inputType);
    std::string label;
    if (OneOf(t, {"DOWNLOAD FILES WITH PASSWORD", "CONDITION WITH COMMENT", "CONDITION WITH DROPDOWN",
                  "CONDITION WITH MULTIPLE CHOICES"})) {
        ++state.phpQuestionNumber;
        label = " " + std::to_string(state.phpQuestionNumber) + "a. "; // the leading blank is shown
    } else if (OneOf(t, {"FOLLOWUP WITH COMMENT", "FOLLOWUP WITH MULTIPLE CHOICES", "FOLLOWUP WITH DROPDOWN",
                         "FOLLOWUP FILES WITH PASSWORD"})) {
        label = " " + std::to_string(state.phpQuestionNumber) + "b. ";
    } else {
        ++state.phpQuestionNumber;
        label = std::to_string(state.phpQuestionNumber) + ". ";
    }
    const size_t dot = label.find('.');
    const std::string suffix =
        dot == std::string::npos ? std::string()
                                 : " for question " + std::string(model::Trim(std::string_view(label).substr(0, dot)));
    msg = label + msg + suffix;
    msg2 = label + msg2 + suffix;
}

void WriteGeneralPhp(compose::BuildState& state, std::string_view inputType, std::string_view keyView)
{
    const std::string t = model::ToUpper(inputType);
    // (A test of the first four characters against "HORIZONTAL LINE" never
    // held; that type does not reach this writer.)
    if (keyView.empty() || t == "VIDEO" || StartsWith(t, "TITLE") || StartsWith(t, "SURVEY"))
        return;

    const std::string key(keyView);
    const compose::WorkingValues& v = state.values;
    std::string msg = v.MSG;
    std::string msg2 = v.MSG2;
    NumberMessages(state, t, msg, msg2);
    const bool required = model::EqualsNoCase(v.REQ, "YES");
    compose::LineWriter& out = state.channels[1];

    if (OneOf(t, {"NAME", "SUBJECT", "PHONE NUMBER", "CELL PHONE NUMBER", "COMMENTS REQUIRED", "COMMENTS NOT REQUIRED",
                  "COMMENTS WITH TEXT", "QUESTION MULTIPLE CHOICES COMMENTS", "QUESTION MULTIPLE CHOICES",
                  "CONDITION WITH DROPDOWN", "TABLE CHOICES REQUIRED", "TABLE TEXT REQUIRED"})) {
        if (required) {
            out.line(CheckEntry(key, msg));
            state.lastConditionField = key;
        } else {
            out.line(TakePost(key));
        }
    } else if (t == "EMAIL") {
        if (required) {
            out.line(CheckEntry(key, msg2));
            // every required EMAIL lands in $email: a second one overwrites it
            out.line("$email = validate_email($_POST[" + Q(key) + "], " + Q(msg) + ");");
        } else {
            out.line(TakePost(key));
        }
    } else if (OneOf(t, {"CONDITION WITH COMMENT", "CONDITION WITH MULTIPLE CHOICES", "QUESTION YESNO REQUIRED",
                         "QUESTION YESNO NOT REQUIRED", "QUESTION YESNO VERTICAL REQUIRED"})) {
        if (required) {
            out.line("$" + key + " = validate_yesno($_POST[" + Q(key) + "], " + Q(msg) + ");");
            state.lastConditionField = key;
        } else {
            out.line(TakePost(key));
        }
    } else if (OneOf(t, {"FOLLOWUP WITH COMMENT", "FOLLOWUP WITH MULTIPLE CHOICES", "FOLLOWUP WITH DROPDOWN"})) {
        // With no field before it the first argument is empty ("$,"): the
        // script does not run. The edit and list checks guard against that.
        const char* check = t == "FOLLOWUP WITH DROPDOWN" ? "validate_radio_notselected" : "validate_radio";
        out.line(TakePost(key));
        out.line(std::string(check) + "($" + state.lastConditionField + ",$" + key + "," + Q(msg) + ");");
        out.line("");
        state.lastConditionField.clear();
    } else if (t == "DROPDOWN REQUIRED" || t == "DROPDOWN NOT REQUIRED") {
        out.line(TakePost(key));
        out.line("validate_radio_dropdown_notselected($" + key + "," + Q(msg) + ");");
        out.line("");
        state.lastConditionField.clear();
    } else if (t == "CHECKBOX HORIZONTAL" || t == "CHECKBOX VERTICAL") {
        if (required)
            out.line("$" + key + " = validate_check($_POST[" + Q(key) + "], " + Q(msg) + ");");
        else
            out.line(TakePost(key));
        out.line("$" + key + " = getresults_check($" + key + ");");
    } else if (t == "USER NAME" || t == "PASSWORD" || t == "SECURITY CODE") {
        if (required) {
            const std::string& expected = t == "USER NAME" ? v.USERNAME : v.PASSWORD;
            out.line(CheckEntry(key, msg2));
            // the raw field, not the cleaned variable, is compared: exact and case-sensitive
            out.line("$" + key + " = validate_userpass($_POST[" + Q(key) + "]," + Q(expected) + "," + Q(msg) + ");");
            out.line("");
            state.lastConditionField = key;
        } else {
            out.line(TakePost(key));
        }
    }
}

void WriteDownloadPhp(UiPort& ui, compose::BuildState& state, std::string_view inputType, std::string_view keyView)
{
    const compose::WorkingValues& v = state.values;
    if (keyView.empty() || v.Title.empty())
        return;
    const std::string t = model::ToUpper(inputType);
    const std::string key(keyView);
    std::string msg = v.MSG;
    std::string msg2 = v.MSG2;
    NumberMessages(state, t, msg, msg2);
    std::string req = v.REQ;
    if (t == "FOLLOWUP FILES WITH PASSWORD")
        req = "yes";
    const bool required = model::EqualsNoCase(req, "YES");
    compose::LineWriter& out = state.channels[1];

    if (t == "DOWNLOAD FILES") {
        if (!required) {
            // every visitor who gets this far sees the download page here
            out.line("download_file();");
            return;
        }
        out.line(CheckEntry(key, msg));
        state.lastConditionField = key;
        return;
    }
    if (t == "DOWNLOAD FILES WITH PASSWORD") {
        if (required)
            out.line(CheckEntry(key, msg));
        state.lastConditionField = key;
        return;
    }
    if (t != "FOLLOWUP FILES WITH PASSWORD")
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
    state.channels[2].line("$" + key + " = validate_userpass_download($_POST[" + Q(key) + "]," + Q(v.PASSWORD) + ", " +
                           Q(msg) + ");");
    state.lastConditionField.clear();
}

void WriteEntryPhp(UiPort& ui, compose::BuildState& state, std::string_view inputType, std::string_view key)
{
    if (!HasEntryPhp(inputType))
        return;
    if (IsDownloadType(inputType))
        WriteDownloadPhp(ui, state, inputType, key);
    else
        WriteGeneralPhp(state, inputType, key);
}

} // namespace tq::php
