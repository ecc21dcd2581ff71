// SPDX-License-Identifier: MIT
#include "generator/shuffle.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "model/job.h"
#include "model/numbers.h"
#include "model/replace_file.h"

namespace tidewalk {

namespace {

/// Keys are 1..99997.
constexpr int kKeys = 99997;

/// So many lines pass between two looks at whether to go on.
constexpr std::size_t kLinesPerStep = 256;

struct KeyedLine {
    int key;
    std::string_view line;
};

/// Thrown from one end of this file to the other when the work was stopped.
struct Stopped {};

[[noreturn]] void FailToRead(const std::string& path, int reason) {
    throw FileError(path + ": " + std::strerror(reason != 0 ? reason : EIO));
}

/// The whole file. It is read through a stream of its own, since a puzzle that is loaded meanwhile closes the numbered
/// files.
std::string ReadWhole(const std::string& path, const ShuffleCounts& counts, const ShuffleStep& step) {
    std::error_code ignored;
    const auto status = std::filesystem::status(path, ignored);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
        FailToRead(path, std::filesystem::is_directory(status) ? EISDIR : EINVAL);
    }
    errno = 0;
    std::ifstream file(path, std::ios::binary);
    if (!file) FailToRead(path, errno);
    constexpr std::size_t kPiece = 1024 * 1024;
    std::string bytes;
    std::vector<char> piece(kPiece);
    while (file.read(piece.data(), kPiece) || file.gcount() > 0) {
        bytes.append(piece.data(), static_cast<std::size_t>(file.gcount()));
        if (!step(counts)) throw Stopped{};
    }
    if (file.bad()) FailToRead(path, errno);
    return bytes;
}

/// Takes the next line off `rest`, without its end.
std::string_view TakeLine(std::string_view& rest) {
    const std::size_t end = rest.find('\n');
    std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    return line;
}

/// The first of all equal lines, each with a random key, in the order of the keys. Equal keys fall to byte order.
std::vector<KeyedLine> DistinctLines(std::string_view bytes, RandomSource& random, ShuffleCounts& counts,
                                     const ShuffleStep& step) {
    std::unordered_set<std::string_view> seen;
    std::vector<KeyedLine> lines;
    while (!bytes.empty()) {
        const std::string_view line = TakeLine(bytes);
        ++counts.lines;
        if (seen.insert(line).second) {
            lines.push_back({random.Draw(kKeys) + 1, line});
        } else {
            ++counts.duplicates;
        }
        if (counts.lines % kLinesPerStep == 0 && !step(counts)) throw Stopped{};
    }
    std::sort(lines.begin(), lines.end(),
              [](const KeyedLine& a, const KeyedLine& b) { return a.key != b.key ? a.key < b.key : a.line < b.line; });
    return lines;
}

/// Shows how far a shuffle is in the status line and lets events happen; false when it is to stop.
class ShownProgress {
 public:
    ShownProgress(Game& game, Job& job) : game_(game), job_(job) {}

    bool operator()(const ShuffleCounts& counts) {
        const bool writing = counts.written > 0;
        const std::string text = writing ? "random" + Str(static_cast<int>(counts.written))
                                         : "Dups" + Str(static_cast<int>(counts.duplicates));
        if (text != shown_ && game_.CancelFlag != YesValue) {
            game_.window.SetText(Control::pb, text);
            shown_ = text;
        }
        if (writing) game_.window.SetProgress(static_cast<int>(counts.written), static_cast<int>(counts.Kept()));
        PollEvents(game_);
        // The lines are the job's own: another puzzle may be loaded without harm.
        if (job_.Superseded()) job_.Adopt();
        return game_.CancelFlag != YesValue && !game_.ending;
    }

 private:
    Game& game_;
    Job& job_;
    std::string shown_;
};

/// What the box at the end says; "" when the shuffle was cancelled.
std::string Shuffle(Game& game, const std::string& input, const std::string& output) {
    const BusyPointer pointer(game);
    Job job(game);
    game.List2.Clear();
    game.List1.Clear();
    game.files.CloseAll();
    ShuffleCounts counts;
    try {
        const bool complete = ShuffleLines(input, output, game.random, counts, ShownProgress(game, job));
        return complete ? output + " randomized" : "";
    } catch (const FileError& error) {
        return "The collection could not be shuffled:\r\n" + std::string(error.what());
    }
}

}  // namespace

bool ShuffleLines(const std::string& input, const std::string& output, RandomSource& random, ShuffleCounts& counts,
                  const ShuffleStep& step) {
    try {
        const std::string bytes = ReadWhole(input, counts, step);
        const std::vector<KeyedLine> lines = DistinctLines(bytes, random, counts, step);
        ReplaceFile(output, [&](std::ostream& file) {
            for (const KeyedLine& line : lines) {
                file.write(line.line.data(), static_cast<std::streamsize>(line.line.size()));
                file.write("\r\n", 2);
                if (++counts.written % kLinesPerStep == 0 && !step(counts)) throw Stopped{};
            }
        });
    } catch (const Stopped&) {
        return false;
    }
    return true;
}

std::string ShuffledName(const std::string& path) {
    const std::size_t dot = path.rfind('.');
    return dot == std::string::npos ? "" : path.substr(0, dot) + "-noduprandom.txt";
}

void Command5_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    const std::string input = game.CollectionPath;
    const std::string output = ShuffledName(input);
    if (output.empty()) return;
    const std::string message = Shuffle(game, input, output);
    game.window.SetText(Control::pb, "");
    if (!message.empty() && !game.ending) game.prompts.SystemBox(message, SystemButtons::Ok);
}

}  // namespace tidewalk
