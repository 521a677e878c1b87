// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/catalogue.h"

#include "model/attribute_text.h"
#include "model/input_types.h"
#include "model/templates.h"
#include "model/text_ops.h"
#include "port/platform.h"

namespace tq::model {

namespace {
constexpr std::array<std::string_view, kFollowupCount> kFollowupNames = {
    "Followup Files With Password",
    "Followup With Comment",
    "Followup With Multiple Choices",
    "Followup With Dropdown",
};

std::string YesNo(int flag)
{
    return flag == 1 ? "YES" : "NO";
}

TemplateFields FieldsOf(const TemplateSettings& s)
{
    TemplateFields f;
    f.TextColor = s.TextColor;
    f.SampleSite = std::string(platform::kSampleSite);
    f.BackgroundImagePath = s.BackgroundImagePath;
    f.ServerFolderPath = s.ServerFolderPath;
    f.ThankYouUrl = s.ThankYouUrl;
    f.VideoPath = s.VideoPath;
    f.HomePagePath = s.HomePagePath;
    f.DriveFolderPath = s.DriveFolderPath;
    f.FromName = s.FromName;
    f.CompletedPage = s.CompletedPage;
    f.GlobalAlign = s.GlobalAlign;
    f.SubmitName = s.SubmitNameDefault;
    f.SubmitAlign = s.SubmitAlignDefault;
    f.SubmitButtonColor = s.SubmitButtonColor;
    f.Email1 = s.Email1;
    f.Email2 = s.Email2;
    f.Email3 = s.Email3;
    f.FrameBorderColor = s.FrameBorderColor;
    f.FrameColor = s.FrameColor;
    f.BackgroundColor = s.BackgroundColor;
    f.NumberEachQuestion = YesNo(s.NumberEachQuestion);
    f.ShowToolTips = YesNo(s.ShowToolTips);
    return f;
}

void CheckIndex(const Catalogue& catalogue, int index)
{
    if (index < 0 || index > catalogue.CatalogueCount || index >= kCatalogueSlots)
        throw InternalError("internal error: catalogue index " + std::to_string(index) + " out of range");
}
} // namespace

const std::array<std::string_view, kFollowupCount>& FollowupNames()
{
    return kFollowupNames;
}

std::string_view FollowupFor(std::string_view partner)
{
    const InputType* row = FindInputType(partner);
    if (!row || row->pairing != Pairing::Lead)
        return {};
    return InputTypeRow(row->partner).displayName;
}

bool IsFollowupName(std::string_view name)
{
    const InputType* row = FindInputType(name);
    return row && row->pairing == Pairing::Followup;
}

int PairRows(std::string_view name)
{
    return FollowupFor(name).empty() ? 1 : 2;
}

std::string DrawRandomCode(Catalogue& catalogue)
{
    std::string code;
    for (int i = 0; i < 8; ++i) {
        double r = 0;
        if (catalogue.Random)
            r = catalogue.Random();
        else
            r = std::uniform_real_distribution<double>(0.0, 1.0)(catalogue.engine);
        int digit = static_cast<int>(6 * r + 1);
        // A source at its upper edge must still give a die face.
        if (digit < 1)
            digit = 1;
        if (digit > 6)
            digit = 6;
        code += static_cast<char>('0' + digit);
    }
    return code;
}

void BuildTemplates(Catalogue& catalogue, TemplateSettings& settings, StateRecord& state, int frameOff)
{
    if (state.NewProjectPending)
        ResetDefaults(settings, state.ProjectMode);
    if (settings.Email2.empty())
        settings.Email2 = "NONE";
    if (settings.Email3.empty())
        settings.Email3 = "NONE";
    RestoreEmptyPaths(settings);

    const bool survey = state.ProjectMode == Mode::Survey;
    if (survey)
        frameOff = 1; // the survey is never framed
    settings.TextColor = (survey || frameOff == 1) ? "0" : "16777215";

    TemplateFields fields = FieldsOf(settings);
    fields.IncludeFrame = frameOff == 1 ? "NO" : "YES";

    const std::span<const TemplateSource> sources = survey ? SurveyTemplateSources() : FormTemplateSources();
    if (static_cast<int>(sources.size()) > kCatalogueSlots)
        throw InternalError("internal error: catalogue bound passed");
    for (std::string& n : catalogue.CatalogueNames)
        n.clear();
    for (std::string& t : catalogue.CatalogueTemplates)
        t.clear();
    int index = 0;
    for (const TemplateSource& src : sources) {
        // Password and Security Code each draw their own code on every build.
        fields.RandomCode = UsesRandomCode(src.text) ? DrawRandomCode(catalogue) : std::string();
        catalogue.CatalogueNames[static_cast<size_t>(index)] = std::string(src.name);
        catalogue.CatalogueTemplates[static_cast<size_t>(index)] = FillTemplate(src.text, fields);
        ++index;
    }
    catalogue.CatalogueCount = index - 1;

    fields.RandomCode.clear();
    for (int i = 0; i < kFollowupCount; ++i) {
        const auto idx = static_cast<size_t>(i);
        catalogue.FormFollowupTemplates[idx] = FillTemplate(FollowupTemplateSources(false)[idx].text, fields);
        catalogue.SurveyFollowupTemplates[idx] = FillTemplate(FollowupTemplateSources(true)[idx].text, fields);
    }
    catalogue.SetupTemplate = FillTemplate(SetupTemplateSource(survey).text, fields);

    if (survey)
        settings.FrameOff = 1;
}

void BuildCatalogue(Catalogue& catalogue, TemplateSettings& settings, StateRecord& state)
{
    const int flag = state.ProjectMode == Mode::Survey ? 0 : settings.FrameOff;
    BuildTemplates(catalogue, settings, state, flag);
}

void FillPickLists(Catalogue& catalogue, TemplateSettings& settings, StateRecord& state)
{
    BuildCatalogue(catalogue, settings, state);
    for (std::vector<std::string>& list : catalogue.PickLists) {
        list.clear();
        for (int i = 0; i <= catalogue.CatalogueCount; ++i)
            if (!catalogue.CatalogueNames[static_cast<size_t>(i)].empty())
                list.push_back(catalogue.CatalogueNames[static_cast<size_t>(i)]);
    }
}

void InitCatalogueAtStartup(EntryStore& store, TemplateSettings& settings, Catalogue& catalogue)
{
    store.MaxEntries = kMaxEntries;
    settings.ShowToolTips = 1;
    settings.NumberEachQuestion = 1;
    BuildCatalogue(catalogue, settings, store.state);
}

int FindCatalogueIndex(const Catalogue& catalogue, std::string_view name)
{
    const std::string upper = ToUpper(name);
    for (int i = 0; i <= catalogue.CatalogueCount && i < kCatalogueSlots; ++i)
        if (ToUpper(catalogue.CatalogueNames[static_cast<size_t>(i)]) == upper)
            return i;
    return -1;
}

const std::string& CatalogueName(const Catalogue& catalogue, int index)
{
    CheckIndex(catalogue, index);
    return catalogue.CatalogueNames[static_cast<size_t>(index)];
}

const std::string& CatalogueTemplate(const Catalogue& catalogue, int index)
{
    CheckIndex(catalogue, index);
    return catalogue.CatalogueTemplates[static_cast<size_t>(index)];
}

const std::string& FollowupTemplate(const Catalogue& catalogue, std::string_view followup, Mode mode)
{
    static const std::string kNone;
    const std::string upper = ToUpper(followup);
    for (size_t i = 0; i < kFollowupNames.size(); ++i)
        if (upper == ToUpper(kFollowupNames[i]))
            return mode == Mode::Survey ? catalogue.SurveyFollowupTemplates[i] : catalogue.FormFollowupTemplates[i];
    return kNone;
}

std::string DefaultTemplateFor(const Catalogue& catalogue, std::string_view name, Mode mode)
{
    if (ToUpper(name) == "SETUP")
        return catalogue.SetupTemplate;
    const int index = FindCatalogueIndex(catalogue, name);
    if (index >= 0)
        return catalogue.CatalogueTemplates[static_cast<size_t>(index)];
    return FollowupTemplate(catalogue, name, mode);
}

} // namespace tq::model
