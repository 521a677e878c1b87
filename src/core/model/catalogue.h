// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace tq::model {

/// The Input Type catalogue of the active mode.
struct Catalogue
{
};

} // namespace tq::model
