// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/text_inputs.h"

#include "html/headings.h"
#include "html/html_text.h"
#include "model/text_ops.h"

namespace tq::html {

namespace {

void WriteEmailLines(write::BuildState& b,
                     std::string_view field,
                     std::string_view width,
                     const model::InputType& type,
                     std::string_view defaultValue)
{
    auto& out = b.channels[1];
    if (defaultValue.empty()) {
        if (type.id != model::InputTypeId::Email)
            WriteIndent11(b);
        out.piece(ParagraphOpen(b.values.ALIGN) + "<input type=" + Quoted("text"));
        // without a width the field gets no size and no name, and a stray quote
        if (!width.empty())
            out.piece(" size=" + Quoted(width) + " name=\"" + std::string(field));
        else
            out.piece(" ");
        out.line("\" />");
        return;
    }
    WriteIndent11(b);
    if (!width.empty())
        out.line(ParagraphOpen(b.values.ALIGN) + "<input type=" + Quoted("text") + " size=" + Quoted(width) +
                 " value=" + Quoted(defaultValue) + " name=" + Quoted(field) + " /><br />");
    else
        out.line(ParagraphOpen(b.values.ALIGN) + "<input type=" + Quoted("text") + " value=" + Quoted(defaultValue) +
                 " name=" + Quoted(field) + " /><br />");
}

// The text area's open tag ends on the next line; a default text sets the fixed-pitch font.
void WriteTextArea(write::BuildState& b, std::string_view field, std::string_view width, std::string_view height)
{
    auto& out = b.channels[1];
    const auto& lines = b.values.DefaultLines;
    out.line("<textarea name=" + Quoted(model::ToLower(field)) + "  rows=" + Quoted(height) + " cols=" + Quoted(width));
    if (lines.count() > 0)
        out.line("Style = " + Quoted("font-family: Courier; font-size: 10pt") + ">");
    else
        out.line(">");
    for (const auto& l : lines.items)
        out.line(l);
}

} // namespace

void WriteSurveyText(write::BuildState& b,
                     model::Mode mode,
                     std::string_view field,
                     std::string title,
                     std::string_view /*password*/,
                     std::string_view width,
                     const model::InputType& type,
                     std::string_view defaultValue,
                     std::string_view required)
{
    auto& out = b.channels[1];
    const std::string req = ForcedRequired(required, type);
    if (IsTitle(type) || type.id == model::InputTypeId::SurveyIntro) {
        WriteSurveyHeading(b, mode, title, req, type);
        out.line("");
        return;
    }
    if (type.id == model::InputTypeId::CancelButton || type.id == model::InputTypeId::BlankLine)
        return;
    RecordQuestion(b, field, title, type);
    out.line("");
    WriteSurveyHeading(b, mode, title, req, type);

    if (type.id == model::InputTypeId::FollowupFilesWithPassword) {
        out.line(ParagraphOpen(b.values.ALIGN));
        out.line("<input type=" + Quoted("password") + " size=" + Quoted("25") + " name=" + Quoted(field) + "/>");
        WriteStyleClose(b);
        WriteShadeClose(b, mode);
    } else if (type.id == model::InputTypeId::Name || type.id == model::InputTypeId::Subject ||
               type.id == model::InputTypeId::PhoneNumber || type.id == model::InputTypeId::CellPhoneNumber) {
        out.line(ParagraphOpen(b.values.ALIGN));
        // the input tag has no ">": the "</p>" follows the value's quote at once
        out.line("<input type=" + Quoted("text") + " size=" + Quoted("40") + " name=" + Quoted(field) +
                 "value=" + Quoted(defaultValue) + "</p>");
        WriteShadeClose(b, mode);
    } else if (type.id == model::InputTypeId::UserName) {
        out.line(ParagraphOpen(b.values.ALIGN));
        out.line(ParagraphOpen(b.values.ALIGN) + "<input type=" + Quoted("text") + " size=" + Quoted("25") +
                 " name=" + Quoted(field) + ">");
        // the style is closed twice here: the format does so
        WriteStyleClose(b);
        WriteStyleClose(b);
        out.line("</font>");
        WriteShadeClose(b, mode);
    } else if (type.id == model::InputTypeId::Password || type.id == model::InputTypeId::SecurityCode) {
        out.line(ParagraphOpen(b.values.ALIGN));
        out.line("<input type=" + Quoted("password") + " size=" + Quoted("25") + " name=" + Quoted(field) + " />");
        WriteStyleClose(b);
        WriteShadeClose(b, mode);
    } else {
        WriteEmailLines(b, field, width, type, defaultValue);
        WriteStyleClose(b);
        WriteShadeClose(b, mode);
    }
}

void WriteFormText(write::BuildState& b,
                   std::string_view field,
                   std::string title,
                   std::string_view /*password*/,
                   std::string_view width,
                   const model::InputType& type,
                   std::string_view defaultValue,
                   std::string_view required)
{
    auto& out = b.channels[1];
    const std::string req = ForcedRequired(required, type);
    if (IsTitle(type)) {
        WriteFormHeading(b, title, req, type);
        return;
    }
    if (type.id == model::InputTypeId::CancelButton)
        return;
    RecordQuestion(b, field, title, type);
    out.line("");
    WriteFormHeading(b, title, req, type);

    WriteIndent11(b);
    if (defaultValue.empty()) {
        const bool hidden = type.id == model::InputTypeId::Password || type.id == model::InputTypeId::SecurityCode ||
                            type.id == model::InputTypeId::FollowupFilesWithPassword;
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
    WriteStyleClose(b);
}

void WriteSurveyComments(write::BuildState& b,
                         model::Mode mode,
                         std::string_view field,
                         std::string title,
                         std::string_view width,
                         std::string_view height,
                         std::string_view /*defaultValue*/,
                         const model::InputType& type,
                         std::string_view required)
{
    auto& out = b.channels[1];
    RecordQuestion(b, field, title, type);
    out.line("");
    WriteSurveyHeading(b, mode, title, required, type);
    if (IsCondition(type) || IsFollowup(type))
        out.line(ParagraphOpen(b.values.ALIGN));
    out.line(ParagraphOpen(b.values.ALIGN));
    WriteTextArea(b, field, width, height);
    out.line("</textarea>");
    WriteStyleClose(b);
    WriteShadeClose(b, mode);
}

void WriteFormComments(write::BuildState& b,
                       std::string_view field,
                       std::string title,
                       std::string_view width,
                       std::string_view height,
                       std::string_view /*defaultValue*/,
                       const model::InputType& type,
                       std::string_view required)
{
    auto& out = b.channels[1];
    RecordQuestion(b, field, title, type);
    out.line("");
    WriteFormHeading(b, title, required, type);
    WriteIndent11(b);
    WriteTextArea(b, field, width, height);
    out.line("</textarea></p>");
    WriteStyleClose(b);
}

} // namespace tq::html
