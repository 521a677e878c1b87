// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/catalogue.h"

#include <gtest/gtest.h>
#include <set>

using namespace tq;
using namespace tq::model;

TEST(Catalogue, RandomCodesAreEightDiceDrawnAfreshForEachTemplateAndBuild)
{
    Catalogue catalogue;
    TemplateSettings settings;
    StateRecord state;
    state.ProjectMode = tq::model::Mode::Form;
    const auto code = [&](std::string_view type) {
        const std::string text = CatalogueTemplate(catalogue, FindCatalogueIndex(catalogue, type));
        const size_t at = text.find("[Password=") + 10;
        return text.substr(at, text.find(']', at) - at);
    };
    std::set<std::string> codes;
    for (int i = 0; i < 5; ++i) {
        BuildCatalogue(catalogue, settings, state);
        for (const std::string& c : {code("Password"), code("Security Code")}) {
            ASSERT_EQ(c.size(), 8u);
            EXPECT_EQ(c.find_first_not_of("123456"), std::string::npos) << c;
            codes.insert(c);
        }
    }
    EXPECT_EQ(codes.size(), 10u); // 10 codes of 6^8 each: a repeat means the draws are not fresh
}
