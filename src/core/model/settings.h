// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace tq::model {

/// The settings record that feeds the default templates.
struct TemplateSettings
{
};

} // namespace tq::model
