#include "first_look.h"

#include <algorithm>

namespace kavi::tool {

namespace {

struct Signature {
    std::size_t at;
    std::string_view bytes;
    const char* what;
};

constexpr const char* UTF_32 = "UTF-32; type: iconv -f UTF-32 -t UTF-8 FILE | kavi-tn";

// The first that fits counts.
constexpr Signature SIGNATURES[] = {
    {0, "\x1f\x8b", "compressed; type: gzip -dc FILE | kavi-tn"},
    {4, "1AY&SY", "compressed; type: bzip2 -dc FILE | kavi-tn"},
    {0, "\xfd\x37zXZ", "compressed; type: xz -dc FILE | kavi-tn"},
    {0, "\x28\xb5\x2f\xfd", "compressed; type: zstd -dc FILE | kavi-tn"},
    {0, "PK\x03\x04", "an archive or a document; type: unzip -p FILE | kavi-tn"},
    {0, "%PDF-", "a PDF document; type: pdftotext FILE - | kavi-tn"},
    {0, {"\xff\xfe\0\0", 4}, UTF_32},
    {0, {"\0\0\xfe\xff", 4}, UTF_32},
};

bool is_no_text(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return (byte < ' ' && (byte < '\t' || byte > '\r') && byte != '\x1b') || byte == 0x7f;
}

// How many NUL bytes there are at even or at odd offsets.
std::size_t count_nuls(std::string_view bytes, std::size_t first) {
    std::size_t n = 0;
    for (std::size_t i = first; i < bytes.size(); i += 2) n += bytes[i] == '\0' ? 1 : 0;
    return n;
}

}  // namespace

std::string other_than_text(std::string_view bytes, char delimiter) {
    for (const auto& [at, signature, what] : SIGNATURES) {
        if (bytes.size() > at && bytes.substr(at, signature.size()) == signature) return what;
    }
    // UTF-16 has a NUL byte beside each letter of English.
    const std::string_view look = bytes.substr(0, FIRST_LOOK);
    const std::size_t even = count_nuls(look, 0);
    const std::size_t odd = count_nuls(look, 1);
    const std::string_view mark = look.substr(0, 2);
    if ((mark == "\xff\xfe" || mark == "\xfe\xff") && even + odd > 0) {
        return "UTF-16; type: iconv -f UTF-16 -t UTF-8 FILE | kavi-tn";
    }
    if (look.size() < LONGEST_SIGNATURE || delimiter == '\0') return {};
    if (even == 0 && odd > look.size() / 3) {
        return "UTF-16; type: iconv -f UTF-16LE -t UTF-8 FILE | kavi-tn";
    }
    if (odd == 0 && even > look.size() / 3) {
        return "UTF-16; type: iconv -f UTF-16BE -t UTF-8 FILE | kavi-tn";
    }
    return {};
}

bool is_binary(std::string_view bytes, char delimiter) {
    constexpr std::size_t ONE_IN = 32;
    const std::string_view look = bytes.substr(0, FIRST_LOOK);
    const auto n = std::count_if(look.begin(), look.end(),
                                 [&](char c) { return is_no_text(c) && c != delimiter; });
    return static_cast<std::size_t>(n) > look.size() / ONE_IN;
}

}  // namespace kavi::tool
