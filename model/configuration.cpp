// SPDX-License-Identifier: MIT
#include "model/configuration.h"

#include <algorithm>
#include <array>
#include <optional>

#include "model/file_error.h"
#include "model/line_reader.h"
#include "model/load_puzzle.h"
#include "model/numbers.h"
#include "model/paths.h"
#include "model/replace_file.h"

namespace tidewalk {

namespace {

/// A name, ten numbers and a path are a few hundred bytes; what is far larger is no configuration.
constexpr std::uint64_t kLargestFile = 64 * 1024;

constexpr std::size_t kNumbers = 10;
using Numbers = std::array<int, kNumbers>;

struct Configuration {
    std::string schemeName;
    Numbers numbers{};
    std::string collection;
};

std::string PathOf(const Game& game) {
    return game.AppFolder + "tide.cfg";
}

Configuration Defaults() {
    return {"xp.col",
            {1, 0, 250, 12, static_cast<int>(kDefaultNodeColour), static_cast<int>(kFirstGivenColour),
             static_cast<int>(kFirstChainColour), static_cast<int>(kFirstGridColour), 1, 0},
            "puzzles.txt"};
}

bool IsNumber(std::string_view field) {
    return field.find_first_of("0123456789") != std::string_view::npos &&
           field.find_first_not_of("+-.0123456789eEdD") == std::string_view::npos;
}

/// The ten numbers of `line`, between blanks or commas; nothing when there are fewer or one is no number.
std::optional<Numbers> ReadNumbers(std::string_view line) {
    constexpr std::string_view kSeparators = " \t,";
    Numbers numbers{};
    for (int& number : numbers) {
        line.remove_prefix(std::min(line.find_first_not_of(kSeparators), line.size()));
        const std::string_view field = line.substr(0, line.find_first_of(kSeparators));
        if (!IsNumber(field)) return std::nullopt;
        number = RoundedVal(field);
        line.remove_prefix(field.size());
    }
    return numbers;
}

/// What the file holds; nothing when it cannot be read or is no whole configuration.
std::optional<Configuration> Read(const std::string& path) {
    if (FileLength(path) > kLargestFile) return std::nullopt;
    try {
        Configuration read;
        LineReader lines(path);
        std::string line;
        if (!lines.Next(line)) return std::nullopt;
        read.schemeName = Trim(std::string_view(line).substr(0, line.find(',')));
        if (!lines.Next(line)) return std::nullopt;
        const auto numbers = ReadNumbers(line);
        if (!numbers || !lines.Next(read.collection)) return std::nullopt;
        read.numbers = *numbers;
        return read;
    } catch (const FileError&) {
        return std::nullopt;
    }
}

/// Such colours were references to a table of the system once; no player sees what they meant.
Colour ColourOr(int number, Colour otherwise) {
    return number < 0 || number > static_cast<int>(kWhite) ? otherwise : static_cast<Colour>(number);
}

void Take(Game& game, const Configuration& from) {
    const Numbers& n = from.numbers;
    Options& options = game.options;
    options.ColourSchemeName = from.schemeName;
    game.collection.PuzzleNumber = std::max(n[0], 1);
    options.NodeShape = n[1] == 1 ? 1 : 0;
    game.board.layout.CellSize = std::clamp(n[2], kSmallestCell, kLargestCell);
    options.reservedNumber = n[3];
    options.NodeColour = ColourOr(n[4], kDefaultNodeColour);
    options.GivenColour = ColourOr(n[5], kDefaultGivenColour);
    options.ChainColour = ColourOr(n[6], kDefaultChainColour);
    options.GridColour = ColourOr(n[7], kDefaultGridColour);
    options.ShowLines = n[8] == 0 ? 0 : 1;
    options.SchemeColours[kAdjustedEntry] = ColourOr(n[9], 0);
}

Configuration Current(const Game& game) {
    const Options& options = game.options;
    return {options.ColourSchemeName,
            {game.collection.PuzzleNumber, options.NodeShape, game.board.layout.CellSize, options.reservedNumber,
             static_cast<int>(options.NodeColour), static_cast<int>(options.GivenColour),
             static_cast<int>(options.ChainColour), static_cast<int>(options.GridColour), options.ShowLines,
             static_cast<int>(options.SchemeColours[kAdjustedEntry])},
            game.collection.CollectionPath};
}

void Write(const std::string& path, const Configuration& configuration) {
    ReplaceFile(path, [&](std::ostream& out) {
        out << configuration.schemeName << kLineEnd;
        for (const int number : configuration.numbers)
            out << Str(number) << ' ';
        out << kLineEnd << configuration.collection << kLineEnd;
    });
}

void Recover(Game& game, const std::string& path) {
    game.prompts.Show("Configuration file:\r\n" + path + "\r\ncould not be accessed, new file will be created", "vbok");
    Take(game, Defaults());
    try {
        Write(path, Defaults());
    } catch (const FileError& error) {
        // The player has read that a file will be made.
        game.window.SetText(WindowText::Status, "Configuration file not created: " + std::string(error.what()));
    }
}

}  // namespace

void ReadcfgFile(Game& game) {
    const std::string path = PathOf(game);
    CloseFiles(game);
    const std::optional<Configuration> read = Read(path);
    if (!read) return Recover(game, path);
    Take(game, *read);
    game.collection.CollectionPath = read->collection;
}

void WriteFirstConfiguration(const Game& game) {
    try {
        Write(PathOf(game), Defaults());
    } catch (const FileError&) {
        // The reader finds it missing and says so.
    }
}

bool SavecfgFile(Game& game) {
    const std::string path = PathOf(game);
    CloseFiles(game);
    try {
        Write(path, Current(game));
    } catch (const FileError&) {
        game.prompts.Show("Configuration file:\r\n" + path + "\r\ncould not be accessed, options not saved", "vbok");
        return false;
    }
    return true;
}

void mnuoptsave_Click(Game& game) {
    if (SavecfgFile(game)) game.window.SetText(WindowText::Status, "Options saved");
}

}  // namespace tidewalk
