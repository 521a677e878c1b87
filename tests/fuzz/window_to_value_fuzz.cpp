// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary edit-window text back to a value, for a key chosen by the first
// byte (plain keys and keys with the blank rewriting). A value never holds a
// line break, since it must stay one item; it can be shown in the window again.
#include "shell/edit_page.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

constexpr std::array<std::string_view, 8> kKeys = {"TITLE",         "DEFAULT VALUE", "PASSWORD", "EMAIL #1",
                                                   "ERROR MESSAGE", "INSTRUCTIONS",  "ALIGN",    "SERVER DOWNLOAD"};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0)
        return 0;
    const std::string_view key = kKeys[data[0] % kKeys.size()];
    const std::string text(reinterpret_cast<const char*>(data + 1), size - 1);
    const std::string value = tq::shell::WindowToValue(key, text);
    if (value.find_first_of("\r\n") != std::string::npos)
        std::abort(); // a line break would split the item
    (void)tq::shell::ValueToWindow(key, value);
    return 0;
}
