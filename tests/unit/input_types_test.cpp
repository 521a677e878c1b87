// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/headings.h"
#include "model/catalogue.h"
#include "model/input_types.h"
#include "model/internal_error.h"
#include "model/text_ops.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

using namespace tq;
using namespace tq::model;

namespace {

// The names the catalogue of `mode` offers in its pick lists.
std::set<std::string> CatalogueNamesOf(Mode mode)
{
    Catalogue catalogue;
    TemplateSettings settings;
    StateRecord state;
    state.ProjectMode = mode;
    BuildCatalogue(catalogue, settings, state);
    std::set<std::string> names;
    for (int i = 0; i <= catalogue.CatalogueCount; ++i)
        names.insert(CatalogueName(catalogue, i));
    return names;
}

bool IsSurveyWriter(HtmlWriter w)
{
    switch (w) {
    case HtmlWriter::SurveyText:
    case HtmlWriter::SurveyChoices:
    case HtmlWriter::ConditionDropdown:
    case HtmlWriter::ConditionChoices:
    case HtmlWriter::TableText:
    case HtmlWriter::TableChoices:
    case HtmlWriter::SurveyDropdown:
    case HtmlWriter::SurveyCheckboxes:
    case HtmlWriter::SurveyComments:
        return true;
    default:
        return false;
    }
}

bool IsFormWriter(HtmlWriter w)
{
    switch (w) {
    case HtmlWriter::FormText:
    case HtmlWriter::FormChoices:
    case HtmlWriter::FormTableChoices:
    case HtmlWriter::FormDropdown:
    case HtmlWriter::FormCheckboxes:
    case HtmlWriter::FormComments:
        return true;
    default:
        return false;
    }
}

} // namespace

TEST(InputTypes, EachCatalogueNameHasItsRowAndEachOfferedRowIsInTheCatalogue)
{
    for (Mode mode : {Mode::Form, Mode::Survey}) {
        const std::set<std::string> names = CatalogueNamesOf(mode);
        for (const std::string& name : names) {
            const InputType* row = FindInputType(name);
            ASSERT_NE(row, nullptr) << name;
            EXPECT_EQ(row->displayName, name);
            EXPECT_TRUE(OfferedIn(*row, mode)) << name;
        }
        // the pick list holds every type of the mode but SETUP and the Followups
        for (const InputType& row : InputTypes()) {
            const bool listed =
                OfferedIn(row, mode) && row.id != InputTypeId::Setup && row.pairing != Pairing::Followup;
            EXPECT_EQ(names.count(std::string(row.displayName)), listed ? 1u : 0u) << row.name;
        }
    }
    EXPECT_EQ(CatalogueNamesOf(Mode::Form).size(), 33u);
    EXPECT_EQ(CatalogueNamesOf(Mode::Survey).size(), 35u);
}

TEST(InputTypes, RowsAreFoundByAnyCaseOfTheirNameAndById)
{
    for (const InputType& row : InputTypes()) {
        EXPECT_EQ(row.name, ToUpper(row.displayName));
        EXPECT_EQ(FindInputType(row.displayName), &row);
        EXPECT_EQ(&InputTypeRow(row.id), &row);
        EXPECT_EQ(RecipeFor(row.name), row.recipe);
    }
    EXPECT_EQ(FindInputType("Question Yesno Required")->id, InputTypeId::QuestionYesNoRequired);
    EXPECT_EQ(FindInputType("Question"), nullptr);
    EXPECT_EQ(FindInputType("NAME "), nullptr); // whole names only
    EXPECT_THROW(InputTypeRow(InputTypeId::None), InternalError);
    // names outside the table are read as their family, or not at all
    EXPECT_EQ(RecipeFor("Title 3 Triple Line"), Recipe::Title);
    EXPECT_EQ(RecipeFor("QUESTIONNAIRE"), Recipe::Question);
    EXPECT_EQ(RecipeFor("Paragraph"), Recipe::None);
}

