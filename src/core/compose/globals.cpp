// SPDX-License-Identifier: GPL-3.0-or-later
#include "compose/globals.h"

#include "model/attribute_text.h"
#include "model/text_ops.h"

namespace tq::compose {

void ApplyGlobals(write::SetupValues& setup, write::WorkingValues& v, model::Mode mode)
{
    if (!model::EqualsNoCase(setup.GlobalAlign, "NONE")) {
        setup.SubmitAlign = setup.GlobalAlign;
        v.ALIGN = setup.GlobalAlign;
        v.LineAlign = setup.GlobalAlign;
        v.VideoAlign = setup.GlobalAlign;
        // the colour text itself, which the font tags then show as color="0"
        if (setup.FrameOff == 1 || mode == model::Mode::Survey) {
            v.TextColor = "0";
            v.TextColorHex = "0";
        }
    }
    if (!model::EqualsNoCase(setup.GlobalTextColor, "NONE")) {
        v.TextColor = setup.GlobalTextColor;
        v.TextColorHex = model::ColorToHex(setup.GlobalTextColor);
    }
}

} // namespace tq::compose
