// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace tq::test {

/// The values of a SetupEntry that tests set; the rest build as they stand.
struct SetupOptions
{
    std::string output = "formtql.htm";
    std::string from = "My Web Page";
    std::string submit = "Submit Form";
    std::string image = ";https://www.tarnquill.example/test/cloudark.gif";
    std::string frame = "NO";
    std::string lead{}; // items in front, such as a survey's background colour
};

/// A SetupEntry that builds into `folder`: each key on its line with its help item.
inline std::string SetupEntryText(const std::string& folder, const SetupOptions& o = {})
{
    const std::pair<const char*, std::string> items[] = {{"Drive Folder Path", folder},
                                                         {"TQL Output File", o.output},
                                                         {"FROM", o.from},
                                                         {"Completed", "thankyou.htm"},
                                                         {"GLOBAL ALIGN", "NONE"},
                                                         {"GLOBAL TEXT COLOR", "NONE"},
                                                         {"Submit Name", o.submit},
                                                         {"SUBMIT ALIGN", "LEFT"},
                                                         {"Submit Button Color", "0"},
                                                         {"Background image path", o.image},
                                                         {"Email #1", "webmaster@tarnquill.example"},
                                                         {"Email #2", "none"},
                                                         {"Email #3", "none"},
                                                         {"Number Each Question", "YES"},
                                                         {"Show Tool Tips", "YES"},
                                                         {"Include Frame With Form", o.frame},
                                                         {"Frame Border Color", "52736"},
                                                         {"Frame Color", "16384"},
                                                         {"Total Frames", "1"}};
    std::string text = o.lead;
    for (const auto& [key, value] : items) {
        const std::string k = key;
        const bool choices = k == "GLOBAL TEXT COLOR" || k == "SUBMIT ALIGN" || k == "Submit Button Color";
        text += "[" + k + "=" + value + "] " + (choices ? "[Choices=c]" : "[Info: x]") + "\r\n";
    }
    return text;
}

/// An item of a stored text with its help item and the blank line behind them.
inline std::string Group(const std::string& item, const std::string& help)
{
    return item + "\r\n" + help + "\r\n\r\n";
}

/// A project file of the Entries (type, text) with their star frames.
inline std::string ProjectFileText(const std::vector<std::pair<std::string, std::string>>& entries)
{
    const std::string stars = "********************************\r\n";
    std::string out;
    for (const auto& [type, text] : entries)
        out += (out.empty() ? "" : "\r\n") + stars + type + "\r\n" + stars + "\r\n" + text;
    return out;
}

} // namespace tq::test
