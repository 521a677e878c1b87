// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/catalogue.h"
#include "project_text.h"
#include "scripted_port.h"
#include "session.h"
#include "shell/preview.h"
#include "store/project_file.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <memory>

using namespace tq;
using tq::test::Group;

TEST(ShadeWidthForAll, AsksUntilTheValueIsGoodAndLeavesTheTitleShadeWidth)
{
    auto s = std::make_unique<Session>();
    s->store.pages[0][1] = {"Name",
                            Group("[Title=x]", "[Info: d]") + Group("[Shade Width=40%]", "[Choices=1]") +
                                Group("[Title Shade Width=10%]", "[Choices=1]"),
                            "", true};
    test::ScriptedPort port;
    for (const char* answer : {"0", "abc", "75"})
        port.input(std::string(answer));
    EXPECT_EQ(shell::SetShadeWidthAll(*s, port), 1);
    ASSERT_EQ(port.messages().size(), 2u);
    EXPECT_TRUE(Said(port.messages()[0], "Value must be from 1 to 100", "ERROR"));
    EXPECT_TRUE(Said(port.shown[0], "Enter from 1 to 100\r\rValue is in %", "SHADE WIDTH"));
    const std::string& text = s->store.pages[0][1].AttributeText;
    EXPECT_NE(text.find("[Shade Width=75]\r\n"), std::string::npos) << text;
    EXPECT_NE(text.find("[Title Shade Width=10%]"), std::string::npos);
    port.input(std::nullopt);
    EXPECT_EQ(shell::SetShadeWidthAll(*s, port), -1);
}

namespace {

// A form with its Setup Entry and the catalogue of a fresh start.
std::unique_ptr<Session> FormForPreview(const test::TempDir& web, const std::string& dataFolder)
{
    auto s = std::make_unique<Session>();
    s->DataFolder = dataFolder;
    model::InitCatalogueAtStartup(s->store, s->settings, s->catalogue);
    s->store.state.ProjectMode = model::Mode::Form;
    s->store.pages[0][0].InputTypeName = "Setup";
    s->store.pages[0][0].AttributeText = test::SetupEntryText(web.path(), {});
    return s;
}

} // namespace

TEST(QuickPreviewOfAPick, APickedTypeIsBuiltAloneIntoTheDataFolderAndNoRowChanges)
{
    test::TempDir web;
    test::TempDir data;
    auto s = FormForPreview(web, data.path());
    const std::string rowsBefore = store::WriteEntries(s->store);
    test::ScriptedPort port;
    const int pick = model::FindCatalogueIndex(s->catalogue, "Blank Line");
    ASSERT_GE(pick, 0);

    const auto preview = shell::QuickPreview(*s, port, 1, pick);
    EXPECT_EQ(preview.pane, shell::PreviewPane::Shown);
    EXPECT_EQ(preview.page, data.file("Preview.htm"));
    EXPECT_EQ(test::ReadFileBytes(preview.page).rfind("<html>\r\n<body>\r\n", 0), 0u);
    EXPECT_EQ(store::WriteEntries(s->store), rowsBefore);
    EXPECT_EQ(s->store.state.PreviewSlots[0].InputTypeName, s->catalogue.CatalogueNames[static_cast<size_t>(pick)]);
    EXPECT_FALSE(s->store.state.QuickPreviewActive);
    EXPECT_FALSE(s->build.entryPreview);
    EXPECT_FALSE(s->build.wholePage);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(web.path()), {}), 0);
    EXPECT_TRUE(port.shown.empty());
}

TEST(QuickPreviewOfAPick, NoPickLeavesThePaneAndAFailedBuildHidesItWithTheFlagsClear)
{
    test::TempDir web;
    test::TempDir data;
    auto s = FormForPreview(web, data.path());
    test::ScriptedPort port;
    s->build.buildError = 5;
    EXPECT_EQ(shell::QuickPreview(*s, port, 1, -1).pane, shell::PreviewPane::AsItWas);
    EXPECT_EQ(s->build.buildError, 0);
    EXPECT_FALSE(std::filesystem::exists(data.file("Preview.htm")));

    // the preview page cannot be written into a data folder that is gone
    s->DataFolder = data.file("gone");
    const auto preview = shell::QuickPreview(*s, port, 1, model::FindCatalogueIndex(s->catalogue, "Blank Line"));
    EXPECT_EQ(preview.pane, shell::PreviewPane::Hidden);
    EXPECT_TRUE(preview.page.empty());
    EXPECT_EQ(s->build.buildError, 0);
    EXPECT_FALSE(s->store.state.QuickPreviewActive);
}
