// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/catalogue.h"
#include "model/entry_store.h"
#include "model/settings.h"
#include "show/show_settings.h"
#include "store/run_values.h"
#include "store/setup_store.h"
#include "write/build_state.h"

#include <string>

namespace tq {

/// Everything one run of the program keeps. The GUI, the CLI or a test owns
/// one; procedures take the records they work on by reference.
struct Session
{
    model::EntryStore store;
    model::TemplateSettings settings;
    model::Catalogue catalogue;
    write::BuildState build;
    store::SetupStore setup;
    store::RunValues run;
    std::string DataFolder;
    show::ShowPage photoShow;
};

} // namespace tq
