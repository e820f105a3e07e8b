// The command line's files, linked as a library: what is written, against golden files that a
// person can read. `scripts/golden` writes them anew.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "document_frame.h"
#include "output.h"
#include "renderer.h"

// Every write of this program is cut short, and now and then interrupted.
extern "C" ssize_t __real_write(int file, const void* bytes, std::size_t n);
extern "C" __attribute__((used)) ssize_t __wrap_write(int file, const void* bytes, std::size_t n) {
    static unsigned calls = 0;
    if (++calls % 5 == 0) {
        errno = EINTR;
        return -1;
    }
    return __real_write(file, bytes, n < 7 ? n : 7);
}

// Says how often a file was flushed to the disk.
static int flushed = 0;
extern "C" __attribute__((used)) int __wrap_fsync(int /*file*/) {
    ++flushed;
    return 0;
}

namespace kavi::tool {
namespace {

namespace fs = std::filesystem;

const fs::path GOLDEN = KAVI_TEST_GOLDEN;

std::string read_file(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

// All that the files of the options are rendered to; `messages` takes the findings.
std::string render(const Options& options, std::string& messages) {
    BlockReader reader(options);
    Renderer renderer(options, nullptr);
    std::string output;
    for (Block block; reader.next(block);) {
        renderer.render(block, [&](const Rendered& piece) {
            EXPECT_TRUE(piece.all_read);
            output += piece.output;
            for (const FindingMessage& finding : piece.findings) messages += finding.text;
        });
    }
    return output;
}

struct Case {
    const char* file;
    Stage stage;
    FormatName format;
    std::vector<Field> fields = {};
};

class Rendering : public testing::TestWithParam<Case> {};

TEST_P(Rendering, IsAsInTheGoldenFile) {
    Options options;
    options.stage = GetParam().stage;
    options.format = GetParam().format;
    options.fields = GetParam().fields;
    options.files = {"input.txt", "second <&\">.txt"};
    const fs::path before = fs::current_path();
    fs::current_path(GOLDEN);  // so that the names in the output are those above
    const DocumentFrame frame = document_frame(options.format);
    std::string messages;
    std::string output{frame.begin};
    output.append(render(options, messages)).append(frame.end);
    fs::current_path(before);
    const fs::path golden = GOLDEN / GetParam().file;
    if (std::getenv("KAVI_RENEW_GOLDEN") != nullptr) {
        std::ofstream(golden, std::ios::binary) << output;
        std::ofstream(GOLDEN / "messages.txt", std::ios::binary) << messages;
    }
    EXPECT_EQ(output, read_file(golden));
    EXPECT_EQ(messages, read_file(GOLDEN / "messages.txt"));
}

INSTANTIATE_TEST_SUITE_P(
    Golden, Rendering,
    testing::Values(Case{"sentences.txt", Stage::sentences, FormatName::text},
                    Case{"speakable.txt", Stage::speakable, FormatName::text},
                    Case{"plain.txt", Stage::plain, FormatName::text},
                    Case{"words.txt", Stage::words, FormatName::text},
                    Case{"explain.txt", Stage::explain, FormatName::text},
                    Case{"sentences.jsonl", Stage::speakable, FormatName::jsonl},
                    Case{"runs.jsonl",
                         Stage::speakable,
                         FormatName::jsonl,
                         {Field::line, Field::plain, Field::findings, Field::runs}},
                    Case{"document.ssml", Stage::speakable, FormatName::ssml},
                    Case{"page.html", Stage::speakable, FormatName::html}),
    [](const auto& test) {
        std::string name = test.param.file;
        name[name.find('.')] = '_';
        return name;
    });

class Files : public testing::Test {
  protected:
    Files() { fs::create_directories(folder_); }
    ~Files() override { fs::remove_all(folder_); }

    std::string file(const std::string& name, const std::string& bytes) {
        std::ofstream(folder_ / name, std::ios::binary) << bytes;
        return folder_ / name;
    }

    fs::path folder_ = fs::temp_directory_path() / ("kavi_tool_test_" + std::to_string(getpid()));
};

TEST_F(Files, AreReadInBlocksOfWholeTextsWithTheirNumbers) {
    std::string lines;
    for (int i = 0; i < 100000; ++i) lines += "line " + std::to_string(i) + "\n";
    Options options;
    options.has_text = true;
    options.text = "a\nb";
    options.files = {file("many", lines), file("none", ""), folder_ / "missing",
                     file("long", std::string(600000, 'x') + "\nend")};
    BlockReader reader(options);
    Block block;
    ASSERT_TRUE(reader.next(block));
    EXPECT_EQ(block.input + ":" + block.bytes, "TEXT:a\nb");
    std::string read;
    std::size_t next = 1;
    while (reader.next(block) && block.input == options.files[0]) {
        EXPECT_EQ(block.first, next);
        EXPECT_EQ(block.bytes.back(), '\n');
        EXPECT_LE(block.bytes.size(), 300000U);
        for (const char c : block.bytes) next += c == '\n' ? 1 : 0;
        read += block.bytes;
    }
    EXPECT_EQ(read, lines);
    EXPECT_EQ(block.input, options.files[2]);
    EXPECT_EQ(block.failure, "No such file or directory");
    ASSERT_TRUE(reader.next(block));
    EXPECT_EQ(block.bytes.size(), 600001U);
    EXPECT_EQ(block.first, 1U);
    ASSERT_TRUE(reader.next(block));
    EXPECT_EQ(block.bytes, "end");
    EXPECT_EQ(block.first, 2U);
    EXPECT_FALSE(reader.next(block));
}

TEST_F(Files, TextsEndWithTheDelimiter) {
    Options options;
    options.delimiter = '\0';
    options.files = {file("nul", std::string("a\nq.\0c</poem>", 13))};
    std::string messages;
    EXPECT_EQ(render(options, messages), "a q <punc=ju>\nc\n");
    EXPECT_EQ(messages.substr(options.files[0].size(), 11), ":2: byte 1:");
}

TEST_F(Files, OutputTakesItsNameWhenAllIsWritten) {
    const std::string path = file("out", "before");
    fs::permissions(path, fs::perms(0640));
    fs::create_symlink("out", folder_ / "link");
    std::string bytes;
    for (int i = 0; i < 1000; ++i) bytes += std::to_string(i) + " ";
    for (const bool commits : {false, true}) {
        Output output;
        EXPECT_EQ(output.open(folder_ / "link"), 0);
        EXPECT_EQ(output.write(bytes), 0);
        EXPECT_EQ(read_file(path), "before");
        if (commits) {
            EXPECT_EQ(output.commit(), 0);
        }
        EXPECT_EQ(output.abandon(), !commits);
        EXPECT_EQ(flushed, commits ? 1 : 0);
    }
    EXPECT_EQ(read_file(path), bytes);
    EXPECT_TRUE(fs::is_symlink(folder_ / "link"));
    EXPECT_EQ(fs::status(path).permissions(), fs::perms(0640));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_), fs::directory_iterator()), 2);
    EXPECT_EQ(Output().open(folder_ / "no" / "folder"), ENOENT);
    Output full;
    ASSERT_EQ(full.open("/dev/full"), 0);
    EXPECT_EQ(full.write("a"), ENOSPC);
}

