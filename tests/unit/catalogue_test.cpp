// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/attribute_text.h"
#include "model/catalogue.h"
#include "model/text_ops.h"

#include <gtest/gtest.h>
#include <set>

using namespace tq;
using namespace tq::model;

namespace {
struct Built
{
    Catalogue catalogue;
    TemplateSettings settings;
    StateRecord state;

    explicit Built(std::string mode)
    {
        state.ProjectMode = std::move(mode);
        BuildCatalogue(catalogue, settings, state);
    }
};

std::vector<std::string> Names(const Catalogue& c)
{
    return {c.CatalogueNames.begin(), c.CatalogueNames.begin() + c.CatalogueCount + 1};
}

std::string ValueOf(const std::string& text, const std::string& key)
{
    const size_t at = text.find(key);
    if (at == std::string::npos)
        return "<missing>";
    const size_t end = text.find(']', at);
    return text.substr(at + key.size(), end - at - key.size());
}
} // namespace

TEST(Catalogue, IndexesFollowTheModeAndStayInsideTheList)
{
    Built form("FORM");
    Built survey("SURVEY");
    EXPECT_EQ(CatalogueName(form.catalogue, 17), "Name");
    EXPECT_EQ(CatalogueName(survey.catalogue, 17), "Password");
    EXPECT_EQ(FindCatalogueIndex(form.catalogue, "name"), 17);
    EXPECT_EQ(FindCatalogueIndex(survey.catalogue, "NAME"), 16);
    EXPECT_THROW(CatalogueName(form.catalogue, 33), InternalError);
    EXPECT_THROW(CatalogueTemplate(form.catalogue, -1), InternalError);
    EXPECT_NO_THROW(CatalogueTemplate(form.catalogue, 32));
    Built none(""); // an empty mode is read as FORM
    EXPECT_EQ(none.state.ProjectMode, "FORM");
    EXPECT_EQ(none.catalogue.CatalogueCount, 32);
}

TEST(Catalogue, SetupAndFollowupsStandInNoList)
{
    for (const char* mode : {"FORM", "SURVEY"}) {
        Built b(mode);
        FillPickLists(b.catalogue, b.settings, b.state);
        for (const std::vector<std::string>& list : b.catalogue.PickLists) {
            EXPECT_EQ(list, Names(b.catalogue));
            for (const std::string& n : list) {
                EXPECT_NE(ToUpper(n), "SETUP");
                EXPECT_FALSE(IsFollowupName(n)) << n;
            }
        }
    }
}

TEST(Catalogue, TextColourFollowsTheFrameAndEmptyPathsTakeTheirDefaults)
{
    Built framed("FORM");
    EXPECT_EQ(ValueOf(CatalogueTemplate(framed.catalogue, 17), "[Text Color="), "16777215");
    EXPECT_EQ(ValueOf(framed.catalogue.SetupTemplate, "[Include Frame With Form="), "YES");
    Built unframed("FORM");
    unframed.settings.FrameOff = 1;
    BuildCatalogue(unframed.catalogue, unframed.settings, unframed.state);
    EXPECT_EQ(ValueOf(CatalogueTemplate(unframed.catalogue, 17), "[Text Color="), "0");
    EXPECT_EQ(ValueOf(unframed.catalogue.SetupTemplate, "[Include Frame With Form="), "NO");
    Built survey("SURVEY");
    EXPECT_EQ(survey.settings.TextColor, "0");
    EXPECT_EQ(survey.settings.FrameOff, 1);
    EXPECT_EQ(ValueOf(survey.catalogue.SetupTemplate, "[Include Frame With Form="), "NO");
    // empty or "none" paths and e-mails return to their defaults
    Built b("FORM");
    b.settings.BackgroundImagePath = "none";
    b.settings.ServerFolderPath = "";
    b.settings.VideoPath = "https://my.site/v.mp4";
    b.settings.Email2 = "";
    b.settings.Email3 = "";
    BuildCatalogue(b.catalogue, b.settings, b.state);
    EXPECT_EQ(b.settings.BackgroundImagePath, ";https://www.tarnquill.example/test/cloudark.gif");
    EXPECT_EQ(b.settings.ServerFolderPath, ";https://www.tarnquill.example/test");
    EXPECT_EQ(b.settings.VideoPath, "https://my.site/v.mp4");
    EXPECT_EQ(b.settings.Email2, "NONE");
    EXPECT_EQ(ValueOf(b.catalogue.SetupTemplate, "[Email #3="), "NONE");
    EXPECT_EQ(ValueOf(CatalogueTemplate(b.catalogue, FindCatalogueIndex(b.catalogue, "Video")), "[Server Video Path="),
              "https://my.site/v.mp4");
}

