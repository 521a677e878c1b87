// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/entry_store.h"
#include "model/settings.h"

#include <array>
#include <functional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace tq::model {

constexpr int kCatalogueSlots = 101;
constexpr int kFollowupCount = 4;

/// The Input Type catalogue of the active mode: names and default texts in
/// pick-list order, the Followups of both modes, the SETUP text, and the
/// pick lists the four Pages show. Rebuilt from code on every use.
struct Catalogue
{
    std::array<std::string, kCatalogueSlots> CatalogueNames;
    std::array<std::string, kCatalogueSlots> CatalogueTemplates; // one-line texts
    int CatalogueCount = -1;                                     // index of the last used slot

    std::array<std::string, kFollowupCount> FormFollowupTemplates;   // in FollowupNames() order
    std::array<std::string, kFollowupCount> SurveyFollowupTemplates; // in FollowupNames() order
    std::string SetupTemplate;

    /// The names each Page's pick list shows, and the catalogue index of each.
    std::array<std::vector<std::string>, kPageCount> PickLists;
    /// The selected pick-list item, the same on every Page; -1 when none.
    int PickListIndex = 0;

    /// The random source of RandomCode, giving values in [0, 1). Tests set
    /// it; when empty the catalogue draws from its own engine.
    std::function<double()> Random;
    std::mt19937 engine{std::random_device{}()};
};

/// The four Followup names, in the order of the Followup template arrays.
const std::array<std::string_view, kFollowupCount>& FollowupNames();

/// The Followup that stands behind `partner` (compared upper-cased):
/// Condition With Comment, Condition With Dropdown, Condition With Multiple
/// Choices, Download Files With Password. Empty for any other name.
std::string_view FollowupFor(std::string_view partner);

/// True for one of the four Followup names (upper-cased comparison).
bool IsFollowupName(std::string_view name);

/// 2 for the four partners of a Followup, else 1.
int PairRows(std::string_view name);

/// Eight digits 1 to 6, each Int(6 * random + 1), from the catalogue's source.
std::string DrawRandomCode(Catalogue& catalogue);

/// Fills names, one-line templates, the eight Followups and the SETUP text
/// for `state.ProjectMode` with the build flag `frameOff`. Under
/// NewProjectPending the settings go back to their defaults first. An empty
/// mode becomes FORM; empty second and third e-mails become "NONE"; empty or
/// "NONE" sample paths return to their samples; TextColor is worked out anew;
/// in SURVEY the flag FrameOff ends as 1. A fresh RandomCode is drawn for
/// Password and for Security Code.
void BuildTemplates(Catalogue& catalogue, TemplateSettings& settings, StateRecord& state, int frameOff);

/// BuildTemplates with the flag of the mode: 0 in SURVEY, else FrameOff.
void BuildCatalogue(Catalogue& catalogue, TemplateSettings& settings, StateRecord& state);

/// Rebuilds the catalogue and refills the four pick lists with its non-empty
/// names in index order.
void FillPickLists(Catalogue& catalogue, TemplateSettings& settings, StateRecord& state);

/// Start-up: MaxEntries 100, tool tips and numbering on, then BuildCatalogue.
void InitCatalogueAtStartup(EntryStore& store, TemplateSettings& settings, Catalogue& catalogue);

/// The catalogue index of `name` (upper-cased comparison), or -1.
int FindCatalogueIndex(const Catalogue& catalogue, std::string_view name);

/// The name at `index`; an index outside 0..CatalogueCount throws InternalError.
const std::string& CatalogueName(const Catalogue& catalogue, int index);

/// The one-line template at `index`; bounds as CatalogueName.
const std::string& CatalogueTemplate(const Catalogue& catalogue, int index);

/// The one-line template of a Followup for a mode (FORM or SURVEY, any case);
/// empty for a name that is no Followup.
const std::string& FollowupTemplate(const Catalogue& catalogue, std::string_view followup, Mode mode);

/// The default one-line text of any name of the mode: a pick-list type, a
/// Followup of the active mode, or "Setup". Empty for an unknown name.
std::string DefaultTemplateFor(const Catalogue& catalogue, std::string_view name, Mode mode);

} // namespace tq::model