TEST(Findings, CharactersAreNamedOnceEach) {
    const std::string_view bytes = "\xc3\xa9\xe2\x82\xac\xc3\xa9";
    EXPECT_EQ(describe({1, Finding::not_spoken, 7}, bytes),
              "\"\xc3\xa9\" U+00E9, \"\xe2\x82\xac\" U+20AC are not spoken");
    EXPECT_EQ(describe({0, Finding::not_spoken, 7}, "\xef\xbf\xbf\xf3\xbf\xbf\xbf"),
              "\"\xef\xbf\xbf\" U+FFFF, \"\xf3\xbf\xbf\xbf\" U+FFFFF are not spoken");
}

TEST(Findings, OfAKindAreWrittenAndThenCounted) {
    FindingsReport report;
    EXPECT_EQ(report.summary(), "kavi-tn: no findings\n");
    const std::vector<FindingMessage> many(15, {Finding::nul_byte, "nul\n"});
    EXPECT_EQ(report.take(many).size(), 15U * 4);
    EXPECT_EQ(report.take(many).size(), 5U * 4);
    EXPECT_EQ(report.take({{Finding::reading_cut, "cut\n"}}), "cut\n");
    EXPECT_EQ(report.not_written(), "kavi-tn: 10 more: a NUL byte is read as a blank\n");
    EXPECT_EQ(report.summary(),
              "kavi-tn: 30 nul-byte: a NUL byte is read as a blank\n"
              "kavi-tn: 1 reading-cut: the reading of this number is too long and was cut\n");
}

TEST_F(Files, WhatCannotBeReadIsSaidAndTheRestIsRead) {
    Options options;
    options.files = {folder_, file("a", "a")};
    BlockReader reader(options);
    Renderer renderer(options, nullptr);
    Block block;
    ASSERT_TRUE(reader.next(block));
    renderer.render(block, [&](const Rendered& failed) {
        EXPECT_FALSE(failed.all_read);
        EXPECT_EQ(failed.failure,
                  "kavi-tn: " + folder_.string() + ": cannot be read: Is a directory\n");
    });
    ASSERT_TRUE(reader.next(block));
    renderer.render(block, [&](const Rendered& read) { EXPECT_EQ(read.output, "a\n"); });
}

}  // namespace
}  // namespace kavi::tool
