// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace tq::html {

/// The text in upper case (ASCII letters only; other bytes stay).
std::string UpperText(std::string_view text);
/// The text in lower case (ASCII letters only).
std::string LowerText(std::string_view text);
/// The text without leading and trailing blanks.
std::string TrimText(std::string_view text);
/// True when the upper-cased text begins with `prefix` (given in upper case).
bool BeginsWith(std::string_view text, std::string_view prefix);
/// True when the upper-cased text holds `part` (given in upper case).
bool HasText(std::string_view text, std::string_view part);
/// `text` between two double quotes.
std::string Quoted(std::string_view text);
/// `piece` repeated `times` times.
std::string Repeat(std::string_view piece, int times);

} // namespace tq::html
