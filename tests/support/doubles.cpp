// SPDX-License-Identifier: MIT
#include "support/doubles.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tidewalk::test {

std::string OverlayOf(const Board& board) {
    const auto words = [](Point point) { return std::to_string(point.x) + " " + std::to_string(point.y) + " "; };
    std::string all;
    if (board.Line1.visible) all += "band " + words(board.Line1.from) + words(board.Line1.to);
    if (board.solved) all += "solved ";
    if (board.Shape1.visible) all += "marker " + std::to_string(board.puzzle.CellId(board.Shape1.cell)) + " ";
    if (board.focusShows) all += "focus " + std::to_string(FocusedIsland(board));
    return all;
}

World::~World() {
    for (const Question& missing : expected_)
        ADD_FAILURE() << "never asked: " << missing.text;
    EXPECT_FALSE(batch || print || booklet) << "never asked for a batch or what to print";
}

void World::Expect(const std::string& text, const std::string& style, int answer) {
    expected_.push_back({text + "|" + style, answer, ""});
}

World::Question World::Answer(const std::string& question) {
    if (answerToAll_ != 0) return {"", answerToAll_, ""};
    if (expected_.empty()) {
        ADD_FAILURE() << "nobody expected: " << question;
        return {};
    }
    Question next = expected_.front();
    expected_.pop_front();
    EXPECT_EQ(question, next.text);
    return next;
}

std::string World::Seen() {
    std::string all;
    for (const std::string& entry : std::exchange(log_, {})) {
        const bool isLabel = entry.starts_with("size: ") || entry.starts_with("count: ") ||
                             entry.starts_with("name: ") || entry.starts_with("facts: ") ||
                             entry.starts_with("tried: ");
        if (!isLabel) all += (all.empty() ? "" : ", ") + entry;
    }
    return all;
}

int World::Show(const std::string& text, std::string_view style) {
    Note("box");
    return Answer(text + "|" + std::string(style)).answer;
}

std::string World::Pick(const FileRequest& request) {
    Note("pick");
    EXPECT_EQ(request.startFolder, game->AppFolder);
    EXPECT_NE(request.patterns.find("*." + request.ending), std::string::npos) << "the ending that a name gets";
    suggested = request.name;
    // A file dialog may do that.
    std::filesystem::current_path("/");
    const char* const mode = request.mode == FileRequest::Mode::Open ? "open" : "save";
    return Answer(request.title + "|" + request.patterns + "|" + request.patternName + "|" + mode).path;
}

void World::SetText(WindowText which, const std::string& text) {
    const char* const names[] = {"status: ", "number: ", "count: ", "name: ", "size: ", "facts: ", "tried: "};
    texts[which] = text;
    Note(names[static_cast<int>(which)] + text);
}

namespace {

class Document final : public PrintDocument {
 public:
    explicit Document(World& world) : world_(world) { world_.pages.assign(1, {}); }
    ~Document() override { world_.Note("document gone"); }

    Surface& Page() override { return world_.pages.back(); }
    Sheet PageSheet() const override {
        const auto& format = world_.document.format;
        return format ? world_.SheetOf("", *format) : Sheet{{}, world_.printable};
    }
    bool NewPage() override {
        if (static_cast<int>(world_.pages.size()) + 1 == world_.failAtPage) return false;
        world_.pages.emplace_back();
        return true;
    }
    bool End() override {
        if (world_.failAtPage == 0) world_.Note("printed");
        return world_.failAtPage == 0;
    }
    std::string Error() const override { return "out of paper"; }

 private:
    World& world_;
};

}  // namespace

Sheet World::SheetOf(const std::string&, const SheetFormat& format) {
    constexpr double kMargin = 360;
    Surface::Extent size{11900, 16840};
    if (format.paper == Paper::A5) size = {8400, 11900};
    if (format.paper == Paper::Letter) size = {12240, 15840};
    if (format.landscape) std::swap(size.width, size.height);
    return {size, {kMargin, kMargin, size.width - kMargin, size.height - kMargin}};
}

std::unique_ptr<PrintDocument> World::Begin(const DocumentSetup& setup, std::string& error) {
    document = setup;
    printedTo = setup.printer + "|" + setup.file;
    error = beginError;
    return error.empty() ? std::make_unique<Document>(*this) : nullptr;
}

void World::Preview(const std::string& printer, const PageFunction& draw) {
    printedTo = printer + "|";
    pages.assign(1, {});
    draw(pages.front(), printable);
}

std::optional<KeptPlay> World::Find(const Puzzle& puzzle) {
    const auto found = plays.find(PlainGrid(puzzle));
    return found == plays.end() ? std::nullopt : std::optional(found->second);
}

void World::Keep(const Puzzle& puzzle, const History& history, bool solved) {
    KeptPlay& play = plays[PlainGrid(puzzle)];
    play.history = history;
    play.solved = play.solved || solved;
}

}  // namespace tidewalk::test
