// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/mail_message.h"

#include <gmime/gmime.h>
#include <memory>
#include <mutex>

namespace tq::results {

namespace {

template <typename T> struct GUnref
{
    void operator()(T* p) const
    {
        if (p != nullptr)
            g_object_unref(p);
    }
};
template <typename T> using GPtr = std::unique_ptr<T, GUnref<T>>;

struct GFree
{
    void operator()(char* p) const { g_free(p); }
};
using GText = std::unique_ptr<char, GFree>;

void InitOnce()
{
    static std::once_flag once;
    std::call_once(once, [] { g_mime_init(); });
}

bool IsAscii(std::string_view s)
{
    for (const char c : s)
        if (static_cast<unsigned char>(c) >= 0x80)
            return false;
    return true;
}

// The decoded content of a leaf part, without any charset conversion.
std::string DecodedBytes(GMimePart* part)
{
    GMimeDataWrapper* content = g_mime_part_get_content(part);
    if (content == nullptr)
        return {};
    GPtr<GMimeStream> mem(g_mime_stream_mem_new());
    g_mime_data_wrapper_write_to_stream(content, mem.get());
    GByteArray* array = g_mime_stream_mem_get_byte_array(reinterpret_cast<GMimeStreamMem*>(mem.get()));
    return std::string(reinterpret_cast<const char*>(array->data), array->len);
}

// Converts `raw` from `charset` to UTF-8; false when the charset is unknown here.
bool ToUtf8(const std::string& raw, const char* charset, std::string& out)
{
    if (charset == nullptr || g_ascii_strcasecmp(charset, "utf-8") == 0 || g_ascii_strcasecmp(charset, "utf8") == 0 ||
        g_ascii_strcasecmp(charset, "us-ascii") == 0) {
        if (g_utf8_validate(raw.data(), static_cast<gssize>(raw.size()), nullptr)) {
            out = raw;
            return true;
        }
        charset = "windows-1252"; // a text with no charset or a wrong one: the desktop's code page
    }
    gsize written = 0;
    GError* error = nullptr;
    GText converted(g_convert(raw.data(), static_cast<gssize>(raw.size()), "UTF-8", g_mime_charset_iconv_name(charset),
                              nullptr, &written, &error));
    if (error != nullptr)
        g_error_free(error);
    if (!converted)
        return false;
    out.assign(converted.get(), written);
    return true;
}

// The first text/plain leaf below `object`, looking into multiparts and forwarded messages.
GMimePart* FindText(GMimeObject* object, int depth)
{
    if (object == nullptr || depth > 20)
        return nullptr;
    if (GMIME_IS_MULTIPART(object)) {
        auto* multi = reinterpret_cast<GMimeMultipart*>(object);
        const int count = g_mime_multipart_get_count(multi);
        for (int i = 0; i < count; ++i)
            if (GMimePart* found = FindText(g_mime_multipart_get_part(multi, i), depth + 1))
                return found;
        return nullptr;
    }
    if (GMIME_IS_MESSAGE_PART(object)) {
        GMimeMessage* inner = g_mime_message_part_get_message(reinterpret_cast<GMimeMessagePart*>(object));
        return inner != nullptr ? FindText(g_mime_message_get_mime_part(inner), depth + 1) : nullptr;
    }
    if (!GMIME_IS_PART(object))
        return nullptr;
    GMimeContentType* type = g_mime_object_get_content_type(object);
    if (type != nullptr && !g_mime_content_type_is_type(type, "text", "plain"))
        return nullptr;
    // an attachment is not the message's text
    GMimeContentDisposition* disposition = g_mime_object_get_content_disposition(object);
    if (disposition != nullptr && g_mime_content_disposition_is_attachment(disposition))
        return nullptr;
    return reinterpret_cast<GMimePart*>(object);
}

} // namespace

MailText ReadMailText(std::string_view bytes, MailFault& fault)
{
    InitOnce();
    MailText mail;
    fault = MailFault::NotAMail;
    GPtr<GMimeStream> stream(g_mime_stream_mem_new_with_buffer(bytes.data(), bytes.size()));
    GPtr<GMimeParser> parser(g_mime_parser_new_with_stream(stream.get()));
    GPtr<GMimeMessage> message(g_mime_parser_construct_message(parser.get(), nullptr));
    if (!message)
        return mail;
    if (const char* id = g_mime_message_get_message_id(message.get()))
        mail.messageId = id;
    if (const char* subject = g_mime_message_get_subject(message.get()))
        mail.subject = subject;
    if (const char* date = g_mime_object_get_header(reinterpret_cast<GMimeObject*>(message.get()), "Date"))
        mail.date = date;

    GMimePart* part = FindText(g_mime_message_get_mime_part(message.get()), 0);
    if (part == nullptr) {
        fault = MailFault::NoText;
        return mail;
    }
    const std::string raw = DecodedBytes(part);
    const char* charset = g_mime_object_get_content_type_parameter(reinterpret_cast<GMimeObject*>(part), "charset");
    if (!ToUtf8(raw, charset, mail.text)) {
        if (!IsAscii(raw)) {
            fault = MailFault::UnknownCharset;
            return mail;
        }
        mail.text = raw;
    }
    fault = MailFault::None;
    return mail;
}

} // namespace tq::results
