// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/result_body.h"

#include "model/text_ops.h"

namespace tq::results {

namespace {

constexpr std::string_view kHead = "A message has been submitted from";
constexpr std::string_view kIpLine = "Send from public IP Address";
constexpr std::string_view kEnd = "End of message";
constexpr std::string_view kChecked = "Checked: ";

std::vector<std::string_view> SplitLines(std::string_view text)
{
    std::vector<std::string_view> lines;
    size_t at = 0;
    while (at <= text.size()) {
        size_t end = text.find('\n', at);
        if (end == std::string_view::npos)
            end = text.size();
        std::string_view line = text.substr(at, end - at);
        if (!line.empty() && line.back() == '\r')
            line.remove_suffix(1);
        lines.push_back(line);
        at = end + 1;
    }
    return lines;
}

bool IsBlank(std::string_view line)
{
    return model::Trim(line, " \t\r").empty();
}

// The question number a numbered caption starts with: " 9a. ", "10. ".
struct Number
{
    long n = 0;
    char sub = 0; // 'a', 'b' or 0
};

std::optional<Number> CaptionNumber(std::string_view line)
{
    if (!line.empty() && line[0] == ' ')
        line.remove_prefix(1);
    size_t i = 0;
    long n = 0;
    while (i < line.size() && i < 6 && line[i] >= '0' && line[i] <= '9')
        n = n * 10 + (line[i++] - '0');
    if (i == 0 || i == 6)
        return std::nullopt;
    Number num{n, 0};
    if (i < line.size() && (line[i] == 'a' || line[i] == 'b'))
        num.sub = line[i++];
    if (i >= line.size() || line[i] != '.')
        return std::nullopt;
    if (i + 1 < line.size() && line[i + 1] != ' ')
        return std::nullopt;
    return num;
}

bool Follows(const Number& next, const Number& last)
{
    return next.n > last.n || (next.n == last.n && last.sub == 'a' && next.sub == 'b');
}

struct Reader
{
    const std::vector<std::string_view>& lines;
    size_t end; // the "End of message" line
    const KnownCaptions& known;
    bool numbered = false;
    int lastKnown = -1;
    Number last;

    // The index of the known caption that starts at line `t` behind the last one matched, or -1.
    int KnownAt(size_t t) const
    {
        for (size_t k = static_cast<size_t>(lastKnown + 1); k < known.size(); ++k) {
            const auto& caption = known[k];
            if (caption.empty() || t + caption.size() > end)
                continue;
            bool same = true;
            for (size_t c = 0; c < caption.size() && same; ++c)
                same = model::RTrim(lines[t + c], " \t") == model::RTrim(caption[c], " \t");
            if (same)
                return static_cast<int>(k);
        }
        return -1;
    }

    bool StartsRecord(size_t t) const
    {
        if (t == 0 || !IsBlank(lines[t - 1]) || IsBlank(lines[t]))
            return false;
        if (KnownAt(t) >= 0)
            return true;
        if (!numbered)
            return false;
        const auto num = CaptionNumber(lines[t]);
        return num && Follows(*num, last);
    }

