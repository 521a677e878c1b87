// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/entry_store.h"