TEST(InputTypes, EveryRowHasAReaderAndAWriterOfEachModeOfItsOwnMode)
{
    for (const InputType& row : InputTypes()) {
        EXPECT_NE(row.recipe, Recipe::None) << row.name;
        if (row.id == InputTypeId::Setup) {
            EXPECT_EQ(row.form.writer, HtmlWriter::None);
            EXPECT_EQ(row.survey.writer, HtmlWriter::None);
            EXPECT_EQ(row.php, PhpWriter::None);
            continue;
        }
        EXPECT_NE(row.form.writer, HtmlWriter::None) << row.name;
        EXPECT_NE(row.survey.writer, HtmlWriter::None) << row.name;
        EXPECT_FALSE(IsSurveyWriter(row.form.writer)) << row.name;
        EXPECT_FALSE(IsFormWriter(row.survey.writer)) << row.name;
        // a question of either mode writes to the script; decorations don't
        EXPECT_EQ(IsFormWriter(row.form.writer) && row.recipe != Recipe::Title && row.recipe != Recipe::SurveyIntro,
                  row.php != PhpWriter::None)
            << row.name;
        // the horizontal line is read in the HTML pass only, by its own reader
        EXPECT_EQ(row.recipe == Recipe::HorizontalLine, row.form.writer == HtmlWriter::HorizontalLine) << row.name;
    }
}

TEST(InputTypes, PairsPointAtEachOtherAndNumberAsAPair)
{
    int leads = 0;
    for (const InputType& row : InputTypes()) {
        if (row.pairing == Pairing::None) {
            EXPECT_EQ(row.partner, InputTypeId::None) << row.name;
            EXPECT_EQ(row.numbering, Numbering::Own) << row.name;
            EXPECT_EQ(PairRows(row.name), 1) << row.name;
            EXPECT_TRUE(FollowupFor(row.name).empty()) << row.name;
            continue;
        }
        const InputType& partner = InputTypeRow(row.partner);
        EXPECT_EQ(partner.partner, row.id) << row.name;
        EXPECT_NE(partner.pairing, row.pairing) << row.name;
        EXPECT_EQ(row.modes, Modes::Both) << row.name;
        if (row.pairing == Pairing::Lead) {
            ++leads;
            EXPECT_EQ(row.numbering, Numbering::PairFirst) << row.name;
            EXPECT_EQ(PairRows(row.displayName), 2) << row.name;
            EXPECT_EQ(FollowupFor(row.displayName), partner.displayName);
        } else {
            EXPECT_EQ(row.numbering, Numbering::PairSecond) << row.name;
            EXPECT_TRUE(IsFollowupName(row.displayName)) << row.name;
        }
    }
    EXPECT_EQ(leads, kFollowupCount);
    for (std::string_view f : FollowupNames())
        EXPECT_EQ(FindInputType(f)->pairing, Pairing::Followup) << f;
}

TEST(InputTypes, ModeTextRoundTripsAndAnythingButSurveyIsAForm)
{
    for (Mode mode : {Mode::Form, Mode::Survey})
        EXPECT_EQ(ModeOf(ModeText(mode)), mode);
    EXPECT_EQ(ModeOf("survey"), Mode::Survey);
    EXPECT_EQ(ModeOf(""), Mode::Form);
    EXPECT_EQ(ModeOf("SURVEYS"), Mode::Form);
}

// The page writers tell families of types apart by id; a row added to the
// table with a family's name must be found in that family.
TEST(InputTypes, TheWritersFamiliesHoldExactlyTheRowsNamedLikeThem)
{
    const std::pair<const char*, bool (*)(const InputType&)> families[] = {
        {"TITLE", html::IsTitle},       {"CONDITION", html::IsCondition}, {"FOLLOWUP", html::IsFollowup},
        {"QUESTION", html::IsQuestion}, {"CHECKBOX", html::IsCheckbox},   {"COMMENTS", html::IsComments},
        {"DOWNLOAD", html::IsDownload}};
    for (const auto& [prefix, member] : families)
        for (const InputType& row : InputTypes())
            EXPECT_EQ(member(row), row.name.starts_with(prefix)) << prefix << " / " << row.name;
}
