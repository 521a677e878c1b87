// SPDX-License-Identifier: GPL-3.0-or-later
#include "wait_timings.h"

#include <QElapsedTimer>
#include <cstdio>
#include <cstdlib>

namespace tq::gui {

namespace {

struct Wait
{
    QElapsedTimer clock;
    const char* what = "";
};

Wait& Current()
{
    static Wait wait;
    return wait;
}

bool Wanted()
{
    static const bool wanted = std::getenv("TQ_TIMINGS") != nullptr;
    return wanted;
}

} // namespace

void StartWait(const char* what)
{
    if (!Wanted())
        return;
    Current().what = what;
    Current().clock.start();
    std::fprintf(stderr, "[wait] %s: start\n", what);
}

void NoteWait(const char* step)
{
    if (!Wanted() || !Current().clock.isValid())
        return;
    std::fprintf(stderr, "[wait] %s: %s at %.1f ms\n", Current().what, step,
                 static_cast<double>(Current().clock.nsecsElapsed()) / 1e6);
}

} // namespace tq::gui
