// SPDX-License-Identifier: MIT
// A game of its own for each test, with doubles for every seam and a folder that goes away with it.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "board/drawing.h"
#include "model/game.h"
#include "support/doubles.h"

namespace tidewalk::test {

/// A folder that exists for as long as the object. It is the current directory meanwhile.
class TempFolder {
 public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    /// The full path of a file in the folder.
    std::string Path(const std::string& name) const;
    /// Writes the bytes as they are and returns the file's path.
    std::string Write(const std::string& name, const std::string& bytes) const;
    std::string Read(const std::string& name) const;

 private:
    std::filesystem::path path_;
    std::filesystem::path before_;
};

struct SeamDoubles {
    TempFolder folder;
    ExpectedPrompts prompts;
    ExpectedFiles filePicker;
    WindowDouble window;
    PicturesDouble pictures;
    DrawnBoard board;
    EventsDouble events;
    ClockDouble clock;
    BatchDouble batchWindow;
    ClipboardDouble clipboard;
};

/// A game with its doubles. Random draws are those of seed 1.
class TestGame : private SeamDoubles, public Game {
 public:
    TestGame();
    /// A game whose collection is a file of these lines; nothing is loaded yet.
    explicit TestGame(const std::vector<std::string>& records);

    /// Loads puzzle `number` of the collection.
    int Load(int number);

    using Game::board;
    using SeamDoubles::folder;
    ExpectedPrompts& prompts = SeamDoubles::prompts;
    ExpectedFiles& filePicker = SeamDoubles::filePicker;
    WindowDouble& window = SeamDoubles::window;
    PicturesDouble& pictures = SeamDoubles::pictures;
    EventsDouble& events = SeamDoubles::events;
    ClockDouble& clock = SeamDoubles::clock;
    BatchDouble& batchWindow = SeamDoubles::batchWindow;
    ClipboardDouble& clipboard = SeamDoubles::clipboard;
};

/// A record with the header that `rows` need and these rows of the board.
std::string Record(const std::vector<std::string>& rows);

/// A small puzzle of 7x7 with its solution on ten links.
extern const char* const kSmallPuzzle;

}  // namespace tidewalk::test
