// SPDX-License-Identifier: GPL-3.0-or-later
// Reads arbitrary bytes as a recovery copy. Whatever is taken for a copy must
// be written back byte for byte: nothing is guessed, nothing is lost.
#include "session.h"
#include "store/recovery.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    auto copy = tq::store::ReadRecoveryText(text);
    if (!copy)
        return 0;
    tq::Session s;
    s.store.state.ProjectMode = copy->mode;
    s.store.state.CurrentFileName = copy->fileName;
    s.store.pages = copy->pages;
    if (tq::store::RecoveryText(s) != text)
        std::abort();
    return 0;
}
