// SPDX-License-Identifier: MIT
// Reaching lines through remembered places, beside a reader who remembers nothing.
#include "model/line_index.h"

#include <gtest/gtest.h>

#include <sys/mman.h>

#include <chrono>
#include <filesystem>
#include <random>
#include <thread>

#include "model/collection_file.h"
#include "model/file_error.h"
#include "support/temp_folder.h"

namespace tidewalk::test {
namespace {

namespace fs = std::filesystem;

bool Never() {
    return false;
}

void LetFilesSettle() {
    std::this_thread::sleep_for(std::chrono::milliseconds(60));
}

/// What a file is done to behind the back of an index that knows it.
class Meddler {
 public:
    explicit Meddler(const TempFolder& folder) : folder_(folder) {}

    std::size_t Draw(std::size_t count) { return random_() % count; }

    void Change(const std::string& name) {
        std::error_code error;
        const std::string old = fs::is_regular_file(name) ? folder_.Read(name) : "";
        const auto time = fs::last_write_time(name, error);
        const std::size_t kind = Draw(14);
        if (fs::is_directory(name)) fs::remove(name);
        fs::permissions(name, fs::perms::owner_all, error);
        switch (kind) {
            case 0:
                return void(fs::remove(name));
            case 1:
                fs::remove(name);
                return void(fs::create_directory(name));
            case 2:
                return fs::permissions(name, fs::perms::none, error);
            case 3:
                folder_.Write(name, old);
                return fs::resize_file(name, Draw(old.size() + 1));
            case 4:
                AppendRecord(name, Bytes(10));
                return;
            case 5:
                Refusal([&] { DeleteLine(name, 1, std::nullopt, ""); });
                return;
            case 6:
                folder_.Write("other", Shuffled(old));
                fs::rename("other", name);
                return fs::last_write_time(name, time, error);
            case 7:
                folder_.Write(name, Shuffled(old));
                return fs::last_write_time(name, time, error);
            default:
                folder_.Write(name, (Draw(3) == 0 ? "\xEF\xBB\xBF" : "") + Bytes(Draw(200)));
        }
    }

 private:
    std::string Bytes(std::size_t count) {
        std::string bytes(count, ' ');
        for (char& byte : bytes)
            byte = "\n\r\n1,\0\xEF\xBB\xBF"[Draw(9)];
        return bytes;
    }
    std::string Shuffled(std::string bytes) {
        std::shuffle(bytes.begin(), bytes.end(), random_);
        return bytes;
    }

