// SPDX-License-Identifier: MIT
// A game of its own for each test, with a double of its world and a folder that goes away with it.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "support/board_text.h"
#include "support/doubles.h"
#include "support/temp_folder.h"

namespace tidewalk::test {

inline constexpr const char* kInformation = "vbinformation+vbok";
inline constexpr const char* kCritical = "vbcritical+vbok";

using Lines = std::vector<std::string>;

/// The lines as a file holds them, each with its end.
std::string Joined(const Lines& lines);
/// The lines of such a file.
Lines LinesOf(const std::string& bytes);

/// What a game is made of; it has to be there before the game is.
struct Surroundings {
    TempFolder folder;
    World world;
};

/// A game with these lines as its collection; nothing is loaded yet. Random draws are those of seed 1.
class TestGame : public Surroundings, public Game {
 public:
    explicit TestGame(const Lines& lines = {});

    /// Runs a handler; afterwards the game is whole, and the screen shows what it holds.
    template <class Result, class... Parameters, class... Arguments>
    Result Run(Result (*handler)(Game&, Parameters...), Arguments&&... arguments) {
        struct Judge {
            ~Judge() { game.ExpectWhole(); }
            const TestGame& game;
        } const judge{*this};
        return handler(*this, std::forward<Arguments>(arguments)...);
    }

    /// Loads puzzle `number` of the collection, and forgets what was logged.
    void Load(int number);
    /// Types a puzzle number and Enter.
    void TypeNumber(const std::string& number);
    /// What a fresh redraw of the board would draw.
    Lines FreshPicture(bool solution) const;
    bool ShowsSolution() const { return world.picture.calls == FreshPicture(true); }
    /// The board's numbers, a row a text.
    Lines Numbers() const;
    std::string PathOfCollection() const { return folder.Path("collection.tdw"); }

 private:
    void ExpectWhole() const;
};

/// One with puzzle `number` on the board.
struct LoadedGame : TestGame {
    explicit LoadedGame(const Lines& lines, int number = 1) : TestGame(lines) { Load(number); }
};

}  // namespace tidewalk::test
