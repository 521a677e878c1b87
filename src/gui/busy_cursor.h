// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tq::gui {

/// Shows the busy pointer for as long as it lives, so that every way out of a
/// long command (a return, a thrown error) restores the pointer.
class BusyCursor
{
  public:
    BusyCursor();
    ~BusyCursor();
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;
};

} // namespace tq::gui
