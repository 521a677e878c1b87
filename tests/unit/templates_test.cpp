// SPDX-License-Identifier: GPL-3.0-or-later
// Every template, as a new project builds it, stores as its reviewed file.
#include "model/attribute_text.h"
#include "model/catalogue.h"
#include "model/templates.h"
#include "model/text_ops.h"
#include "scripted_port.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <memory>

using namespace tq;
using namespace tq::model;

TEST(Templates, EveryTemplateOfBothModesStoresAsItsGoldenFile)
{
    for (const std::string mode : {"form", "survey"}) {
        Catalogue catalogue;
        TemplateSettings settings;
        StateRecord state;
        state.ProjectMode = ModeOf(mode);
        state.NewProjectPending = true;
        // digits 1,2,3,4,5,6,1,...: Password gets 12345612, Security Code 34561234
        auto k = std::make_shared<int>(0);
        catalogue.Random = [k] { return ((*k)++ % 6) / 6.0 + 0.01; };
        BuildCatalogue(catalogue, settings, state);
        std::vector<std::pair<std::string, std::string>> all{{"Setup", catalogue.SetupTemplate}};
        for (int i = 0; i <= catalogue.CatalogueCount; ++i)
            all.emplace_back(CatalogueName(catalogue, i), CatalogueTemplate(catalogue, i));
        for (std::string_view f : FollowupNames())
            all.emplace_back(f, FollowupTemplate(catalogue, f, ModeOf(mode)));
        const std::string folder = std::string(TQ_GOLDEN_DIR) + "/templates/" + mode + "/";
        for (auto& [name, oneLine] : all) {
            SCOPED_TRACE(mode + " / " + name);
            test::ScriptedPort port;
            const std::string stored = NormalizeAttributeText(port, oneLine);
            EXPECT_TRUE(port.shown.empty());
            for (char& c : name)
                c = c == ' ' ? '_' : static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
            ASSERT_TRUE(std::filesystem::exists(folder + name + ".txt"));
            EXPECT_EQ(stored, test::ReadFileBytes(folder + name + ".txt"));
        }
        // one file per template, and no stray files
        size_t files = 0;
        for (const auto& e : std::filesystem::directory_iterator(folder))
            files += e.path().extension() == ".txt" ? 1 : 0;
        EXPECT_EQ(files, all.size());
    }
}
