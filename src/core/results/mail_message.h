// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace tq::results {

/// Why a mail's text could not be taken.
enum class MailFault {
    None,
    NotAMail,       // no header block a mail parser accepts
    NoText,         // no text/plain part anywhere in it
    UnknownCharset, // its text is in a charset this machine cannot convert and is not plain ASCII
};

/// The parts of one mail that the results need.
struct MailText
{
    std::string messageId; // without angle brackets; empty when the mail has none
    std::string subject;   // decoded to UTF-8
    std::string date;      // the Date header as written; empty when there is none
    std::string text;      // the first text/plain part, transfer encoding undone, in UTF-8
};

/// Parses one mail (RFC 5322 with MIME; a mail program's re-wrap in a
/// multipart or a forwarded message/rfc822 is looked into) and takes its
/// first text/plain part. A text with no charset that is not UTF-8 is read
/// as Windows-1252. Sets `fault` and returns what it has when the text
/// cannot be taken; never throws on any input.
MailText ReadMailText(std::string_view bytes, MailFault& fault);

} // namespace tq::results