    size_t NextStart(size_t from) const
    {
        for (size_t t = from; t < end; ++t)
            if (StartsRecord(t))
                return t;
        return end;
    }
};

} // namespace

std::string CaptionTitle(const std::vector<std::string_view>& lines, size_t from, size_t to)
{
    std::string title;
    for (size_t i = from; i < to; ++i) {
        const auto part = model::Trim(lines[i], " \t");
        if (part.empty())
            continue;
        if (!title.empty())
            title += ' ';
        title += part;
    }
    return title;
}

namespace {

AnswerText MakeAnswer(std::string title, const std::vector<std::string_view>& lines, size_t from, size_t to)
{
    while (to > from && IsBlank(lines[to - 1]))
        --to;
    AnswerText a;
    a.title = std::move(title);
    bool allChecked = to > from;
    for (size_t i = from; i < to; ++i)
        allChecked = allChecked && lines[i].substr(0, kChecked.size()) == kChecked;
    for (size_t i = from; i < to; ++i) {
        std::string_view line = lines[i];
        if (allChecked) {
            line.remove_prefix(kChecked.size());
            a.picks.push_back(UnescapeTyped(line));
        }
        if (i > from)
            a.value += '\n';
        a.value += UnescapeTyped(line);
    }
    return a;
}

} // namespace

std::vector<std::string> CaptionLines(std::string_view label)
{
    std::string text(label);
    // as the script writes the label: a leading "\n" goes, the others break the line
    while (text.size() >= 2 && text[0] == '\\' && text[1] == 'n')
        text.erase(0, 2);
    model::ReplaceAll(text, "&nbsp;", "");
    std::vector<std::string> out;
    size_t at = 0;
    for (size_t hit = text.find("\\n"); hit != std::string::npos; hit = text.find("\\n", at)) {
        out.push_back(text.substr(at, hit - at));
        at = hit + 2;
    }
    out.push_back(text.substr(at));
    return out;
}

std::string UnescapeTyped(std::string_view text)
{
    static constexpr std::pair<std::string_view, char> kEscapes[] = {
        {"&amp;", '&'}, {"&quot;", '"'}, {"&#039;", '\''}, {"&lt;", '<'}, {"&gt;", '>'}};
    std::string out;
    out.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        bool done = false;
        if (text[i] == '&') {
            for (const auto& [escape, c] : kEscapes) {
                if (text.substr(i, escape.size()) == escape) {
                    out += c;
                    i += escape.size() - 1;
                    done = true;
                    break;
                }
            }
        }
        if (!done)
            out += text[i];
    }
    return out;
}

std::optional<Submission> ReadResultBody(std::string_view text, const KnownCaptions& known, BodyFault& fault)
{
    fault = BodyFault::NotAResult;
    const auto lines = SplitLines(text);
    size_t i = 0;
    auto skipBlank = [&] {
        while (i < lines.size() && IsBlank(lines[i]))
            ++i;
    };
    skipBlank();
    if (i >= lines.size() || model::RTrim(lines[i], " \t") != kHead)
        return std::nullopt;
    fault = BodyFault::CutOff;
    Submission s;
    if (++i >= lines.size())
        return std::nullopt;
    s.from = std::string(model::Trim(lines[i++], " \t"));
    skipBlank();
    if (i >= lines.size() || lines[i].substr(0, 6) != "Date: ")
        return std::nullopt;
    s.date = std::string(model::Trim(lines[i++].substr(6), " \t"));
    skipBlank();
    if (i >= lines.size() || model::RTrim(lines[i], " \t") != kIpLine)
        return std::nullopt;
    if (++i >= lines.size())
        return std::nullopt;
    s.address = std::string(model::Trim(lines[i++], " \t"));

    size_t end = lines.size();
    while (end > i && model::Trim(lines[end - 1], " \t") != kEnd)
        --end;
    if (end == i)
        return std::nullopt;
    --end;

    Reader r{lines, end, known, false, -1, Number{}};
    skipBlank();
    if (i < end)
        r.numbered = CaptionNumber(lines[i]).has_value();
    while (i < end) {
        size_t captionEnd = i + 1;
        const int k = r.KnownAt(i);
        if (k >= 0) {
            captionEnd = i + known[static_cast<size_t>(k)].size();
            r.lastKnown = k;
        } else {
            // a caption's further lines are indented, as the templates write them
            while (captionEnd < end && !IsBlank(lines[captionEnd]) &&
                   (lines[captionEnd][0] == ' ' || lines[captionEnd][0] == '\t'))
                ++captionEnd;
        }
        if (const auto num = CaptionNumber(lines[i]))
            r.last = *num;
        std::string title = CaptionTitle(lines, i, captionEnd);
        size_t valueFrom = captionEnd;
        // the script puts an empty line behind every caption that holds "B."
        if (model::ToUpper(title).find("B.") != std::string::npos && valueFrom < end && IsBlank(lines[valueFrom]))
            ++valueFrom;
        size_t valueTo;
        if (r.numbered || !known.empty()) {
            valueTo = r.NextStart(valueFrom);
        } else {
            valueTo = valueFrom;
            while (valueTo < end && !IsBlank(lines[valueTo]))
                ++valueTo;
        }
        s.answers.push_back(MakeAnswer(std::move(title), lines, valueFrom, valueTo));
        i = valueTo;
        skipBlank();
    }
    fault = BodyFault::None;
    return s;
}

} // namespace tq::results
