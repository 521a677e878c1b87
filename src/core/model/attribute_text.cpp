// SPDX-License-Identifier: GPL-3.0-or-later
// The destructive attribute reader, the choice list reader, the normaliser of
// the stored form and the two fixed read sequences.
#include "model/attribute_text.h"

#include "model/text_ops.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>

namespace tq::model {

namespace {

constexpr auto npos = std::string_view::npos;

/// The reader's work on a text that is only ever shortened at its front: the
/// text is buf[off..]. `lastEq` is the index of the last "=" in buf when the
/// caller knows it (so that the equals test never scans the whole rest).
struct Cursor
{
    const std::string& buf;
    size_t off = 0;
    size_t lastEq = npos;
    bool lastEqKnown = false;

    std::string_view rest() const { return std::string_view(buf).substr(off); }
};

/// Returns true when an item was taken (its value read, empty or not).
bool TakeAt(UiPort& ui, std::string_view key, std::string& value, Cursor& cur, int& err, std::string* serverFolderPath)
{
    err = 0;
    const auto k = [key] { return std::string(key); }; // only messages need it as a string

    // 1. leading blanks go
    while (cur.off < cur.buf.size() && cur.buf[cur.off] == ' ')
        ++cur.off;
    std::string_view t = cur.rest();

    // 2. a missing bracket is told, and the read goes on
    if (t.empty() || t[0] != '[') {
        ui.message("[ bracket missing from " + std::string(t), "ERROR", Icon::Exclamation);
        err = 1;
    }

    // 3. the shape [KEY=VALUE], except for info and default value items
    if (!StartsWithNoCase(t, "[INFO") && !StartsWithNoCase(t, "[DEFAULT VALUE")) {
        const size_t rb = t.find(']');
        if (rb == npos) {
            ui.message("Right bracket is missing in " + k() + "\r\rFormat should be [XXXX=]", "FORMAT ERROR",
                       Icon::Exclamation);
            err = 1;
            return false;
        }
        // the first "=" lies behind the first "]" (a text with no "=" at all passes)
        if (t.substr(0, rb).find('=') == npos) {
            bool eqBehind;
            if (cur.lastEqKnown)
                eqBehind = cur.lastEq != npos && cur.lastEq > cur.off + rb;
            else
                eqBehind = t.find('=', rb + 1) != npos;
            if (eqBehind) {
                ui.message("Equals sign needs to follow the [ bracket in " + k() + "\r\rFormat should be [XXXX=]",
                           "FORMAT ERROR", Icon::Exclamation);
                err = 1;
            }
        }
    }

    // 4. the key must stand at the very front
    if (!StartsWithNoCase(t, key)) {
        const size_t rb = t.find(']');
        const std::string_view show = rb == npos ? t : t.substr(0, rb + 1);
        ui.message("Cannot find left [ bracket in " + k() + "\r\r" + std::string(show), "error", Icon::Critical);
        err = 1;
        return false;
    }

    // 5. (the wording with "left" is the program's own)
    const size_t rb = t.find(']');
    if (rb == npos) {
        ui.message("Cannot find left ] bracket in " + k() + "\r\r", "error", Icon::Critical);
        err = 1;
        return false;
    }

    // 6. a "[" counted from the second character that stands before the "]"
    // counted from the third: positions relative to their own starting
    // points, so the test is a < b - 1 in plain indexes
    if (t.size() > 2) {
        const size_t b = t.find(']', 2);
        if (b != npos && b >= 2) {
            const size_t a = t.substr(0, b - 1).find('[', 1);
            if (a != npos) {
                err = 1;
                ui.message("Right ] bracket is missing in " + k() + "\r\r", "error", Icon::Critical);
                return false;
            }
        }
    }

    // 7. "]]" or "] ]"
    if ((rb + 1 < t.size() && t[rb + 1] == ']') || (rb + 2 < t.size() && t[rb + 2] == ']')) {
        err = 1;
        ui.message("You cannot have 2 Right ]] brackets in " + k() + "\r\r", "error", Icon::Critical);
        return false;
    }

    // 8. the key and its "=" leave the text
    cur.off += key.size();
    if (cur.off < cur.buf.size() && cur.buf[cur.off] == '=')
        ++cur.off;
    t = cur.rest();

    // 9. the item's own closing bracket, searched from the second character
    size_t nr = t.empty() ? npos : t.find(']', 1);
    size_t nl;
    if (nr != npos) {
        nl = t.substr(0, nr).find('[', 1);
        if (nl != npos)
            nr = npos; // a "[" before it: the item has no closing bracket of its own
    } else {
        nl = t.empty() ? npos : t.find('[', 1);
    }

    // 10. nothing behind: an empty value at the end of the text
    if (nl == npos && nr == npos) {
        value.clear();
        return true;
    }

    // 11. no closing bracket for this item
    if (nr == npos) {
        const std::string show(nl != npos ? t.substr(0, nl) : t);
        if (t[0] != ']')
            ui.message("Cannot find right ] bracket in " + k() + "\r\r" + show, "error", Icon::Critical);
        else
            ui.message(k() +
                           " is not a valid entry.\r\rShould have a left bracket, followed by a = sign followed by "
                           "a right bracket\r\rExample: [TITLE=This is a test]\r\r" +
                           show,
                       "error", Icon::Critical);
        err = 1;
        return false;
    }

    // 12. the value, and the text behind it without its leading blanks
    value.assign(t.substr(0, nr));
    cur.off += nr + 1;
    while (cur.off < cur.buf.size() && cur.buf[cur.off] == ' ')
        ++cur.off;

    // 13. a download folder is kept for the download page
    if (serverFolderPath && FindNoCase(key, "[SERVER DOWNLOAD") != npos) {
        *serverFolderPath = value;
        const std::string& p = *serverFolderPath;
        if (p.find('/') != npos && p.back() != '/' && p.back() != '\\')
            serverFolderPath->push_back('/');
    }
    return true;
}

/// A block key and the length over which it is compared.
struct BlockKey
{
    std::string_view key;
    size_t length;
};

constexpr BlockKey Key(std::string_view k)
{
    return {k, k.size()};
}

// The keys that open a new block in the stored form: an empty line stands
// before them. SECURITY is compared over 12 characters, so only an item that
// is exactly "SECURITY" matches it, and "[Security=" opens no block.
constexpr std::array kBlockKeys = {
    Key("BACKGROUND IMAGE PATH ON YOUR WEB SERVER"),
    Key("SHOW FILE LABELS"),
    Key("LINE COLOR"),
    Key("GLOBAL TEXT COLOR"),
    Key("LOOP"),
    Key("GLOBAL ALIGN"),
    Key("SUBMIT ALIGN"),
    Key("LINK TO"),
    Key("REQUIRED"),
    Key("BACKGROUND IMAGE PATH"),
    Key("SHOW TOOL TIPS"),
    Key("NUMBER EACH QUESTION"),
    Key("TOTAL FRAMES"),
    Key("FRAME COLOR"),
    Key("FRAME BORDER COLOR"),
    Key("INCLUDE FRAME WITH FORM"),
    Key("TQL OUTPUT FILE"),
    Key("HEIGHT"),
    Key("SUBMIT BUTTON COLOR"),
    Key("BACKGROUND COLOR"),
    Key("CHECKBOX CHOICES"),
    Key("DEFAULT CHECK BOX"),
    Key("CHECK BOX"),
    Key("ANSWER BACK COLOR"),
    Key("RESPONSE TEXT COLOR"),
    Key("CHOICES BACK COLOR"),
    Key("TITLE SHADE WIDTH"),
    Key("LINE SIZE"),
    Key("LINE WIDTH"),
    Key("COMMENTS WIDTH"),
    Key("PASSWORD DEFAULT VALUE"),
    Key("COMMENTS HEIGHT"),
    Key("FOLLOWUP WIDTH"),
    Key("FOLLOWUP HEIGHT"),
    Key("FOLLOWUP CHOICES"),
    Key("SURVEY CHOICES"),
    Key("DEFAULT USER NAME"),
    Key("CONDITION CHOICES"),
    Key("QUESTION CHOICES"),
    Key("DEFAULT NAME"),
    Key("ALIGN"),
    Key("PICTURE ALIGN"),
    Key("VIDEO WIDTH"),
    Key("VIDEO HEIGHT"),
    Key("PICTURE WIDTH"),
    Key("PICTURE HEIGHT"),
    Key("BLANK ERROR"),
    Key("TITLE SIZE"),
    Key("DRIVE FOLDER PATH"),
    Key("DEFAULT COLOR"),
    Key("TEXT COLOR"),
    Key("DEFAULT CONDITION"),
    Key("REQUIRED TABLE"),
    Key("DEFAULT DOWNLOAD VALUE"),
    Key("DEFAULT DROPDOWN"),
    Key("PHONE # DEFAULT VALUE"),
    Key("BOLD"),
    Key("DEFAULT SECURITY VALUE"),
    Key("VISIBLE DOWNLOAD"),
    Key("DEFAULT EMAIL ADDRESS"),
    Key("DEFAULT COMMENTS"),
    Key("DEFAULT FOLLOWUP VALUE"),
    Key("DEFAULT FOLLOWUP"),
    Key("DEFAULT QUESTION"),
    Key("COMPLETED"),
    Key("EMAIL #1"),
    Key("EMAIL #2"),
    Key("EMAIL #3"),
    Key("FROM"),
    Key("SUBMIT NAME"),
    Key("ERROR MESSAGE"),
    Key("ITALICS"),
    Key("WIDTH"),
    Key("SERVER DOWNLOAD"),
    Key("FILES"),
    Key("THANK YOU FILE"),
    Key("INSTRUCTIONS"),
    Key("USERNAME"),
    Key("PASSWORD"),
    Key("FILENAME"),
    Key("AUTOSTART"),
    Key("CHECKED"),
    Key("SHADE WIDTH"),
    Key("SHADE COLOR"),
    Key("ROW CHOICES"),
    Key("BACKCOLOR"),
    Key("SIZE"),
    BlockKey{"SECURITY", 12},
};

/// The number of block keys that the front of `item` matches, each compared
/// over its own length (a shorter item compares whole, as Left$ does).
int CountBlockKeys(std::string_view item)
{
    int n = 0;
    const char first = item.empty() ? '\0' : UpperChar(item.front());
    for (const BlockKey& b : kBlockKeys) {
        if (b.key.front() != first)
            continue;
        const std::string_view front = item.substr(0, b.length);
        if (EqualsNoCase(front, b.key))
            ++n;
    }
    return n;
}

bool IsBlank(std::string_view line)
{
    return line.find_first_not_of(' ') == npos;
}

} // namespace

void TakeAttribute(
    UiPort& ui, std::string_view key, std::string& value, std::string& text, int& err, std::string* serverFolderPath)
{
    Cursor cur{text};
    TakeAt(ui, key, value, cur, err, serverFolderPath);
    // one erase per read keeps repeated reads linear in the text
    text.erase(0, cur.off);
}

AttributeCursor::AttributeCursor(std::string whole) : text(std::move(whole)), lastEq(text.rfind('=')) {}

void TakeAttribute(UiPort& ui,
                   std::string_view key,
                   std::string& value,
                   AttributeCursor& cursor,
                   int& err,
                   std::string* serverFolderPath)
{
    Cursor cur{cursor.text, cursor.offset, cursor.lastEq, true};
    TakeAt(ui, key, value, cur, err, serverFolderPath);
    cursor.offset = cur.off;
}

std::string NormalizeAttributeText(UiPort& ui, std::string_view text)
{
    // 1. only the first line is read
    const size_t eol = text.find_first_of("\r\n");
    const std::string working(text.substr(0, eol));

    Cursor cur{working};
    cur.lastEq = working.rfind('=');
    cur.lastEqKnown = true;

    // 2. one item per line, an empty line before a block key
    std::vector<std::string> lines;
    std::string item;
    while (working.find('[', cur.off) != npos) {
        size_t before = cur.off;
        while (before < working.size() && working[before] == ' ')
            ++before;
        int err = 0;
        if (!TakeAt(ui, "[", item, cur, err, nullptr)) {
            // a broken text: what was left of it before this read stays on
            // the last line as it stands, so nothing is lost and the loop ends
            lines.emplace_back(std::string_view(working).substr(before));
            break;
        }
        for (int n = CountBlockKeys(item); n > 0; --n)
            lines.emplace_back();
        lines.push_back("[" + item + "]");
    }

    // 3. no blank first line; runs of blank lines become one
    size_t first = 0;
    if (!lines.empty() && IsBlank(lines.front()))
        first = 1;
    std::string out;
    out.reserve(working.size() + lines.size() * 2 + 2);
    int counter = 0;
    for (size_t i = first; i < lines.size(); ++i) {
        if (!IsBlank(lines[i]))
            counter = 0;
        if (counter <= 1) {
            // 4. CR LF after every line, the last one included
            out += lines[i];
            out += "\r\n";
        }
        ++counter;
    }
    return out;
}

void TakeChoiceList(UiPort& ui, std::string_view key, std::string& text, ChoiceList& list, int& err)
{
    // 1.
    err = 0;
    list.clear();
    LTrimInPlace(text);

    // 2. the text must start with an item
    if (text.find('[') != 0) {
        ui.message("Cannot find ->[" + std::string(key) + " <- in \r" + text, "error", Icon::Critical);
        err = 1;
        return;
    }

    // 3. the key anywhere in the upper-cased text
    const size_t pos = FindNoCase(text, key);
    if (pos == npos) {
        ui.message("Cannot find [Choices= in \r" + text, "error", Icon::Critical);
        err = 1;
        return;
    }

    // 4. the closing bracket behind the key, unless a "[" comes first
    size_t rb = text.find(']', pos + 1);
    if (rb != npos && text.substr(0, rb).find('[', pos + 1) != npos)
        rb = npos;
    if (rb == npos) {
        ui.message("Cannot find a right bracket ] in \r" + text, "error", Icon::Critical);
        err = 1;
        return;
    }

    // 5. the inner text without the key, its "=" and anything up to a further "="
    std::string inner = text.substr(1, rb - 1);
    std::string_view bare = key;
    if (!bare.empty() && bare.front() == '[')
        bare.remove_prefix(1);
    if (!bare.empty()) {
        const size_t at = FindNoCase(inner, bare);
        if (at != npos)
            inner.erase(at, bare.size());
    }
    if (!inner.empty() && inner.front() == '=')
        inner.erase(0, 1);
    if (const size_t eq = inner.find('='); eq != npos)
        inner.erase(0, eq + 1);

    // 6. a single item, or nothing at all
    if (inner.find(',') == npos) {
        if (inner.empty()) {
            ui.message("Cannot find a comma in User response in \r" + text, "error", Icon::Critical);
            err = 1;
            return;
        }
        list.push(std::string(LTrim(inner)));
    } else {
        // 7. blank pieces are dropped silently
        std::string_view rest = inner;
        for (size_t comma = rest.find(','); comma != npos; comma = rest.find(',')) {
            const std::string_view piece = LTrim(rest.substr(0, comma));
            if (!piece.empty())
                list.push(std::string(piece));
            rest = LTrim(rest.substr(comma + 1));
        }
        if (!rest.empty())
            list.push(std::string(rest));
    }

    // 8.
    text = std::string(Trim(std::string_view(text).substr(rb + 1)));
}

void TakeShadeGroup(UiPort& ui, std::string& text, std::string& shadeWidth, std::string& shadeColor, int& err)
{
    err = 0;
    if (!StartsWithNoCase(text, "[SHADE WIDTH"))
        return;
    std::string value;
    TakeAttribute(ui, "[SHADE WIDTH", value, text, err);
    if (err != 0)
        return;
    shadeWidth = value.find('%') == npos ? ColorToHex(value) : value;
    std::string mark;
    TakeAttribute(ui, "[CHOICES", mark, text, err);
    if (err != 0)
        return;
    TakeAttribute(ui, "[SHADE COLOR", value, text, err);
    if (err != 0)
        return;
    // read as a number, then its decimal text goes through ColorToHex
    shadeColor = ColorToHex(std::to_string(ValLong(value)));
    TakeAttribute(ui, "[CHOICES", mark, text, err);
}

void TakeLineGroup(UiPort& ui,
                   std::string& text,
                   std::string& width,
                   std::string& size,
                   std::string& align,
                   std::string& color,
                   int& err)
{
    text = RemoveLineBreaks(text);
    std::string mark;
    struct Step
    {
        std::string_view key;
        std::string* into;
    };
    const std::array<Step, 8> steps = {{{"[LINE WIDTH", &width},
                                        {"[INFO:", &mark},
                                        {"[LINE SIZE", &size},
                                        {"[INFO:", &mark},
                                        {"[ALIGN", &align},
                                        {"[CHOICES=", &mark},
                                        {"[LINE COLOR", &color},
                                        {"[CHOICES=", &mark}}};
    err = 0;
    for (const Step& s : steps) {
        TakeAttribute(ui, s.key, *s.into, text, err);
        if (err != 0)
            return;
    }
}

std::string PeekAttribute(std::string_view text, std::string_view key)
{
    const std::string open = "[" + std::string(key) + "=";
    const size_t pos = FindNoCase(text, open);
    if (pos == std::string::npos)
        return {};
    const size_t start = pos + open.size();
    const size_t end = text.find_first_of("]\r\n", start);
    return std::string(text.substr(start, end == std::string_view::npos ? end : end - start));
}

} // namespace tq::model
