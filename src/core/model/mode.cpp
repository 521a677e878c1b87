// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/mode.h"

#include "model/text_ops.h"

namespace tq::model {

Mode ModeOf(std::string_view text)
{
    return EqualsNoCase(text, "SURVEY") ? Mode::Survey : Mode::Form;
}

std::string_view ModeText(Mode mode)
{
    return mode == Mode::Survey ? "SURVEY" : "FORM";
}

} // namespace tq::model
