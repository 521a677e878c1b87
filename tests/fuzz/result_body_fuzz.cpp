// SPDX-License-Identifier: GPL-3.0-or-later
// Reads arbitrary bytes as a stored mail and as the body of a result mail,
// with and without a project's captions. Checks that reading never fails
// badly, that every mail is either a row or one skip, and that the ticked
// boxes of an answer are the lines of its value.
#include "results/result_body.h"
#include "results/result_set.h"

#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

void CheckAnswers(const tq::results::Submission& s)
{
    for (const auto& a : s.answers) {
        if (a.picks.empty())
            continue;
        std::string joined;
        for (const auto& p : a.picks)
            joined += (joined.empty() ? "" : "\n") + p;
        if (joined != a.value)
            std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    static const tq::results::KnownCaptions known{tq::results::CaptionLines("1. Name"),
                                                  tq::results::CaptionLines("2. Code\\n   (exact)"),
                                                  tq::results::CaptionLines("3. Level")};
    for (const auto* captions : {&known, static_cast<const tq::results::KnownCaptions*>(nullptr)}) {
        tq::results::BodyFault fault;
        const auto s = tq::results::ReadResultBody(bytes, captions ? *captions : tq::results::KnownCaptions{}, fault);
        if (s.has_value() != (fault == tq::results::BodyFault::None))
            std::abort();
        if (s)
            CheckAnswers(*s);
    }

    tq::results::ResultSet set;
    tq::results::AddMail(set, bytes, "fuzz");
    tq::results::AddMail(set, bytes, "fuzz again");
    // the same bytes twice: one row and one skip, or two skips of the same kind
    if (set.rows.size() + static_cast<size_t>(tq::results::SkippedCount(set)) != 2 || set.rows.size() > 1)
        std::abort();
    return 0;
}
