// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/attribute_text.h"
#include "model/catalogue.h"
#include "model/templates.h"
#include "model/text_ops.h"
#include "scripted_port.h"

#include <filesystem>
#include <gtest/gtest.h>

using namespace tq;
using namespace tq::model;

namespace {
// Digits 1,2,3,4,5,6,1,2,... : Password gets 12345612, Security Code 34561234.
std::function<double()> CountingDice()
{
    auto k = std::make_shared<int>(0);
    return [k] { return ((*k)++ % 6) / 6.0 + 0.01; };
}

std::string GoldenName(std::string_view name)
{
    std::string out;
    for (char c : name)
        out += c == ' ' ? '_' : static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return out;
}

std::string GoldenPath(std::string_view mode, std::string_view name)
{
    return std::string(TQ_GOLDEN_DIR) + "/templates/" + std::string(mode) + "/" + GoldenName(name) + ".txt";
}

// A fresh catalogue as Create Form / Create Survey builds it.
struct NewCatalogue
{
    Catalogue catalogue;
    TemplateSettings settings;
    StateRecord state;

    explicit NewCatalogue(std::string mode)
    {
        state.ProjectMode = std::move(mode);
        state.NewProjectPending = true;
        catalogue.Random = CountingDice();
        BuildCatalogue(catalogue, settings, state);
    }
};

void ExpectStoredFormMatchesGolden(const std::string& mode, std::string_view name, const std::string& oneLine)
{
    SCOPED_TRACE(mode + " / " + std::string(name));
    test::ScriptedPort port;
    const std::string stored = NormalizeAttributeText(port, oneLine);
    EXPECT_TRUE(port.shown.empty()) << port.shown.front().text;
    const std::string path = GoldenPath(mode, name);
    ASSERT_TRUE(std::filesystem::exists(path)) << path;
    EXPECT_EQ(stored, test::ReadFileBytes(path));
}
} // namespace

class TemplateGolden : public ::testing::TestWithParam<const char*>
{
};

TEST_P(TemplateGolden, EveryTemplateOfTheModeStoresAsItsGoldenFile)
{
    const std::string mode = GetParam();
    NewCatalogue b(ToUpper(mode));
    for (int i = 0; i <= b.catalogue.CatalogueCount; ++i)
        ExpectStoredFormMatchesGolden(mode, CatalogueName(b.catalogue, i), CatalogueTemplate(b.catalogue, i));
    for (std::string_view f : FollowupNames())
        ExpectStoredFormMatchesGolden(mode, f, FollowupTemplate(b.catalogue, f, mode));
    ExpectStoredFormMatchesGolden(mode, "Setup", b.catalogue.SetupTemplate);
    // one golden per template, and no stray golden files
    int files = 0;
    for (const auto& e : std::filesystem::directory_iterator(std::string(TQ_GOLDEN_DIR) + "/templates/" + mode))
        files += e.path().extension() == ".txt" ? 1 : 0;
    EXPECT_EQ(files, b.catalogue.CatalogueCount + 1 + kFollowupCount + 1);
}

INSTANTIATE_TEST_SUITE_P(Modes, TemplateGolden, ::testing::Values("form", "survey"));

TEST(Templates, LiteralOdditiesStayAsWritten)
{
    // a leading blank and double blanks between items, which the stored form no longer shows
    NewCatalogue form("FORM");
    NewCatalogue survey("SURVEY");
    EXPECT_EQ(FollowupTemplate(form.catalogue, "Followup With Multiple Choices", "FORM").substr(0, 8), " [Title=");
    EXPECT_EQ(FollowupTemplate(survey.catalogue, "Followup With Multiple Choices", "SURVEY").substr(0, 7), "[Title=");
    EXPECT_NE(FollowupTemplate(survey.catalogue, "Followup With Comment", "SURVEY")
                  .find("[Info: Enter Font Size]  [Align=center]"),
              std::string::npos);
    // The leading blank of the FORM Followup With Multiple Choices is skipped.
    test::ScriptedPort port;
    std::string text = FollowupTemplate(form.catalogue, "Followup With Multiple Choices", "FORM");
    std::string value;
    int err = 0;
    TakeAttribute(port, "[TITLE", value, text, err);
    EXPECT_EQ(err, 0);
    EXPECT_EQ(value, "How Many guests in your party?");
}

TEST(Templates, FillTemplateRefusesUnknownMarks)
{
    TemplateFields f;
    f.TextColor = "0";
    EXPECT_EQ(FillTemplate("[Text Color={TextColor}]", f), "[Text Color=0]");
    EXPECT_THROW(FillTemplate("[X={Nope}]", f), InternalError);
    EXPECT_THROW(FillTemplate("[X={TextColor]", f), InternalError);
}
