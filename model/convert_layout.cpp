// SPDX-License-Identifier: MIT
#include "model/convert_layout.h"

#include "model/job.h"
#include "model/numbers.h"

namespace tidewalk {

namespace {

constexpr int kMostRows = 1000;  ///< a puzzle without an end is ended there

/// The lines of file 1 but the last.
class UsableLines {
 public:
    explicit UsableLines(NumberedFiles& files) : files_(files) { hasNext_ = files_.ReadLine(1, next_); }

    /// The next line, or false when only the last line of the file is left.
    bool Take(std::string& line) {
        line.swap(next_);
        const bool usable = hasNext_ && files_.ReadLine(1, next_);
        hasNext_ = usable;
        return usable;
    }

 private:
    NumberedFiles& files_;
    std::string next_;
    bool hasNext_ = false;
};

/// The first letter of the first word.
std::string KindOf(std::string_view line) {
    return std::string(Trim(line).substr(0, 1));
}

/// Reads the rows of a puzzle on to `record`; false when the file ended in them.
bool TakeRows(UsableLines& lines, std::string& record) {
    std::string line;
    for (int row = 0; row < kMostRows; ++row) {
        if (!lines.Take(line)) return false;
        if (line.starts_with('#')) break;
        record += line + ",";
    }
    return true;
}

}  // namespace

std::string ConvertedPath(const std::string& collectionPath) {
    const std::size_t dot = collectionPath.find('.');
    return dot == std::string::npos ? "" : collectionPath.substr(0, dot) + "-newformat.txt";
}

void ConvertLayout(Game& game, const std::string& from, const std::string& to) {
    game.files.CloseAll();
    game.files.Open(1, from, FileMode::Input);
    game.files.Open(2, to, FileMode::Output);
    UsableLines lines(game.files);
    std::string kind;
    std::string header;
    bool more = lines.Take(header);
    while (more && lines.Take(kind) && lines.Take(header)) {
        std::string record = header + ";" + KindOf(kind) + ";";
        more = TakeRows(lines, record);
        game.files.Print(2, record);
    }
    game.files.Close(1);
    game.files.Close(2);
}

void Command3_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    const std::string to = ConvertedPath(game.CollectionPath);
    if (to.empty()) return;
    try {
        ConvertLayout(game, game.CollectionPath, to);
    } catch (const FileError& error) {
        game.files.CloseAll();
        game.prompts.SystemBox(std::string("The collection could not be converted.\r\n") + error.what(),
                               SystemButtons::Ok);
        return;
    }
    game.prompts.SystemBox(to + " done", SystemButtons::Ok);
}

void FindMarkedLine(Game& game, int index, int& number, int& failed) {
    std::string line;
    for (int marked = 0; game.files.ReadLine(1, line);) {
        if (!line.starts_with('#')) continue;
        if (marked++ < index) continue;
        number = RoundedVal(std::string_view(line).substr(1));
        return;
    }
    failed = -1;
}

}  // namespace tidewalk
