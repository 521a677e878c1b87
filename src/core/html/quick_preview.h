// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace tq {
struct Session;
}

namespace tq::html {

/// The largest number of text lines the quick preview shows.
inline constexpr int kQuickPreviewLines = 50;

/// True when the attribute is a plain text with no place of its own on the
/// page (a default, an error message, the instructions, an address, a path…),
/// which the quick preview shows; compared upper-cased, a leading "[" ignored.
bool UsesQuickPreview(std::string_view attributeName);

/// Writes \Previewsingle.htm into the DataFolder on channel 1: the attribute's
/// name upper-cased and its text, cut at each "\n", in a green frame. Closes
/// the channels and clears entryPreview and wholePage. Returns the file's
/// path, which the caller shows. More than 50 lines throws model::InternalError.
std::string WriteQuickPreview(Session& s, std::string_view attributeName, std::string_view text);

} // namespace tq::html
