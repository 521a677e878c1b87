// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/internal_error.h"
#include "port/ui_port.h"

#include <string>
#include <string_view>
#include <vector>

namespace tq::model {

/// A working list with a fixed bound. Items are counted from 1 as the format
/// counts them: at(1) is the first. push past the bound throws InternalError.
template <int Bound> struct BoundedList
{
    std::vector<std::string> items;

    int count() const { return static_cast<int>(items.size()); }
    void clear() { items.clear(); }
    void push(std::string s)
    {
        if (count() >= Bound)
            throw InternalError("internal error: list bound " + std::to_string(Bound) + " passed");
        items.push_back(std::move(s));
    }
    /// 1-based access; an index outside 1..count throws InternalError.
    const std::string& at(int i) const
    {
        if (i < 1 || i > count())
            throw InternalError("internal error: list index " + std::to_string(i) + " out of range");
        return items[static_cast<size_t>(i - 1)];
    }
};

using ChoiceList = BoundedList<100>;
using LineList = BoundedList<100>;
using HtmlLineList = BoundedList<150>;

/// The destructive reader: takes the item `key` ("[TITLE", "[INFO:", "[" for
/// any item) from the front of `text` into `value`. Shows its own messages
/// through `ui` and sets `err` to 1 on a fault (err is set to 0 on entry).
/// Leading blanks are always removed; a fault found after the key was taken
/// off leaves the text without it. `value` is only written on success.
/// A "[SERVER DOWNLOAD" value is also stored in *serverFolderPath when given
/// (with a "/" added behind a path that has one and ends in no separator).
void TakeAttribute(UiPort& ui,
                   std::string_view key,
                   std::string& value,
                   std::string& text,
                   int& err,
                   std::string* serverFolderPath = nullptr);

/// A text read item by item from its front without being shortened: the
/// unread rest is text[offset..]. Reads through a cursor move `offset` on and
/// never copy the rest, so reading every item of a text costs time linear in
/// its length. `text` must not change while it is read.
struct AttributeCursor
{
    std::string text;
    size_t offset = 0;
    size_t lastEq = std::string::npos; ///< the last "=" in text, found once

    explicit AttributeCursor(std::string whole);
    /// The unread rest of the text.
    std::string_view rest() const { return std::string_view(text).substr(offset); }
};

/// TakeAttribute on a cursor: the same reads, messages and faults as the
/// string form, with the taken part passed over instead of erased.
void TakeAttribute(UiPort& ui,
                   std::string_view key,
                   std::string& value,
                   AttributeCursor& cursor,
                   int& err,
                   std::string* serverFolderPath = nullptr);

/// Reads one "[KEY=a,b,c]" item from the front of `text` into `list`.
/// `key` is upper case. Sets `err` to 1 with its message on a fault.
void TakeChoiceList(UiPort& ui, std::string_view key, std::string& text, ChoiceList& list, int& err);

/// Splits at backslash-n (either case) into left-trimmed lines.
LineList SplitLines(std::string text);

/// The same split into an existing list. The text is consumed; an empty text
/// leaves `lines` as it was (the previous lines stay in use).
void SplitLines(std::string& text, LineList& lines);

/// Splits at backslash-n keeping blanks and empty lines, with the &nbsp; rewriting.
HtmlLineList SplitHtmlLines(std::string_view text);

/// The stored form of a one-line template: one item per line, blank lines
/// before block keys, CR LF after every line. Only the first line of `text`
/// is read. Messages of the reader go to `ui`; a read that takes no item (a
/// broken text) puts the rest of the text, as it stood before that read, on
/// the last line and ends the loop.
std::string NormalizeAttributeText(UiPort& ui, std::string_view text);

/// Reads the optional shade pair when the text begins with "[SHADE WIDTH":
/// width (through ColorToHex unless it holds "%"), colour as hex. Sets err
/// on the first failing read; outputs are left alone otherwise.
void TakeShadeGroup(UiPort& ui, std::string& text, std::string& shadeWidth, std::string& shadeColor, int& err);

/// Reads the line group of a HORIZONTAL LINE after taking every CR and LF
/// out of `text`; stops at the first error with err set.
void TakeLineGroup(UiPort& ui,
                   std::string& text,
                   std::string& width,
                   std::string& size,
                   std::string& align,
                   std::string& color,
                   int& err);

/// Joins the text around every CR and LF.
std::string RemoveLineBreaks(std::string_view text);

/// The value of "[KEY=" (any case) in a text, read without the destructive
/// reader and without any message: the text behind the "=" up to the next "]"
/// or line end. Empty when the key is absent.
std::string PeekAttribute(std::string_view text, std::string_view key);

/// A decimal colour (red in the low byte) as six hex digits RRGGBB; empty stays empty.
std::string ColorToHex(std::string_view value);

} // namespace tq::model
