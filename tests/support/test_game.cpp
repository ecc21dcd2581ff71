// SPDX-License-Identifier: MIT
#include "support/test_game.h"

#include <fstream>
#include <sstream>

#include "model/load_puzzle.h"
#include "model/numbers.h"

namespace tidewalk::test {

const char* const kSmallPuzzle = " 7, 7, 22;D;..4===2,1.I....,|.6===3,|.I...|,|.I2..|,2-3I..|,.1-4--2,";

TempFolder::TempFolder() : before_(std::filesystem::current_path()) {
    static int made = 0;
    const auto unique = std::to_string(std::chrono::steady_clock::now().time_since_epoch().count());
    path_ = std::filesystem::temp_directory_path() / ("tidewalk-test-" + unique + "-" + std::to_string(++made));
    std::filesystem::create_directories(path_);
    std::filesystem::current_path(path_);
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    std::filesystem::current_path(before_, ignored);
    std::filesystem::remove_all(path_, ignored);
}

std::string TempFolder::Path(const std::string& name) const {
    return (path_ / name).string();
}

std::string TempFolder::Write(const std::string& name, const std::string& bytes) const {
    std::ofstream(path_ / name, std::ios::binary) << bytes;
    return Path(name);
}

std::string TempFolder::Read(const std::string& name) const {
    std::ostringstream bytes;
    bytes << std::ifstream(path_ / name, std::ios::binary).rdbuf();
    return bytes.str();
}

TestGame::TestGame()
    : Game(Seams{.prompts = SeamDoubles::prompts,
                 .filePicker = SeamDoubles::filePicker,
                 .window = SeamDoubles::window,
                 .pictures = SeamDoubles::pictures,
                 .board = SeamDoubles::board,
                 .events = SeamDoubles::events,
                 .clock = SeamDoubles::clock,
                 .batchWindow = SeamDoubles::batchWindow,
                 .clipboard = SeamDoubles::clipboard}) {
    AppFolder = folder.Path("");
    random.UseSeed(1);
}

TestGame::TestGame(const std::vector<std::string>& records) : TestGame() {
    std::string bytes;
    for (const std::string& record : records)
        bytes += record + "\r\n";
    CollectionPath = folder.Write("collection.tdw", bytes);
}

int TestGame::Load(int number) {
    return LoadPuzzle(*this, CollectionPath, number);
}

std::string Record(const std::vector<std::string>& rows) {
    std::string record =
        Str(static_cast<int>(rows.size())) + "," + Str(static_cast<int>(rows.front().size())) + ", 0;D;";
    for (const std::string& row : rows)
        record += row + ",";
    return record;
}

}  // namespace tidewalk::test
