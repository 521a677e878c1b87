// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/text_ops.h"

#include <string>
#include <string_view>

namespace tq::html {

using model::Quoted;
/// `piece` repeated `times` times.
std::string Repeat(std::string_view piece, int times);
/// A switch value of the attributes: "ON" in any case.
bool IsOn(std::string_view value);
/// The opening paragraph tag with its alignment.
std::string ParagraphOpen(std::string_view align);

} // namespace tq::html
