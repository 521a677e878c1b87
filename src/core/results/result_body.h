// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tq::results {

/// One question of a result mail and what the visitor answered.
struct AnswerText
{
    std::string title;              // the caption as the script wrote it, its lines joined by one blank
    std::string value;              // the answer, its lines joined by "\n", the script's HTML escapes undone
    std::vector<std::string> picks; // the ticked boxes of a check box question ("Checked: X" lines)
};

/// What one result mail holds: the head the script writes, then every question.
struct Submission
{
    std::string from;    // the line after "A message has been submitted from"
    std::string date;    // behind "Date: "
    std::string address; // the visitor's address, the line after "Send from public IP Address"
    std::vector<AnswerText> answers;
};

/// Why a text is not read as a result.
enum class BodyFault {
    None,
    NotAResult, // the text does not start as the script's message does
    CutOff      // the head is there, "End of message" is not
};

/// The caption lines of the questions a project's script writes, in order,
/// each as the mail shows it (its "\n" split into lines, "&nbsp;" removed).
/// With them a reader tells the caption of a question from its answer even
/// where the caption spans several lines; without them a caption is its
/// first line and the indented lines that follow it.
using KnownCaptions = std::vector<std::vector<std::string>>;

/// Reads the body of a result mail (any line ends). Returns nothing and sets
/// `fault` when the text is not a result or was cut off; never throws on any
/// input.
std::optional<Submission> ReadResultBody(std::string_view text, const KnownCaptions& known, BodyFault& fault);

/// The caption lines of one message label as the script writes them: "\n"
/// at the very start dropped, elsewhere a line break, "&nbsp;" removed.
std::vector<std::string> CaptionLines(std::string_view label);

/// The title of a caption: its lines from `from` to `to`, each trimmed,
/// the empty ones left out, joined by one blank.
std::string CaptionTitle(const std::vector<std::string_view>& lines, size_t from, size_t to);

/// Undoes the escapes that the script's check_entry applies to typed text
/// (&amp; &quot; &#039; &lt; &gt;).
std::string UnescapeTyped(std::string_view text);

} // namespace tq::results
