// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/text_inputs.h"

#include "html/headings.h"
#include "html/html_text.h"
#include "model/text_ops.h"
#include "session.h"

namespace tq::html {

namespace {

void WriteEmailLines(
    Session& s, std::string_view field, std::string_view width, const std::string& t, std::string_view defaultValue)
{
    auto& out = s.build.channels[1];
    if (defaultValue.empty()) {
        if (t != "EMAIL")
            WriteIndent11(s);
        out.piece(ParagraphOpen(s.build.values.ALIGN) + "<input type=" + Quoted("text"));
        // without a width the field gets no size and no name, and a stray quote
        if (!width.empty())
            out.piece(" size=" + Quoted(width) + " name=\"" + std::string(field));
        else
            out.piece(" ");
        out.line("\" />");
        return;
    }
    WriteIndent11(s);
    if (!width.empty())
        out.line(ParagraphOpen(s.build.values.ALIGN) + "<input type=" + Quoted("text") + " size=" + Quoted(width) +
                 " value=" + Quoted(defaultValue) + " name=" + Quoted(field) + " /><br />");
    else
        out.line(ParagraphOpen(s.build.values.ALIGN) + "<input type=" + Quoted("text") +
                 " value=" + Quoted(defaultValue) + " name=" + Quoted(field) + " /><br />");
}

// The text area's open tag ends on the next line; a default text sets the fixed-pitch font.
void WriteTextArea(Session& s, std::string_view field, std::string_view width, std::string_view height)
{
    auto& out = s.build.channels[1];
    const auto& lines = s.build.values.DefaultLines;
    out.line("<textarea name=" + Quoted(model::ToLower(field)) + "  rows=" + Quoted(height) + " cols=" + Quoted(width));
    if (lines.count() > 0)
        out.line("Style = " + Quoted("font-family: Courier; font-size: 10pt") + ">");
    else
        out.line(">");
    for (const auto& l : lines.items)
        out.line(l);
}

} // namespace

void WriteSurveyText(Session& s,
                     std::string_view field,
                     std::string title,
                     std::string_view /*password*/,
                     std::string_view width,
                     std::string_view inputType,
                     std::string_view defaultValue,
                     std::string_view required)
{
    auto& out = s.build.channels[1];
    const std::string t = model::ToUpper(inputType);
    const std::string req = ForcedRequired(required, t);
    if (model::StartsWithNoCase(t, "TITLE") || model::StartsWithNoCase(t, "SURVEY")) {
        WriteSurveyHeading(s, title, req, inputType);
        out.line("");
        return;
    }
    if (t == "CANCEL BUTTON" || t == "BLANK LINE")
        return;
    RecordQuestion(s.build, field, title, inputType);
    out.line("");
    WriteSurveyHeading(s, title, req, inputType);

    if (t == "FOLLOWUP FILES WITH PASSWORD") {
        out.line(ParagraphOpen(s.build.values.ALIGN));
        out.line("<input type=" + Quoted("password") + " size=" + Quoted("25") + " name=" + Quoted(field) + "/>");
        WriteStyleClose(s);
        WriteShadeClose(s);
    } else if (t == "NAME" || t == "SUBJECT" || t == "PHONE NUMBER" || t == "CELL PHONE NUMBER") {
        out.line(ParagraphOpen(s.build.values.ALIGN));
        // the input tag has no ">": the "</p>" follows the value's quote at once
        out.line("<input type=" + Quoted("text") + " size=" + Quoted("40") + " name=" + Quoted(field) +
                 "value=" + Quoted(defaultValue) + "</p>");
        WriteShadeClose(s);
    } else if (t == "USER NAME") {
        out.line(ParagraphOpen(s.build.values.ALIGN));
        out.line(ParagraphOpen(s.build.values.ALIGN) + "<input type=" + Quoted("text") + " size=" + Quoted("25") +
                 " name=" + Quoted(field) + ">");
        // the style is closed twice here: the format does so
        WriteStyleClose(s);
        WriteStyleClose(s);
        out.line("</font>");
        WriteShadeClose(s);
    } else if (t == "PASSWORD" || t == "SECURITY CODE") {
        out.line(ParagraphOpen(s.build.values.ALIGN));
        out.line("<input type=" + Quoted("password") + " size=" + Quoted("25") + " name=" + Quoted(field) + " />");
        WriteStyleClose(s);
        WriteShadeClose(s);
    } else {
        WriteEmailLines(s, field, width, t, defaultValue);
        WriteStyleClose(s);
        WriteShadeClose(s);
    }
}

void WriteFormText(Session& s,
                   std::string_view field,
                   std::string title,
                   std::string_view /*password*/,
                   std::string_view width,
                   std::string_view inputType,
                   std::string_view defaultValue,
                   std::string_view required)
{
    auto& out = s.build.channels[1];
    const std::string t = model::ToUpper(inputType);
    const std::string req = ForcedRequired(required, t);
    if (model::StartsWithNoCase(t, "TITLE")) {
        WriteFormHeading(s, title, req, inputType);
        return;
    }
    if (t == "CANCEL BUTTON")
        return;
    RecordQuestion(s.build, field, title, inputType);
    out.line("");
    WriteFormHeading(s, title, req, inputType);

    WriteIndent11(s);
    if (defaultValue.empty()) {
        const bool hidden = t == "PASSWORD" || t == "SECURITY CODE" || t == "FOLLOWUP FILES WITH PASSWORD";
        out.piece("<input type=" + Quoted(hidden ? "password" : "text"));
        // without a width the field gets no size and no name, and a stray quote
        if (!width.empty())
            out.piece(" size=" + Quoted(width) + " name=\"" + std::string(field));
        else
            out.piece(" ");
        out.line("\" />");
    } else if (!width.empty()) {
        // a default value makes even a password field a text field
        out.line("<input type=" + Quoted("text") + " size=" + Quoted(width) + " value=" + Quoted(defaultValue) +
                 " name=" + Quoted(field) + " />");
    } else {
        out.line("<input type=" + Quoted("text") + " value=" + Quoted(defaultValue) + " name=" + Quoted(field) + " />");
    }
    // the heading's font tag stays open
    WriteStyleClose(s);
}

void WriteSurveyComments(Session& s,
                         std::string_view field,
                         std::string title,
                         std::string_view width,
                         std::string_view height,
                         std::string_view /*defaultValue*/,
                         std::string_view inputType,
                         std::string_view required)
{
    auto& out = s.build.channels[1];
    RecordQuestion(s.build, field, title, inputType);
    out.line("");
    WriteSurveyHeading(s, title, required, inputType);
    if (model::StartsWithNoCase(inputType, "CONDITION") || model::StartsWithNoCase(inputType, "FOLLOWUP"))
        out.line(ParagraphOpen(s.build.values.ALIGN));
    out.line(ParagraphOpen(s.build.values.ALIGN));
    WriteTextArea(s, field, width, height);
    out.line("</textarea>");
    WriteStyleClose(s);
    WriteShadeClose(s);
}

void WriteFormComments(Session& s,
                       std::string_view field,
                       std::string title,
                       std::string_view width,
                       std::string_view height,
                       std::string_view /*defaultValue*/,
                       std::string_view inputType,
                       std::string_view required)
{
    auto& out = s.build.channels[1];
    RecordQuestion(s.build, field, title, inputType);
    out.line("");
    WriteFormHeading(s, title, required, inputType);
    WriteIndent11(s);
    WriteTextArea(s, field, width, height);
    out.line("</textarea></p>");
    WriteStyleClose(s);
}

} // namespace tq::html
