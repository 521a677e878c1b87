// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary bytes through the project reader, then one save and read again.
#include "model/entry_store.h"
#include "store/project_file.h"

#include <cstddef>
#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    std::string bytes(reinterpret_cast<const char*>(data), size);
    tq::model::EntryStore store;
    tq::store::LineReader in = tq::store::ReaderOf(bytes);
    tq::store::ReadEntries(store, in);
    const std::string saved = tq::store::FormatProjectFile(tq::store::WriteEntries(store));
    tq::model::EntryStore again;
    tq::store::LineReader in2 = tq::store::ReaderOf(saved);
    tq::store::ReadEntries(again, in2);
    return 0;
}
