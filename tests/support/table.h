// Tables of cases: tests/tables/*.txt, a row a line, each field in «», with \n, \r, \t, \0 and \xHH
// for bytes that a line does not show, \{12:ab} for twelve times "ab" (which may have such
// in it), and "#" before a remark.
#ifndef KAVI_TESTS_TABLE_H
#define KAVI_TESTS_TABLE_H

#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

namespace kavi {

using TableRow = std::vector<std::string>;

inline std::string unescape(const std::string& field) {
    std::string text;
    for (std::size_t i = 0; i < field.size(); ++i) {
        if (field[i] != '\\') {
            text += field[i];
            continue;
        }
        switch (field[++i]) {
            case 'n': text += '\n'; break;
            case 'r': text += '\r'; break;
            case 't': text += '\t'; break;
            case '0': text += '\0'; break;
            case '{': {
                const std::size_t colon = field.find(':', i);
                std::size_t close = i;
                for (int depth = 1; depth > 0;)
                    depth += field[++close] == '{' ? 1 : field[close] == '}' ? -1 : 0;
                const std::string once = unescape(field.substr(colon + 1, close - colon - 1));
                for (int n = std::stoi(field.substr(i + 1)); n > 0; --n) text += once;
                i = close;
                break;
            }
            default:
                text += static_cast<char>(std::stoi(field.substr(i + 1, 2), nullptr, 16));
                i += 2;
        }
    }
    return text;
}

inline std::vector<TableRow> read_table(const std::string& name) {
    static const std::string OPEN = "«";
    static const std::string CLOSE = "»";
    std::ifstream file(std::string(KAVI_TEST_TABLES) + "/" + name + ".txt");
    std::vector<TableRow> rows;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line[0] == '#') continue;
        TableRow row;
        for (std::size_t at = line.find(OPEN); at != std::string::npos; at = line.find(OPEN, at)) {
            const std::size_t begin = at + OPEN.size();
            at = line.find(CLOSE, begin);
            row.push_back(unescape(line.substr(begin, at - begin)));
        }
        rows.push_back(row);
    }
    if (rows.empty()) std::abort();  // no such table
    return rows;
}

}  // namespace kavi

#endif  // KAVI_TESTS_TABLE_H
