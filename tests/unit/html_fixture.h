// SPDX-License-Identifier: GPL-3.0-or-later
// A session whose channel 1 writes to a temporary file, for the page writers' tests.
#pragma once

#include "scripted_port.h"
#include "session.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace tq::test {

struct HtmlFixture
{
    TempDir dir;
    Session s;
    ScriptedPort port;

    explicit HtmlFixture(std::string_view mode = "FORM")
    {
        s.store.state.ProjectMode = std::string(mode);
        s.DataFolder = dir.path();
        s.build.setupValues.NumberEachQuestion = "NO";
        auto& v = s.build.values;
        v.TitleSize = "3";
        v.ALIGN = "left";
        v.Italics = "off";
        v.Bold = "off";
        v.TextColorHex = "000000";
        s.build.channels[1].open(dir.file("out.htm"));
    }

    /// Closes channel 1 and returns what was written.
    std::string Output()
    {
        s.build.channels[1].close();
        return ReadFileBytes(dir.file("out.htm"));
    }
};

/// The lines joined, each with its CR LF.
inline std::string Lines(std::initializer_list<std::string_view> lines)
{
    std::string out;
    for (auto l : lines) {
        out += l;
        out += "\r\n";
    }
    return out;
}

/// A golden fragment under tests/golden/html/questions/.
inline std::string Golden(std::string_view name)
{
    return ReadFileBytes(std::string(TQ_GOLDEN_DIR) + "/html/questions/" + std::string(name));
}

} // namespace tq::test
