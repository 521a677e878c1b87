// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/globals.h"

#include "html/headings.h"
#include "html/html_text.h"
#include "model/attribute_text.h"
#include "model/text_ops.h"
#include "session.h"

namespace tq::html {

void ApplyGlobals(Session& s)
{
    auto& setup = s.build.setupValues;
    auto& v = s.build.values;
    if (!model::EqualsNoCase(setup.GlobalAlign, "NONE")) {
        setup.SubmitAlign = setup.GlobalAlign;
        v.ALIGN = setup.GlobalAlign;
        v.LineAlign = setup.GlobalAlign;
        v.VideoAlign = setup.GlobalAlign;
        // the colour text itself, which the font tags then show as color="0"
        if (setup.FrameOff == 1 || IsSurvey(s)) {
            v.TextColor = "0";
            v.TextColorHex = "0";
        }
    }
    if (!model::EqualsNoCase(setup.GlobalTextColor, "NONE")) {
        v.TextColor = setup.GlobalTextColor;
        v.TextColorHex = model::ColorToHex(setup.GlobalTextColor);
    }
}

} // namespace tq::html
