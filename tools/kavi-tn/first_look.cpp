#include "first_look.h"

#include <algorithm>

namespace kavi::tool {

namespace {

struct Signature {
    std::string_view begins_with;
    const char* notice;
};

constexpr Signature SIGNATURES[] = {
    {"\x1f\x8b", "seems to be compressed; read it by: gzip -dc FILE | kavi-tn"},
    {"BZh", "seems to be compressed; read it by: bzip2 -dc FILE | kavi-tn"},
    {std::string_view("\xfd"
                      "7zXZ\0",
                      6),
     "seems to be compressed; read it by: xz -dc FILE | kavi-tn"},
    {"\x28\xb5\x2f\xfd", "seems to be compressed; read it by: zstd -dc FILE | kavi-tn"},
    {"PK\x03\x04", "seems to be an archive or a document; read it by: unzip -p FILE | kavi-tn"},
    {"%PDF-", "seems to be a PDF document; read it by: pdftotext FILE - | kavi-tn"},
    {"\xff\xfe", "seems to be UTF-16; read it by: iconv -f UTF-16 -t UTF-8 FILE | kavi-tn"},
    {"\xfe\xff", "seems to be UTF-16; read it by: iconv -f UTF-16 -t UTF-8 FILE | kavi-tn"},
};

bool is_no_text(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return (byte < ' ' && (byte < '\t' || byte > '\r') && byte != '\x1b') || byte == 0x7f;
}

}  // namespace

std::string first_look(std::string_view bytes, const Options& options) {
    constexpr std::size_t LOOK = 4096;
    constexpr std::size_t ONE_IN = 32;
    for (const Signature& signature : SIGNATURES) {
        if (bytes.substr(0, signature.begins_with.size()) == signature.begins_with) {
            return signature.notice;
        }
    }
    const std::string_view look = bytes.substr(0, LOOK);
    const auto n = std::count_if(look.begin(), look.end(),
                                 [&](char c) { return is_no_text(c) && c != options.delimiter; });
    return static_cast<std::size_t>(n) > look.size() / ONE_IN ? "seems to be binary, not text" : "";
}

}  // namespace kavi::tool
