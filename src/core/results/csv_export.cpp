// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/csv_export.h"

#include "store/text_file.h"

namespace tq::results {

std::string CsvField(std::string_view value)
{
    const bool quote = value.find_first_of(",\"\r\n") != std::string_view::npos ||
                       (!value.empty() && (value.front() == ' ' || value.back() == ' '));
    if (!quote)
        return std::string(value);
    std::string out = "\"";
    for (size_t i = 0; i < value.size(); ++i) {
        const char c = value[i];
        if (c == '"') {
            out += "\"\"";
        } else if (c == '\n' || c == '\r') {
            out += "\r\n";
            if (c == '\r' && i + 1 < value.size() && value[i + 1] == '\n')
                ++i;
        } else {
            out += c;
        }
    }
    out += '"';
    return out;
}

std::string ResultsCsv(const ResultSet& set)
{
    std::string out = "\xEF\xBB\xBF";
    auto row = [&out](const std::vector<std::string>& fields) {
        for (size_t i = 0; i < fields.size(); ++i) {
            if (i > 0)
                out += ',';
            out += CsvField(fields[i]);
        }
        out += "\r\n";
    };
    std::vector<std::string> fields{"Date", "Address"};
    for (const auto& q : set.questions)
        fields.push_back(q.title);
    row(fields);
    for (const auto& r : set.rows) {
        fields = {r.date, r.address};
        for (size_t q = 0; q < set.questions.size(); ++q) {
            std::string cell;
            if (q < r.picks.size() && !r.picks[q].empty()) {
                for (const auto& pick : r.picks[q])
                    cell += (cell.empty() ? "" : "; ") + pick;
            } else if (q < r.cells.size()) {
                cell = r.cells[q];
            }
            fields.push_back(std::move(cell));
        }
        row(fields);
    }
    return out;
}

bool WriteResultsCsv(const ResultSet& set, const std::string& path)
{
    return store::WriteFileReplacing(path, ResultsCsv(set));
}

} // namespace tq::results
