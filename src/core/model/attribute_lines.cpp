// SPDX-License-Identifier: GPL-3.0-or-later
// The line splitters of attribute values, line-break removal and colours.
#include "model/attribute_text.h"
#include "model/text_ops.h"

#include <string>
#include <string_view>

namespace tq::model {

namespace {

constexpr auto npos = std::string_view::npos;

/// The next backslash-n, in either case, at or after `from`.
size_t FindSeparator(std::string_view s, size_t from)
{
    for (size_t i = s.find('\\', from); i != npos; i = s.find('\\', i + 1))
        if (i + 1 < s.size() && (s[i + 1] == 'n' || s[i + 1] == 'N'))
            return i;
    return npos;
}

/// The &nbsp; rewriting of one HTML line. Positions are counted from 1 as
/// the rule states them. A replacement at j keeps the first j - 2
/// characters, puts "&nbsp;" and goes on from j + 2: the characters at j - 1
/// to j + 1 are lost on purpose. Nothing at or behind j - 2 is looked at
/// again, so the line is built as an untouched head and a finished tail
/// (kept reversed), which keeps long runs of blanks linear.
std::string RewriteBlanks(std::string line)
{
    if (line.size() >= 2 && line[0] == ' ' && line[1] == ' ')
        line.insert(0, "&nbsp;");
    const long long length = static_cast<long long>(line.size());
    size_t head = line.size();
    std::string tailReversed;
    auto at = [&](long long pos) -> int {
        const size_t i = static_cast<size_t>(pos - 1);
        if (i < head)
            return line[i];
        const size_t q = i - head;
        return q < tailReversed.size() ? tailReversed[tailReversed.size() - 1 - q] : -1;
    };
    for (long long j = length - 2; j >= 6; --j) {
        if (at(j) != ' ' || at(j + 1) != ' ' || at(j + 2) != ' ' || at(j + 3) != ' ')
            continue;
        const size_t keepFrom = static_cast<size_t>(j + 1); // index of position j + 2
        if (keepFrom > head)
            throw InternalError("internal error: blank rewriting out of step");
        for (size_t i = head; i > keepFrom; --i)
            tailReversed.push_back(line[i - 1]);
        tailReversed += ";psbn&";
        head = static_cast<size_t>(j - 2);
    }
    std::string out = line.substr(0, head);
    out.append(tailReversed.rbegin(), tailReversed.rend());
    return out;
}

} // namespace

void SplitLines(std::string& text, LineList& lines)
{
    if (text.empty())
        return; // the previous lines stay
    lines.clear();
    size_t sep = FindSeparator(text, 0);
    if (sep == npos) {
        lines.push(std::string(LTrim(text)));
        text.clear();
        return;
    }
    size_t start = 0;
    for (; sep != npos; sep = FindSeparator(text, start)) {
        const std::string_view part = std::string_view(text).substr(start, sep - start);
        if (lines.count() == 0 && part.empty()) {
            text.erase(0, start);
            return; // a text that opens with a separator gives no line
        }
        lines.push(std::string(LTrim(part)));
        start = sep + 2;
        while (start < text.size() && text[start] == ' ')
            ++start;
    }
    if (start < text.size())
        lines.push(text.substr(start));
    text.clear();
}

LineList SplitLines(std::string text)
{
    LineList lines;
    SplitLines(text, lines);
    return lines;
}

HtmlLineList SplitHtmlLines(std::string_view text)
{
    HtmlLineList lines;
    size_t start = 0;
    for (size_t sep = FindSeparator(text, 0); sep != npos; sep = FindSeparator(text, start)) {
        lines.push(std::string(text.substr(start, sep - start)));
        start = sep + 2;
    }
    if (start < text.size())
        lines.push(std::string(text.substr(start)));
    for (std::string& line : lines.items)
        line = RewriteBlanks(std::move(line));
    return lines;
}

std::string RemoveLineBreaks(std::string_view text)
{
    std::string out;
    out.reserve(text.size());
    for (char c : text)
        if (c != '\r' && c != '\n')
            out.push_back(c);
    return out;
}

std::string ColorToHex(std::string_view value)
{
    if (value.empty())
        return {};
    const long long n = ValLong(value);
    static constexpr char kHex[] = "0123456789ABCDEF";
    std::string out;
    // red in the low byte; the divisions truncate as the run-time's do
    for (long long part : {n & 255, (n / 256) & 255, (n / 65536) & 255}) {
        out.push_back(kHex[part >> 4]);
        out.push_back(kHex[part & 15]);
    }
    return out;
}

} // namespace tq::model
