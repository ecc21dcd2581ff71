// SPDX-License-Identifier: MIT
#include "model/config_file.h"

#include <algorithm>
#include <array>
#include <optional>

#include "model/job.h"
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
    constexpr Colour kDarkRed = Rgb(128, 0, 0);
    constexpr Colour kLightGrey = Rgb(192, 192, 192);
    return {"xp.col",
            {1, 0, 250, 12, static_cast<int>(kDefaultNodeColour), static_cast<int>(kWhite), static_cast<int>(kDarkRed),
             static_cast<int>(kLightGrey), 1, 0},
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

/// What the file holds; nothing when it is no whole configuration. Throws FileError.
std::optional<Configuration> Read(Game& game, const std::string& path) {
    if (FileLength(path) > kLargestFile) return std::nullopt;
    Configuration read;
    std::string line;
    game.files.CloseAll();
    game.files.Open(1, path, FileMode::Input);
    if (!game.files.ReadLine(1, line)) return std::nullopt;
    read.schemeName = Trim(std::string_view(line).substr(0, line.find(',')));
    if (!game.files.ReadLine(1, line)) return std::nullopt;
    const auto numbers = ReadNumbers(line);
    if (!numbers || !game.files.ReadLine(1, read.collection)) return std::nullopt;
    read.numbers = *numbers;
    return read;
}

/// Such colours were references to a table of the system once; no player sees what they meant.
Colour ColourOr(int number, Colour otherwise) {
    return number < 0 || number > static_cast<int>(kWhite) ? otherwise : static_cast<Colour>(number);
}

void Take(Game& game, const Configuration& from) {
    const Numbers& n = from.numbers;
    game.ColourSchemeName = from.schemeName;
    game.PuzzleNumber = std::max(n[0], 1);
    game.NodeShape = n[1] == 1 ? 1 : 0;
    game.CellSize = std::clamp(n[2], kSmallestCell, kLargestCell);
    game.reservedNumber = n[3];
    game.NodeColour = ColourOr(n[4], kDefaultNodeColour);
    game.GivenColour = ColourOr(n[5], kDefaultGivenColour);
    game.ChainColour = ColourOr(n[6], kDefaultChainColour);
    game.GridColour = ColourOr(n[7], kDefaultGridColour);
    game.ShowLines = n[8] == 0 ? 0 : 1;
    game.SchemeColours[kAdjustedEntry] = ColourOr(n[9], 0);
}

Configuration Current(const Game& game) {
    return {game.ColourSchemeName,
            {game.PuzzleNumber, game.NodeShape, game.CellSize, game.reservedNumber, static_cast<int>(game.NodeColour),
             static_cast<int>(game.GivenColour), static_cast<int>(game.ChainColour), static_cast<int>(game.GridColour),
             game.ShowLines, static_cast<int>(game.SchemeColours[kAdjustedEntry])},
            game.CollectionPath};
}

void Write(const std::string& path, const Configuration& configuration) {
    ReplaceFile(path, [&](std::ostream& out) {
        out << configuration.schemeName << "\r\n";
        for (const int number : configuration.numbers)
            out << Str(number) << ' ';
        out << "\r\n" << configuration.collection << "\r\n";
    });
}

void Recover(Game& game, const std::string& path) {
    game.prompts.Show("Configuration file:\r\n" + path + "\r\ncould not be accessed, new file will be created", "vbok");
    Take(game, Defaults());
    try {
        Write(path, Defaults());
    } catch (const FileError& error) {
        // The player has read that a file will be made.
        game.window.SetText(Control::pb, "Configuration file not created: " + std::string(error.what()));
    }
}

}  // namespace

void ReadcfgFile(Game& game) {
    const std::string path = PathOf(game);
    std::optional<Configuration> read;
    try {
        read = Read(game, path);
    } catch (const FileError&) {
        read = std::nullopt;
    }
    game.files.CloseAll();
    if (!read) return Recover(game, path);
    Take(game, *read);
    game.CollectionPath = read->collection;
}

int SavecfgFile(Game& game) {
    const std::string path = PathOf(game);
    if (!JobRuns(game)) game.files.CloseAll();
    try {
        Write(path, Current(game));
    } catch (const FileError&) {
        game.prompts.Show("Configuration file:\r\n" + path + "\r\ncould not be accessed, options not saved", "vbok");
        return 1;
    }
    return 0;
}

void mnuoptsave_Click(Game& game) {
    if (SavecfgFile(game) == NoValue) game.window.SetText(Control::pb, "Options saved");
}

}  // namespace tidewalk
