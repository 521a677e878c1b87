// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/catalogue.h"
#include "model/editing.h"
#include "model/entry_store.h"
#include "model/settings.h"
#include "scripted_port.h"

#include <memory>
#include <string>
#include <vector>

namespace tq::test {

/// One session's editing records with a scripted port and a fixed dice.
struct EditFixture
{
    model::EntryStore store;
    model::TemplateSettings settings;
    model::Catalogue catalogue;
    ScriptedPort port;
    model::EditContext ctx{store, settings, catalogue, port};

    explicit EditFixture(std::string mode = "FORM")
    {
        store.state.ProjectMode = model::ModeOf(mode);
        auto k = std::make_shared<int>(0);
        catalogue.Random = [k] { return ((*k)++ % 6) / 6.0 + 0.01; };
        model::FillPickLists(catalogue, settings, store.state);
    }

    model::Entry& at(int page, int row) { return model::GetEntry(store, page, row); }
    const std::string& name(int page, int row) { return at(page, row).InputTypeName; }
    /// The names of rows `first`..`last` of a Page.
    std::vector<std::string> names(int page, int first, int last)
    {
        std::vector<std::string> out;
        for (int r = first; r <= last; ++r)
            out.push_back(name(page, r));
        return out;
    }
    int index(std::string_view typeName) const { return model::FindCatalogueIndex(catalogue, typeName); }
    /// Fills rows first..last of a Page with `typeName` and a short text.
    void fill(int page, int first, int last, const std::string& typeName = "Name")
    {
        for (int r = first; r <= last; ++r) {
            at(page, r).InputTypeName = typeName;
            at(page, r).AttributeText = "[Title=" + typeName + "]\r\n";
        }
    }
};

} // namespace tq::test
