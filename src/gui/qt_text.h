// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace tq::gui {

/// The core's UTF-8 text as a QString.
QString ToQ(std::string_view s);

/// A QString as the core's UTF-8 text.
std::string FromQ(const QString& s);

} // namespace tq::gui
