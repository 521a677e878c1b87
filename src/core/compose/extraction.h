// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"

#include <string>
#include <string_view>

namespace tq {
struct Session;
}

namespace tq::compose {

/// Reads the attributes that `inputType` needs from the front of `text` (a
/// working copy; it is consumed) into the build's working values, in the
/// order of the type's row, each key followed by its help item where the row
/// asks for one. SETUP reads the SetupEntry (setup_checks.h) and applies no
/// global overrides; every other type gets ApplyGlobals at the end.
/// On a fault the message has been shown and `buildError` is 1; a type that
/// fits no row sets `buildError` to 5 without a word (the caller reports it).
/// A list past the bound of its array throws model::InternalError.
void ExtractEntry(Session& s, UiPort& ui, std::string_view inputType, std::string& text);

/// A HORIZONTAL LINE's own short extraction: [LINE WIDTH, [LINE SIZE, [ALIGN
/// and [LINE COLOR, each followed by its help item, then the colour copy and
/// ApplyGlobals. Fills LineWidth, LineSize, LineAlign, LineColor(Hex).
void ExtractHorizontalLine(Session& s, UiPort& ui, std::string& text);

/// Takes the help item that closes a key: whichever of "[Info" or "[Choices"
/// stands at the front of `text`. Anything else is read with `expected`
/// ("[INFO:" or "[CHOICES"), which gives the reader's fault message.
/// Returns false and sets `buildError` to 1 on a fault.
bool TakeEndMark(Session& s, UiPort& ui, std::string& text, std::string_view expected);

/// Reads one key into `value`; false (and `buildError` 1) on a fault.
bool TakeKey(Session& s, UiPort& ui, std::string& text, std::string_view key, std::string& value);

} // namespace tq::compose
