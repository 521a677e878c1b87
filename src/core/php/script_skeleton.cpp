// SPDX-License-Identifier: GPL-3.0-or-later
#include "php/script_skeleton.h"

#include "model/attribute_text.h"
#include "model/text_ops.h"
#include "php/error_download_pages.h"
#include "php/function_library.h"

#include <string>

namespace tq::php {

namespace {

void WriteLines(write::LineWriter& out, std::initializer_list<std::string_view> lines)
{
    for (std::string_view line : lines)
        out.line(line);
}

bool IsRecipient(const std::string& email)
{
    return !email.empty() && !model::EqualsNoCase(email, "NONE");
}

} // namespace

void WriteScriptOpening(write::LineWriter& out)
{
    out.line("<?php");
    out.line("");
}

void WriteValidationBanner(write::LineWriter& out, const write::SetupValues& setup)
{
    std::string to = "$to  = \"" + setup.EMAIL1;
    if (IsRecipient(setup.EMAIL2))
        to += "," + setup.EMAIL2;
    if (IsRecipient(setup.EMAIL3))
        to += "," + setup.EMAIL3;
    to += "\";";
    WriteLines(out, {
                        "/************************/",
                        "/* Set e-mail recipient */",
                        "/************************/",
                        "",
                        to,
                        "",
                        "/*******************/",
                        "/* Validation Code */",
                        "/*******************/",
                        "",
                    });
}

void WriteOptionLines(write::LineWriter& out)
{
    WriteLines(out, {"", "$option = $_POST['option'];", "$drop_down = $_POST['drop_down'];"});
}

void WriteMessageBody(write::LineWriter& out, const write::BuildState& state)
{
    if (state.messageLineCount < 0 || state.messageLineCount > write::kMessageLineSlots)
        throw model::InternalError("internal error: message line count " + std::to_string(state.messageLineCount) +
                                   " out of range");
    for (int i = 1; i <= state.messageLineCount; i += 2) {
        std::string label = state.messageLines[static_cast<size_t>(i)];
        for (size_t at = label.find("\\n"); at != std::string::npos; at = label.find("\\n")) {
            if (at == 0)
                label.erase(0, 2);
            else
                label.replace(at, 2, "\r\n");
        }
        for (size_t at = label.find("&nbsp;"); at != std::string::npos; at = label.find("&nbsp;"))
            label.erase(at, 6);
        out.line(label);
        if (model::ToUpper(label).find("B.") != std::string::npos)
            out.line("");

        // the slot behind an odd count is the table's own empty slot
        const std::string& w = state.messageLines[static_cast<size_t>(i + 1)];
        if (!w.empty() && w[0] == '-')
            out.line(std::string_view(w).substr(1));
        else if (!model::Trim(w).empty())
            out.line("$" + w); // PHP expands the variable inside the message string
        else
            out.line(w);
        if (!w.empty())
            out.line("");
    }
}

void WriteScriptTail(write::LineWriter& out, const write::BuildState& state, std::string_view serverPath)
{
    const write::SetupValues& setup = state.setupValues;
    WriteLines(out, {
                        "",
                        "/***********************************/",
                        "/* Get Public IP Address from User */",
                        "/***********************************/",
                        "",
                        "$ip=$_SERVER['REMOTE_ADDR'];",
                        "",
                        "/**********************/",
                        "/* Get Today's Date   */",
                        "/**********************/",
                        "",
                        R"~($today=date("l F d, Y");)~",
                        "",
                        "/***************************************************/",
                        "/* In email FROM title after user clicks on submit */",
                        "/***************************************************/",
                        "",
                        // "@\r\n" stays as five characters for PHP to read
                        "$headers=\"from: " + setup.FROM + R"~(@\r\n";)~",
                        "",
                        "$subject=\"" + state.mailSubject + "\";",
                        "",
                        "/*************************/",
                        "/* Message for the email */",
                        "/*************************/",
                        "",
                        // the string stays open through the message lines
                        "$message = \"A message has been submitted from",
                        setup.FROM + "@",
                        "",
                        "Date: $today",
                        "",
                        "Send from public IP Address",
                        "$ip",
                        "",
                    });
    WriteMessageBody(out, state);
    WriteLines(out, {
                        "End of message",
                        "\";",
                        "",
                        "/*----------------------------*/",
                        "/* Functions Used in PHP Code */",
                        "/*----------------------------*/",
                        "",
                        "/******************************************/",
                        "/* Send the message using mail() function */",
                        "/******************************************/",
                        "",
                        "mail($to, $subject, $message, $headers);",
                        "",
                        "/******************************************/",
                        "/* Redirect visitor to the thank you page */",
                        "/******************************************/",
                        "",
                        "header(\"Location: " + setup.COMPLETED + "\");",
                        "",
                        "exit();",
                        "",
                    });
    WriteFunctionLibrary(out);
    WriteDownloadFile(out, state, serverPath);
    WriteShowError(out);
}

} // namespace tq::php
