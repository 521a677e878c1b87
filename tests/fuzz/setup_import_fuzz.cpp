// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary bytes as "\setup.imp": the reader, the menus, and a write back
// that must read back to the same fields.
#include "store/setup_store.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    std::string bytes(reinterpret_cast<const char*>(data), size);
    tq::store::SetupStore setup;
    static_cast<void>(tq::store::ReadSetupFields(setup, bytes));
    tq::store::ApplySetupMenus(setup);
    const std::string written = tq::store::SaveSetupFields(setup);
    tq::store::SetupStore back;
    if (!tq::store::ReadSetupFields(back, written))
        std::abort();
    // a value read once has no leading blank and no line end, so it must
    // come back exactly
    for (size_t n = 0; n < setup.rows.size(); ++n) {
        const auto& a = setup.rows[n];
        const auto& b = back.rows[n];
        if (a.MenuName != b.MenuName || a.WebServerPath != b.WebServerPath || a.WebFolderPath != b.WebFolderPath ||
            a.EmailAddress != b.EmailAddress)
            std::abort();
    }
    if (setup.FTPProgramPath != back.FTPProgramPath || setup.WebEditorPath != back.WebEditorPath ||
        setup.BrowserPath != back.BrowserPath)
        std::abort();
    return 0;
}
