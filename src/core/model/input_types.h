// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/mode.h"

#include <span>
#include <string_view>

namespace tq::model {

/// Every Input Type a project can hold, SETUP included.
enum class InputTypeId {
    None, // no type: the partner of an unpaired row
    Setup,
    Name,
    Subject,
    Email,
    PhoneNumber,
    CellPhoneNumber,
    CancelButton,
    HorizontalLine,
    TitleShade,
    BlankLine,
    Video,
    Picture,
    Title1SingleLine,
    Title2DoubleLine,
    TitleHeader,
    SurveyIntro,
    UserName,
    Password,
    SecurityCode,
    QuestionMultipleChoicesComments,
    QuestionMultipleChoices,
    QuestionYesNoRequired,
    QuestionYesNoNotRequired,
    QuestionYesNoVerticalRequired,
    ConditionWithComment,
    ConditionWithDropdown,
    ConditionWithMultipleChoices,
    DownloadFiles,
    DownloadFilesWithPassword,
    TableTextRequired,
    TableChoicesRequired,
    DropdownRequired,
    DropdownNotRequired,
    CheckboxHorizontal,
    CheckboxVertical,
    CommentsRequired,
    CommentsNotRequired,
    CommentsWithText,
    FollowupWithComment,
    FollowupWithDropdown,
    FollowupWithMultipleChoices,
    FollowupFilesWithPassword,
};

/// Which kinds of project offer a type.
enum class Modes { Form, Survey, Both };

/// How the build reads a type's attribute text: the keys in their order.
enum class Recipe {
    None, // no recipe: the build stops with "unknown type"
    Setup,
    HorizontalLine,
    Video,
    Picture,
    BlankLine,
    SurveyIntro,
    Table,
    TitleShade,
    Title,
    NameSubject,
    Phone,
    Email,
    Checkbox,
    Comments,
    ConditionComment,
    ConditionDropdown,
    ConditionChoices,
    FollowupComment,
    FollowupChoices, // FOLLOWUP WITH DROPDOWN and WITH MULTIPLE CHOICES
    DownloadFiles,
    DownloadFilesPassword,
    FollowupFilesPassword,
    Dropdown,
    Question,
    UserName,
    Password,
    SecurityCode,
    CancelButton,
};

/// The HTML writer of a type in one mode.
enum class HtmlWriter {
    None,
    FormText, // the text writers write nothing for CANCEL BUTTON
    SurveyText,
    FormChoices,
    FormTableChoices, // the form's radio question, titled by the table's [COLCHOICE
    SurveyChoices,
    ConditionDropdown,
    ConditionChoices,
    TableText,
    TableChoices,
    FormDropdown,
    SurveyDropdown,
    FormCheckboxes,
    SurveyCheckboxes,
    FormComments,
    SurveyComments,
    HorizontalLine, // written in the HTML pass only, with its own short reading
    TitleShade,
    BlankLine,
    Video,
    Picture,
};

/// The writer of one mode and whether the HTML pass keeps the row's field as
/// `lastConditionField` behind it.
struct ModeWriter
{
    HtmlWriter writer = HtmlWriter::None;
    bool setsConditionField = false;
};

/// The PHP writer of a type: which checks of the script its field gets.
enum class PhpWriter {
    None,                  // no script lines and no question number
    NumberOnly,            // takes a question number, writes nothing
    CheckEntry,            // check_entry when required, else the bare $_POST
    Email,                 // check_entry and validate_email when required
    YesNo,                 // validate_yesno when required
    FollowupRadio,         // validate_radio against the Condition before it
    FollowupDropdown,      // validate_radio_notselected against the Condition
    Dropdown,              // validate_radio_dropdown_notselected
    Checkbox,              // validate_check, then getresults_check
    Login,                 // check_entry and validate_userpass when required
    DownloadFiles,         // download_file() or its check
    DownloadFilesPassword, // its check; keeps the field for the Followup
    FollowupFiles,         // the Followup's checks and the password check in \downtemp.txt
};

/// A type's place in a pair: a lead is always followed by its Followup.
enum class Pairing { None, Lead, Followup };

/// How the question number of a type is written when questions are numbered.
enum class Numbering {
    Own,       // advances the number: "3. "
    PairFirst, // advances the number: " 3a. "
    PairSecond // keeps its lead's number: " 3b. "
};

/// One row of the table: everything a type does.
struct InputType
{
    InputTypeId id = InputTypeId::None;
    std::string_view name;        // upper case: the key files are matched by
    std::string_view displayName; // as the catalogue and new projects write it
    Modes modes = Modes::Both;
    Recipe recipe = Recipe::None;
    ModeWriter form;
    ModeWriter survey;
    PhpWriter php = PhpWriter::None;
    Pairing pairing = Pairing::None;
    InputTypeId partner = InputTypeId::None; // the other half of a pair
    Numbering numbering = Numbering::Own;

    /// The writer of `mode`.
    const ModeWriter& writerIn(Mode mode) const;
};

/// Every row, in no significant order.
std::span<const InputType> InputTypes();

/// The row of a type by name, compared upper-cased and whole. nullptr for a
/// name outside the table.
const InputType* FindInputType(std::string_view name);

/// The row of an id; `InputTypeId::None` (no row) throws InternalError.
const InputType& InputTypeRow(InputTypeId id);

/// True when `mode` offers the row.
bool OfferedIn(const InputType& row, Mode mode);

/// The recipe the build reads `name` (any case) with: the row's, or for a
/// name outside the table that starts like a family (SURVEY, TABLE, TITLE,
/// CHECKBOX, COMMENTS, DROPDOWN, QUESTION) that family's, which the build
/// reads and then writes nothing for. `Recipe::None` otherwise.
Recipe RecipeFor(std::string_view name);

} // namespace tq::model
