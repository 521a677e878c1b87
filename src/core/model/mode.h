// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace tq::model {

/// The two kinds of project. Text ("FORM", "SURVEY") only where files, labels
/// and menus read or write it.
enum class Mode { Form, Survey };

/// "SURVEY" in any case is Survey; anything else (the empty text too) is Form.
Mode ModeOf(std::string_view text);

/// "FORM" or "SURVEY", as files and the recent lists write it.
std::string_view ModeText(Mode mode);

} // namespace tq::model
