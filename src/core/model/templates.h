// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace tq::model {

/// One default attribute text as written in the program: a display name and
/// its one-line text, where {Field} marks stand for the values of the
/// settings record that are filled in at each catalogue build.
struct TemplateSource
{
    std::string_view name;
    std::string_view text;
};

/// The values that fill the {Field} marks of a template.
struct TemplateFields
{
    std::string TextColor;
    std::string RandomCode;
    std::string SampleSite;
    std::string BackgroundImagePath;
    std::string ServerFolderPath;
    std::string ThankYouUrl;
    std::string VideoPath;
    std::string HomePagePath;
    std::string DriveFolderPath;
    std::string FromName;
    std::string CompletedPage;
    std::string GlobalAlign;
    std::string SubmitName;
    std::string SubmitAlign;
    std::string SubmitButtonColor;
    std::string Email1;
    std::string Email2;
    std::string Email3;
    std::string FrameBorderColor;
    std::string FrameColor;
    std::string BackgroundColor;
    std::string NumberEachQuestion; // "YES" or "NO"
    std::string ShowToolTips;       // "YES" or "NO"
    std::string IncludeFrame;       // "YES" or "NO" (FORM only)
};

/// The 33 FORM Input Types in pick-list order.
std::span<const TemplateSource> FormTemplateSources();
/// The 35 SURVEY Input Types in pick-list order.
std::span<const TemplateSource> SurveyTemplateSources();
/// The four Followups of a mode: Followup Files With Password, Followup With
/// Comment, Followup With Multiple Choices, Followup With Dropdown.
std::span<const TemplateSource> FollowupTemplateSources(bool survey);
/// The SETUP text of a mode.
const TemplateSource& SetupTemplateSource(bool survey);

/// True when the text holds a {RandomCode} mark (Password, Security Code).
bool UsesRandomCode(std::string_view source);

/// The text with every {Field} mark replaced by its value. A mark that
/// names no field throws InternalError.
std::string FillTemplate(std::string_view source, const TemplateFields& fields);

} // namespace tq::model