TEST(Catalogue, SwitchesFollowTheFlagsAndANewProjectResetsTheSettingsFirst)
{
    Built b("FORM");
    b.settings.NumberEachQuestion = 0;
    b.settings.ShowToolTips = 0;
    BuildCatalogue(b.catalogue, b.settings, b.state);
    EXPECT_EQ(ValueOf(b.catalogue.SetupTemplate, "[Number Each Question="), "NO");
    EXPECT_EQ(ValueOf(b.catalogue.SetupTemplate, "[Show Tool Tips="), "NO");
    EntryStore store;
    store.MaxEntries = 0;
    InitCatalogueAtStartup(store, b.settings, b.catalogue);
    EXPECT_EQ(store.MaxEntries, 100);
    EXPECT_EQ(ValueOf(b.catalogue.SetupTemplate, "[Number Each Question="), "YES");
    EXPECT_EQ(ValueOf(b.catalogue.SetupTemplate, "[Show Tool Tips="), "YES");
    // a pending new project resets the settings first
    Built pending("SURVEY");
    pending.settings.FromName = "Mine";
    pending.settings.SubmitNameDefault = "Go";
    pending.state.NewProjectPending = true;
    BuildCatalogue(pending.catalogue, pending.settings, pending.state);
    EXPECT_EQ(pending.settings.FromName, ";My Web Page");
    EXPECT_EQ(ValueOf(pending.catalogue.SetupTemplate, "[Submit Name="), "Submit Form");
    EXPECT_EQ(ValueOf(pending.catalogue.SetupTemplate, "[SUBMIT ALIGN="), "CENTER");
    pending.state.NewProjectPending = false;
    pending.settings.FromName = "Mine";
    BuildCatalogue(pending.catalogue, pending.settings, pending.state);
    EXPECT_EQ(ValueOf(pending.catalogue.SetupTemplate, "[FROM="), "Mine");
}

TEST(Catalogue, RandomCodeIsEightDiceDrawnAfreshForEachTemplateAndBuild)
{
    Built b("FORM");
    const int pw = FindCatalogueIndex(b.catalogue, "Password");
    const int sc = FindCatalogueIndex(b.catalogue, "Security Code");
    std::set<std::string> codes;
    for (int i = 0; i < 5; ++i) {
        BuildCatalogue(b.catalogue, b.settings, b.state);
        const std::string password = ValueOf(CatalogueTemplate(b.catalogue, pw), "[Password=");
        const std::string security = ValueOf(CatalogueTemplate(b.catalogue, sc), "[Password=");
        for (const std::string& code : {password, security}) {
            ASSERT_EQ(code.size(), 8u);
            EXPECT_EQ(code.find_first_not_of("123456"), std::string::npos) << code;
        }
        // the Security Code names its own code in its title
        EXPECT_EQ(ValueOf(CatalogueTemplate(b.catalogue, sc), "[Title=For added security, please enter "),
                  security + " for the security code");
        codes.insert(password);
        codes.insert(security);
    }
    // 10 codes of 6^8 each: a repeat would mean the draws are not fresh
    EXPECT_EQ(codes.size(), 10u);
}