    const TempFolder& folder_;
    std::mt19937 random_{1};
};

/// Asks for a line and says what came, as `LineIndex::Read` tells it.
std::string ReadWithoutIndex(const std::string& path, int number) {
    std::string line;
    try {
        return ReadCollectionLine(path, number, line) ? "line " + line : "none";
    } catch (const FileError&) {
        return "closed";
    }
}

std::string ReadWith(LineIndex& index, const std::string& path, int number) {
    std::string line;
    const LineRead read = index.Read(path, number, line);
    return read == LineRead::Done ? "line " + line : read == LineRead::NoSuchLine ? "none" : "closed";
}

TEST(LineIndex, AnswersAsWithoutItWhateverBecomesOfTheFile) {
    constexpr int kFiles = 60;
    constexpr int kRounds = 24;
    const TempFolder folder;
    Meddler meddler(folder);
    std::vector<LineIndex> indices(kFiles);
    for (int round = 0; round < kRounds; ++round) {
        for (int i = 0; i < kFiles; ++i) {
            const std::string name = std::to_string(i);
            meddler.Change(name);
            for (int asked = 0; asked < 3; ++asked) {
                const int number = static_cast<int>(meddler.Draw(12));
                EXPECT_EQ(ReadWith(indices[i], name, number), ReadWithoutIndex(name, number)) << name << " " << round;
                const bool count = meddler.Draw(2) == 0;
                EXPECT_TRUE(!count || indices[i].Count(name) == CountLines(name)) << name << " " << round;
            }
        }
        // Every other round finds the files settled, so that the next one changes what is remembered.
        if (round % 2 == 0) LetFilesSettle();
        int remembered = 0;
        for (int i = 0; i < kFiles; ++i) {
            const std::string name = std::to_string(i);
            EXPECT_EQ(indices[i].Count(name), CountLines(name)) << name << " " << round;
            remembered += indices[i].Advance(name, Never).lines > 0;
        }
        EXPECT_GT(remembered, round % 2 == 0 ? kFiles / 3 : -1);
    }
}

TEST(LineIndex, FindsLinesInSlicesAndFetchesThose) {
    constexpr int kLines = 200000;
    const TempFolder folder;
    std::string bytes = "\xEF\xBB\xBF";
    for (int number = 1; number <= kLines; ++number)
        bytes += "line " + std::to_string(number) + (number == kLines ? "" : number % 2 == 0 ? "\n" : "\r\n");
    const std::string path = folder.Write("many", bytes);
    LineIndex index;
    std::string line;
    LetFilesSettle();
    std::vector<LineIndex::Progress> slices;
    while (slices.size() < 1000 && (slices.empty() || !slices.back().all)) {
        bool once = true;
        slices.push_back(index.Advance(path, [&] { return std::exchange(once, false); }));
        EXPECT_TRUE(index.FetchKnown(path, slices.back().lines, line));
        EXPECT_EQ(line, "line " + std::to_string(slices.back().lines));
        EXPECT_FALSE(index.FetchKnown(path, slices.back().lines + 1, line));
    }
    EXPECT_EQ(slices.size(), bytes.size() / (256 * 1024) + 1);
    EXPECT_EQ(slices.back().lines, kLines);
    for (int number = 1; number <= kLines; number += 997)
        EXPECT_EQ(ReadWith(index, path, number), "line line " + std::to_string(number));
    AppendRecord(path, "more");
    EXPECT_FALSE(index.FetchKnown(path, 1, line));
    EXPECT_NE(index.Advance(path, WithoutEnd).edition, slices.back().edition);
    EXPECT_EQ(index.Count(path), kLines + 1);
    for (const char* nothing : {"missing", "empty"}) {
        if (*nothing == 'e') folder.Write(nothing, "");
        EXPECT_TRUE(index.Advance(nothing, WithoutEnd).all) << nothing;
    }
}

TEST(LineIndex, LooksForTheLineEndBeforeThePlace) {
    const TempFolder folder;
    const std::string path = folder.Write("a", "11\n22\n33\n");
    const SystemFile file = *SystemFile::Open(path, SystemFile::Mode::Change);
    void* const at = ::mmap(nullptr, 9, PROT_READ | PROT_WRITE, MAP_SHARED, file.Descriptor(), 0);
    ASSERT_NE(at, MAP_FAILED);
    char* const bytes = static_cast<char*>(at);
    // The system notes a change when a page is first written to, and not again until that is on the disk.
    bytes[0] = '1';
    LetFilesSettle();
    LineIndex index;
    EXPECT_EQ(index.Count(path), 3);
    EXPECT_TRUE(index.Advance(path, Never).all);
    std::swap(bytes[1], bytes[2]);
    EXPECT_EQ(ReadWith(index, path, 2), "line 122");
    ::munmap(at, 9);
}

TEST(LineIndex, TrustsTimesThatAreOlderThanATick) {
    constexpr std::int64_t kMillisecond = 1'000'000;
    constexpr std::int64_t kNow = 1'000'000 * kMillisecond;
    const auto settled = [](std::int64_t written, std::int64_t changed) {
        return IsSettled({true, 1, 1, 1, kNow + written * kMillisecond, kNow + changed * kMillisecond}, kNow);
    };
    EXPECT_TRUE(settled(-51, -51));
    EXPECT_FALSE(settled(-51, -50) && settled(-50, -51));
    EXPECT_FALSE(settled(-51, 1) || settled(-51, 9999)) << "a clock that is ahead of ours";
    EXPECT_TRUE(settled(51, -51)) << "a time that somebody has set";
    EXPECT_FALSE(settled(49, -51));
    EXPECT_FALSE(settled(-9001, -2000)) << "whole seconds";
    EXPECT_TRUE(settled(-3000, -3000));
    const TempFolder folder;
    int trusted = 0;
    for (int written = 0; written < 20; ++written)
        trusted += LineIndex().Advance(folder.Write("a", "1\n"), WithoutEnd).all;
    EXPECT_LT(trusted, 20) << "a busy machine may take long between the two, but not every time";
}

}  // namespace
}  // namespace tidewalk::test
