// SPDX-License-Identifier: MIT
#include "board/print_document.h"

#include <algorithm>
#include <sstream>

#include "game/pick_file.h"
#include "model/numbers.h"

namespace tidewalk {

namespace {

/// True when the name ends as one of the patterns does: ".svg" for "*.png;*.svg".
bool EndsAsOneOf(const std::string& name, const std::string& patterns) {
    std::istringstream endings(patterns);
    for (std::string pattern; std::getline(endings, pattern, ';');) {
        if (LowerCase(name).ends_with(pattern.substr(1))) return true;
    }
    return false;
}

}  // namespace

std::string CurrentPrinter(Game& game) {
    const std::vector<std::string> names = game.printers.Names();
    if (std::find(names.begin(), names.end(), game.printerName) != names.end()) return game.printerName;
    return names.empty() ? "" : names.front();
}

std::string AskFileName(Game& game, const FileRequest& request) {
    std::string path = PickFile(game, request);
    if (path.empty()) return path;
    if (!EndsAsOneOf(path, request.patterns)) path += "." + request.ending;
    return ConfirmOverwrite(game, path) ? path : "";
}

std::optional<std::string> AskDocumentFile(Game& game, const std::string& printer, const std::string& name) {
    if (printer != kPdfPrinter) return "";
    const std::string file = AskFileName(
        game, {"Print to a PDF file", "*.pdf", "PDF Files", game.AppFolder, FileRequest::Mode::Save, "pdf", name});
    return file.empty() ? std::nullopt : std::optional(file);
}

void ShowPrintError(Game& game, const std::string& reason) {
    game.prompts.SystemBox("Printing failed:\r\n" + reason, SystemButtons::Ok);
}

}  // namespace tidewalk
