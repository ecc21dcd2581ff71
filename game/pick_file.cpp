// SPDX-License-Identifier: MIT
#include "game/pick_file.h"

#include <filesystem>

#include "model/paths.h"

namespace tidewalk {

std::string PickFile(Game& game, const FileRequest& request) {
    std::error_code ignored;
    const auto folder = std::filesystem::current_path(ignored);
    std::string path = game.filePicker.Pick(request);
    std::filesystem::current_path(folder, ignored);
    return path;
}

bool ConfirmOverwrite(Game& game, const std::string& name) {
    if (FileLength(name) == 0) return true;
    return game.prompts.SystemBox("OverWrite file: " + name + " ?", SystemButtons::YesNo) == kYes;
}

}  // namespace tidewalk
