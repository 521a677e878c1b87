// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/input_types.h"

#include "model/internal_error.h"
#include "model/text_ops.h"

#include <string>

namespace tq::model {

namespace {

using H = HtmlWriter;
using I = InputTypeId;
using P = PhpWriter;
using R = Recipe;

constexpr ModeWriter kNone{};

// The same writer in both modes.
constexpr ModeWriter Same(H w)
{
    return {w, false};
}

struct Writers
{
    ModeWriter form;
    ModeWriter survey;
};

// The families of question writers: the form's and the survey's.
constexpr Writers kText{{H::FormText, false}, {H::SurveyText, false}};
constexpr Writers kChoices{{H::FormChoices, true}, {H::SurveyChoices, true}};
constexpr Writers kDropdown{{H::FormDropdown, false}, {H::SurveyDropdown, false}};
constexpr Writers kCheckboxes{{H::FormCheckboxes, false}, {H::SurveyCheckboxes, false}};
constexpr Writers kComments{{H::FormComments, false}, {H::SurveyComments, false}};

constexpr InputType Row(I id, std::string_view name, std::string_view display, Modes modes, R recipe, Writers w, P php)
{
    return {id, name, display, modes, recipe, w.form, w.survey, php, Pairing::None, I::None, Numbering::Own};
}

constexpr InputType Lead(I id, std::string_view name, std::string_view display, R recipe, Writers w, P php, I partner)
{
    return {id,  name,          display, Modes::Both,         recipe, w.form, w.survey,
            php, Pairing::Lead, partner, Numbering::PairFirst};
}

constexpr InputType
Followup(I id, std::string_view name, std::string_view display, R recipe, Writers w, P php, I partner)
{
    return {id,
            name,
            display,
            Modes::Both,
            recipe,
            w.form,
            w.survey,
            php,
            Pairing::Followup,
            partner,
            Numbering::PairSecond};
}

constexpr Modes kBoth = Modes::Both;

constexpr InputType kTable[] = {
    Row(I::Setup, "SETUP", "Setup", kBoth, R::Setup, {kNone, kNone}, P::None),
    Row(I::Name, "NAME", "Name", kBoth, R::NameSubject, kText, P::CheckEntry),
    Row(I::Subject, "SUBJECT", "Subject", kBoth, R::NameSubject, kText, P::CheckEntry),
    Row(I::Email, "EMAIL", "Email", kBoth, R::Email, kText, P::Email),
    Row(I::PhoneNumber, "PHONE NUMBER", "Phone Number", kBoth, R::Phone, kText, P::CheckEntry),
    Row(I::CellPhoneNumber, "CELL PHONE NUMBER", "Cell Phone Number", kBoth, R::Phone, kText, P::CheckEntry),
    Row(I::CancelButton, "CANCEL BUTTON", "Cancel Button", kBoth, R::CancelButton, kText, P::NumberOnly),
    Row(I::HorizontalLine,
        "HORIZONTAL LINE",
        "Horizontal Line",
        kBoth,
        R::HorizontalLine,
        {Same(H::HorizontalLine), Same(H::HorizontalLine)},
        P::None),
    Row(I::TitleShade,
        "TITLE SHADE",
        "Title Shade",
        Modes::Survey,
        R::TitleShade,
        {Same(H::TitleShade), Same(H::TitleShade)},
        P::None),
    Row(I::BlankLine,
        "BLANK LINE",
        "Blank Line",
        kBoth,
        R::BlankLine,
        {Same(H::BlankLine), Same(H::BlankLine)},
        P::None),
    Row(I::Video, "VIDEO", "Video", kBoth, R::Video, {Same(H::Video), Same(H::Video)}, P::None),
    Row(I::Picture, "PICTURE", "Picture", kBoth, R::Picture, {Same(H::Picture), Same(H::Picture)}, P::None),
    Row(I::Title1SingleLine, "TITLE 1 SINGLE LINE", "Title 1 Single Line", kBoth, R::Title, kText, P::None),
    Row(I::Title2DoubleLine, "TITLE 2 DOUBLE LINE", "Title 2 Double Line", kBoth, R::Title, kText, P::None),
    Row(I::TitleHeader, "TITLE HEADER", "Title Header", kBoth, R::Title, kText, P::None),
    Row(I::SurveyIntro, "SURVEY INTRO", "Survey Intro", Modes::Survey, R::SurveyIntro, kText, P::None),
    Row(I::UserName, "USER NAME", "User Name", kBoth, R::UserName, kText, P::Login),
    Row(I::Password, "PASSWORD", "Password", kBoth, R::Password, kText, P::Login),
    Row(I::SecurityCode, "SECURITY CODE", "Security Code", kBoth, R::SecurityCode, kText, P::Login),
    Row(I::QuestionMultipleChoicesComments,
        "QUESTION MULTIPLE CHOICES COMMENTS",
        "Question Multiple Choices Comments",
        kBoth,
        R::Question,
        kChoices,
        P::CheckEntry),
    Row(I::QuestionMultipleChoices,
        "QUESTION MULTIPLE CHOICES",
        "Question Multiple Choices",
        kBoth,
        R::Question,
        kChoices,
        P::CheckEntry),
    Row(I::QuestionYesNoRequired,
        "QUESTION YESNO REQUIRED",
        "Question YesNo Required",
        kBoth,
        R::Question,
        kChoices,
        P::YesNo),
    Row(I::QuestionYesNoNotRequired,
        "QUESTION YESNO NOT REQUIRED",
        "Question YesNo Not Required",
        kBoth,
        R::Question,
        kChoices,
        P::YesNo),
    Row(I::QuestionYesNoVerticalRequired,
        "QUESTION YESNO VERTICAL REQUIRED",
        "Question YesNo Vertical Required",
        Modes::Form,
        R::Question,
        kChoices,
        P::YesNo),
    Lead(I::ConditionWithComment,
         "CONDITION WITH COMMENT",
         "Condition With Comment",
         R::ConditionComment,
         kChoices,
         P::YesNo,
         I::FollowupWithComment),
    Lead(I::ConditionWithDropdown,
         "CONDITION WITH DROPDOWN",
         "Condition With Dropdown",
         R::ConditionDropdown,
         {{H::FormChoices, true}, {H::ConditionDropdown, true}},
         P::CheckEntry,
         I::FollowupWithDropdown),
    // the survey's multiple-choice Condition leaves lastConditionField as it was
    Lead(I::ConditionWithMultipleChoices,
         "CONDITION WITH MULTIPLE CHOICES",
         "Condition With Multiple Choices",
         R::ConditionChoices,
         {{H::FormChoices, true}, {H::ConditionChoices, false}},
         P::YesNo,
         I::FollowupWithMultipleChoices),
    Row(I::DownloadFiles, "DOWNLOAD FILES", "Download Files", kBoth, R::DownloadFiles, kChoices, P::DownloadFiles),
    Lead(I::DownloadFilesWithPassword,
         "DOWNLOAD FILES WITH PASSWORD",
         "Download Files With Password",
         R::DownloadFilesPassword,
         kChoices,
         P::DownloadFilesPassword,
         I::FollowupFilesWithPassword),
    Row(I::TableTextRequired,
        "TABLE TEXT REQUIRED",
        "Table Text Required",
        Modes::Survey,
        R::Table,
        {Same(H::FormTableChoices), Same(H::TableText)},
        P::CheckEntry),
    Row(I::TableChoicesRequired,
        "TABLE CHOICES REQUIRED",
        "Table Choices Required",
        Modes::Survey,
        R::Table,
        {Same(H::FormTableChoices), Same(H::TableChoices)},
        P::CheckEntry),
    Row(I::DropdownRequired, "DROPDOWN REQUIRED", "Dropdown Required", kBoth, R::Dropdown, kDropdown, P::Dropdown),
    Row(I::DropdownNotRequired,
        "DROPDOWN NOT REQUIRED",
        "Dropdown Not Required",
        kBoth,
        R::Dropdown,
        kDropdown,
        P::Dropdown),
    Row(I::CheckboxHorizontal,
        "CHECKBOX HORIZONTAL",
        "Checkbox Horizontal",
        kBoth,
        R::Checkbox,
        kCheckboxes,
        P::Checkbox),
    Row(I::CheckboxVertical,
        "CHECKBOX VERTICAL",
        "Checkbox Vertical",
        Modes::Form,
        R::Checkbox,
        kCheckboxes,
        P::Checkbox),
    Row(I::CommentsRequired, "COMMENTS REQUIRED", "Comments Required", kBoth, R::Comments, kComments, P::CheckEntry),
    Row(I::CommentsNotRequired,
        "COMMENTS NOT REQUIRED",
        "Comments Not Required",
        kBoth,
        R::Comments,
        kComments,
        P::CheckEntry),
    Row(I::CommentsWithText, "COMMENTS WITH TEXT", "Comments With Text", kBoth, R::Comments, kComments, P::CheckEntry),
    Followup(I::FollowupWithComment,
             "FOLLOWUP WITH COMMENT",
             "Followup With Comment",
             R::FollowupComment,
             kComments,
             P::FollowupRadio,
             I::ConditionWithComment),
    Followup(I::FollowupWithDropdown,
             "FOLLOWUP WITH DROPDOWN",
             "Followup With Dropdown",
             R::FollowupChoices,
             kDropdown,
             P::FollowupDropdown,
             I::ConditionWithDropdown),
    // the choices writers of the first group, but a Followup sets no condition field
    Followup(I::FollowupWithMultipleChoices,
             "FOLLOWUP WITH MULTIPLE CHOICES",
             "Followup With Multiple Choices",
             R::FollowupChoices,
             {{H::FormChoices, false}, {H::SurveyChoices, false}},
             P::FollowupRadio,
             I::ConditionWithMultipleChoices),
    Followup(I::FollowupFilesWithPassword,
             "FOLLOWUP FILES WITH PASSWORD",
             "Followup Files With Password",
             R::FollowupFilesPassword,
             kText,
             P::FollowupFiles,
             I::DownloadFilesWithPassword),
};

// The table is indexed by id: row n holds id n + 1.
constexpr bool InIdOrder()
{
    int n = 1;
    for (const InputType& row : kTable)
        if (static_cast<int>(row.id) != n++)
            return false;
    return true;
}
static_assert(InIdOrder(), "the rows of the Input Type table stand in InputTypeId order");

struct Family
{
    std::string_view prefix;
    Recipe recipe;
};

// Names outside the table are read by the family they start like.
constexpr Family kFamilies[] = {
    {"SURVEY", R::SurveyIntro}, {"TABLE", R::Table},       {"TITLE", R::Title},       {"CHECKBOX", R::Checkbox},
    {"COMMENTS", R::Comments},  {"DROPDOWN", R::Dropdown}, {"QUESTION", R::Question},
};

} // namespace

const ModeWriter& InputType::writerIn(Mode mode) const
{
    return mode == Mode::Survey ? survey : form;
}

std::span<const InputType> InputTypes()
{
    return kTable;
}

const InputType* FindInputType(std::string_view name)
{
    // Most names are stored in display case; compare without a copy.
    for (const InputType& row : kTable)
        if (EqualsNoCase(row.name, name))
            return &row;
    return nullptr;
}

const InputType& InputTypeRow(InputTypeId id)
{
    const int index = static_cast<int>(id) - 1;
    if (index < 0 || index >= static_cast<int>(std::size(kTable)))
        throw InternalError("internal error: no Input Type row " + std::to_string(index + 1));
    return kTable[index];
}

bool OfferedIn(const InputType& row, Mode mode)
{
    if (row.modes == Modes::Both)
        return true;
    return (row.modes == Modes::Survey) == (mode == Mode::Survey);
}

Recipe RecipeFor(std::string_view name)
{
    if (const InputType* row = FindInputType(name))
        return row->recipe;
    for (const Family& f : kFamilies)
        if (StartsWithNoCase(name, f.prefix))
            return f.recipe;
    return Recipe::None;
}

} // namespace tq::model
