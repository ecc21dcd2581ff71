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
        std::string old = fs::is_regular_file(name) ? folder_.Read(name) : "";
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
            case 7:
                std::shuffle(old.begin(), old.end(), random_);
                folder_.Write(kind == 6 ? name : "other", old);
                if (kind == 7) fs::rename("other", name);
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

    const TempFolder& folder_;
    std::mt19937 random_{1};
};

std::string ReadWithoutIndex(const std::string& path, int number) {
    std::string line;
    bool there = false;
    const std::string reason = Refusal([&] { there = ReadCollectionLine(path, number, line); });
    return there ? line : reason == "done" ? "none" : "closed";
}

std::string ReadWith(LineIndex& index, const std::string& path, int number) {
    std::string line;
    const LineRead read = index.Read(path, number, line);
    return read == LineRead::Done ? line : read == LineRead::NoSuchLine ? "none" : "closed";
}

TEST(LineIndex, AnswersAsWithoutItWhateverBecomesOfTheFile) {
    constexpr int kFiles = 60;
    constexpr int kRounds = 10;
    const TempFolder folder;
    Meddler meddler(folder);
    std::vector<LineIndex> indices(kFiles);
    int remembered = 0;
    const auto compare = [&](int i) {
        const std::string name = std::to_string(i);
        const int number = static_cast<int>(meddler.Draw(12));
        EXPECT_EQ(ReadWith(indices[i], name, number), ReadWithoutIndex(name, number)) << name;
        EXPECT_EQ(indices[i].Count(name), CountLines(name)) << name;
        EXPECT_EQ(ReadWith(indices[i], name, number), ReadWithoutIndex(name, number)) << name;
        remembered += indices[i].Advance(name, Never).lines > 0;
    };
    for (int round = 0; round < kRounds; ++round) {
        for (int i = 0; i < kFiles; ++i) {
            meddler.Change(std::to_string(i));
            compare(i);
        }
        // What is remembered now is what the next round changes.
        LetFilesSettle();
        for (int i = 0; i < kFiles; ++i)
            compare(i);
    }
    EXPECT_GT(remembered, kRounds * kFiles / 3);
}

TEST(LineIndex, FindsLinesInSlicesAndFetchesThose) {
    constexpr int kLines = 200000;
    const TempFolder folder;
    std::string bytes = "\xEF\xBB\xBF";
    for (int number = 1; number <= kLines; ++number)
        bytes += "line " + std::to_string(number) + (number == kLines ? "" : number % 2 == 0 ? "\n" : "\r\n");
    const std::string path = folder.Write("many", bytes);
    folder.Write("mark", "\xEF\xBB\xBF");
    LineIndex index;
    std::string line;
    EXPECT_EQ(index.Count("/proc/version"), 1);
    LetFilesSettle();
    EXPECT_EQ(index.Count("/proc/version"), 1) << "made up when it is read, it has no size";
    EXPECT_EQ(index.Count("mark"), 0);
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
        EXPECT_EQ(ReadWith(index, path, number), "line " + std::to_string(number));
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
    EXPECT_EQ(ReadWith(index, path, 2), "122");
    ::munmap(at, 9);
}

TEST(LineIndex, TrustsTimesThatAreOlderThanATick) {
    constexpr std::int64_t kMillisecond = 1'000'000;
    constexpr std::int64_t kNow = 1'000'000 * kMillisecond;
    const auto settled = [](std::int64_t written, std::int64_t changed) {
        return IsSettled({true, 1, 1, 1, kNow + written * kMillisecond, kNow + changed * kMillisecond}, kNow);
    };
    EXPECT_TRUE(settled(-51, -51));
    EXPECT_FALSE(settled(-51, -50) || settled(-50, -51));
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
