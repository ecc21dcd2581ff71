// SPDX-License-Identifier: MIT
#include "booklet/page_layout.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tidewalk {

namespace {

constexpr double kMargin = 720;        ///< half an inch, more where the printer needs it
constexpr double kHeaderHeight = 480;  ///< with what stays free below the line
constexpr double kFooterHeight = 520;
constexpr double kFooterLine = 220;

constexpr int kLargestCell = 900;  ///< that of the pages with one puzzle, too
constexpr int kPencilCell = 284;   ///< 5 mm, in which bridges are drawn without trouble

constexpr double kBoardsApart = 440;    ///< between neighbouring boards and captions, at least
constexpr int kCellsApart = 2;          ///< and at least so many cells
constexpr double kSolutionApart = 620;  ///< between a puzzle and the solution beneath it, with its caption
constexpr double kMostSpread = 900;     ///< the most between boards, or so many cells
constexpr int kMostCellsApart = 3;

/// The width that a caption takes at least, in twips.
constexpr double kPuzzleCaptionWidth = 1900;
constexpr double kSolutionCaptionWidth = 700;

/// What a board takes of a page: itself, its caption and the solution beneath it.
struct Item {
    std::size_t entry = 0;
    double width = 0;
    double height = 0;
};

/// Boards side by side, and such rows one above the other.
using Row = std::vector<Item>;
using Rows = std::vector<Row>;

/// How the boards of a part of the booklet stand there.
struct Manner {
    bool solutions = false;  ///< the boards are solutions
    bool beneath = false;    ///< each puzzle has its solution beneath
    double caption = 0;
    double captionWidth = 0;
    int smallestCell = 0;
};

/// The cells of the solution beneath a puzzle: half as large, if that can be read, and no larger than is pleasant.
int CellBeneath(int cell) {
    return std::clamp(cell / 2, kSmallestSolutionCell, kPencilCell);
}

double HeightOf(const Manner& manner, BoardSize size, int cell) {
    const double board = manner.caption + size.rows * cell;
    return manner.beneath ? board + kSolutionApart + size.rows * CellBeneath(cell) : board;
}

Item ItemOf(const Manner& manner, std::size_t index, BoardSize size, int cell) {
    return {index, std::max<double>(size.cols * cell, manner.captionWidth), HeightOf(manner, size, cell)};
}

double HeightOf(const Row& row) {
    double height = 0;
    for (const Item& item : row)
        height = std::max(height, item.height);
    return height;
}

double WidthOf(const Row& row) {
    double width = 0;
    for (const Item& item : row)
        width += item.width;
    return width;
}

/// The room between so many things that take `taken` of `room`: boards of a page that is not full stay together.
double Spread(double room, double taken, std::size_t count, int cell) {
    if (count < 2) return 0;
    return std::min((room - taken) / static_cast<double>(count - 1),
                    std::max<double>(kMostSpread, kMostCellsApart * cell));
}

/// Adds the boards of one item whose room begins at (left, top).
void Place(BookletPage& page, const Manner& manner, const Item& item, const BookletEntry& entry, int cell, double left,
           double top, double captionWidth) {
    const BoardSize size = entry.size;
    PlacedBoard board;
    board.entry = item.entry;
    board.solution = manner.solutions;
    board.cell = cell;
    board.left = left + (item.width - size.cols * cell) / 2;
    board.captionTop = top;
    board.top = top + manner.caption;
    board.captionWidth = captionWidth;
    page.boards.push_back(board);
    if (!manner.beneath || !entry.solved) return;
    board.solution = true;
    board.top += size.rows * cell + kSolutionApart;
    board.cell = CellBeneath(cell);
    board.left = left + (item.width - size.cols * board.cell) / 2;
    board.captionTop = board.top - SolutionCaptionHeight();
    page.boards.push_back(board);
}

/// A page of rows, everything in the middle from side to side.
BookletPage PageOfRows(const Manner& manner, const std::vector<BookletEntry>& entries, const Rows& rows, int cell,
                       const Surface::Area& body) {
    BookletPage page;
    page.kind = manner.solutions ? BookletPage::Kind::Solutions : BookletPage::Kind::Puzzles;
    double taken = 0;
    for (const Row& row : rows)
        taken += HeightOf(row);
    const double room = body.bottom - body.top;
    const double apart = Spread(room, taken, rows.size(), cell);
    // Solutions begin below their heading.
    double top = body.top;
    if (!manner.solutions) top += (room - taken - apart * static_cast<double>(rows.size() - 1)) / 2;
    for (const Row& row : rows) {
        const double width = body.right - body.left;
        const double aside = Spread(width, WidthOf(row), row.size(), cell);
        double left = body.left + (width - WidthOf(row) - aside * static_cast<double>(row.size() - 1)) / 2;
        for (const Item& item : row) {
            Place(page, manner, item, entries[item.entry], cell, left, top, item.width + aside / 2);
            left += item.width + aside;
        }
        top += HeightOf(row) + apart;
    }
    return page;
}

/// How many boards stand side by side, and how many such rows there are.
struct Slots {
    int across = 1;
    int down = 1;
};

/// Between boards side by side or one above the other, which have no frames: a little more where there is room.
double Apart(int cell) {
    const int cells = cell < kPencilCell ? kCellsApart : kMostCellsApart;
    return std::max<double>(kBoardsApart, cells * cell);
}

/// The largest cell with which as many boards of this size as there are slots fit into the body; 0 when none does.
int FittingCell(const Manner& manner, BoardSize size, const Slots& slots, const Surface::Area& body) {
    const auto fit = [&](int cell) {
        const Item item = ItemOf(manner, 0, size, cell);
        return slots.across * item.width + (slots.across - 1) * Apart(cell) <= body.right - body.left &&
               slots.down * item.height + (slots.down - 1) * Apart(cell) <= body.bottom - body.top;
    };
    int fits = 0;
    int tooLarge = kLargestCell + 1;
    while (tooLarge - fits > 1) {
        const int cell = (fits + tooLarge) / 2;
        (fit(cell) ? fits : tooLarge) = cell;
    }
    return fits;
}

int SmallestFitting(const Manner& manner, const std::vector<BookletEntry>& entries, const Slots& slots,
                    const Surface::Area& body) {
    int cell = kLargestCell;
    for (const BookletEntry& entry : entries)
        cell = std::min(cell, FittingCell(manner, entry.size, slots, body));
    return cell;
}

/// How many of the boards fit, and the smallest of their cells.
std::pair<std::size_t, int> Fitting(const Manner& manner, const std::vector<BookletEntry>& entries, const Slots& slots,
                                    const Surface::Area& body) {
    std::pair<std::size_t, int> fitting{0, kLargestCell};
    for (const BookletEntry& entry : entries) {
        const int cell = FittingCell(manner, entry.size, slots, body);
        if (cell < manner.smallestCell) continue;
        ++fitting.first;
        fitting.second = std::min(fitting.second, cell);
    }
    return fitting;
}

/// The slots that leave the booklet's boards most room. Long rows of boards look poor and have to gain a quarter,
/// unless more of the boards can be read so.
Slots BestSlots(const Manner& manner, const std::vector<BookletEntry>& entries, int perPage,
                const Surface::Area& body) {
    constexpr double kGain = 1.25;
    constexpr int kCompact = 2;  ///< times as many one way as the other, at most
    Slots best;
    std::pair<std::size_t, double> most{0, 0};
    for (int across = 1; across <= perPage; ++across) {
        if (perPage % across != 0) continue;
        const Slots slots{across, perPage / across};
        const bool compact = std::max(slots.across, slots.down) <= kCompact * std::min(slots.across, slots.down);
        const auto [count, cell] = Fitting(manner, entries, slots, body);
        const std::pair<std::size_t, double> worth{count, compact ? cell * kGain : cell};
        if (worth <= most) continue;
        best = slots;
        most = worth;
    }
    return best;
}

/// The entries from `first` to before `end`, in columns of one width.
Rows RowsOf(const Manner& manner, const std::vector<BookletEntry>& entries, std::size_t first, std::size_t end,
            int across, int cell) {
    Rows rows;
    double widest = 0;
    for (std::size_t i = first; i < end; ++i) {
        if ((i - first) % static_cast<std::size_t>(across) == 0) rows.emplace_back();
        rows.back().push_back(ItemOf(manner, i, entries[i].size, cell));
        widest = std::max(widest, rows.back().back().width);
    }
    for (Row& row : rows) {
        for (Item& item : row)
            item.width = widest;
    }
    return rows;
}

/// Fills pages with a board in each slot, those of a page in the largest cell that all of them allow.
std::vector<BookletPage> LayOutInSlots(const Manner& manner, const std::vector<BookletEntry>& entries,
                                       const Slots& slots, const Surface::Area& body) {
    const auto perPage = static_cast<std::size_t>(slots.across) * static_cast<std::size_t>(slots.down);
    std::vector<BookletPage> pages;
    for (std::size_t first = 0; first < entries.size(); first += perPage) {
        const std::size_t end = std::min(entries.size(), first + perPage);
        int cell = kLargestCell;
        for (std::size_t i = first; i < end; ++i)
            cell = std::min(cell, FittingCell(manner, entries[i].size, slots, body));
        const Rows rows = RowsOf(manner, entries, first, end, slots.across, cell);
        pages.push_back(PageOfRows(manner, entries, rows, cell, body));
    }
    return pages;
}

/// Fills pages with boards of one cell, each fitting by itself, one after the other.
std::vector<BookletPage> Fill(const Manner& manner, const std::vector<BookletEntry>& entries, int cell,
                              const Surface::Area& body) {
    std::vector<BookletPage> pages;
    Rows rows;
    const auto roomBelow = [&] {
        double room = body.bottom - body.top;
        for (const Row& row : rows)
            room -= HeightOf(row) + Apart(cell);
        return room;
    };
    const auto fitsBeside = [&](const Item& item) {
        if (rows.empty()) return false;
        const Row& row = rows.back();
        const double gaps = Apart(cell) * static_cast<double>(row.size());
        return WidthOf(row) + gaps + item.width <= body.right - body.left &&
               item.height - HeightOf(row) <= roomBelow() + Apart(cell);
    };
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (manner.solutions && !entries[i].solved) continue;
        const Item item = ItemOf(manner, i, entries[i].size, cell);
        if (fitsBeside(item)) {
            rows.back().push_back(item);
            continue;
        }
        if (!rows.empty() && item.height > roomBelow()) {
            pages.push_back(PageOfRows(manner, entries, rows, cell, body));
            rows.clear();
        }
        rows.push_back({item});
    }
    if (!rows.empty()) pages.push_back(PageOfRows(manner, entries, rows, cell, body));
    return pages;
}

/// Finds the entries that do not fit into such slots.
void FindMisfits(const Manner& manner, const std::vector<BookletEntry>& entries, const Slots& slots,
                 const Surface::Area& body, std::vector<std::size_t>& misfits) {
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (FittingCell(manner, entries[i].size, slots, body) < manner.smallestCell) misfits.push_back(i);
    }
}

}  // namespace

double PuzzleCaptionHeight(const BookletDesign& design) {
    constexpr double kHeight = 320;
    return design.ShowsNumbers() || design.sizes || design.grades ? kHeight : 0;
}

double SolutionCaptionHeight() {
    return 240;
}

PageFrame FrameOf(const BookletDesign& design, const Sheet& sheet) {
    const auto inset = [](double printable, double edge) { return std::max(std::abs(printable - edge), kMargin); };
    PageFrame frame;
    frame.body = {inset(sheet.printable.left, 0), inset(sheet.printable.top, 0),
                  sheet.size.width - inset(sheet.printable.right, sheet.size.width),
                  sheet.size.height - inset(sheet.printable.bottom, sheet.size.height)};
    frame.headerTop = frame.body.top;
    frame.footerTop = frame.body.bottom - kFooterLine;
    if (!design.Header().empty()) frame.body.top += kHeaderHeight;
    if (design.pageNumbers) frame.body.bottom -= kFooterHeight;
    return frame;
}

std::vector<BookletPage> LayOutPuzzles(const BookletDesign& design, const std::vector<BookletEntry>& entries,
                                       const Surface::Area& body, std::vector<std::size_t>& misfits) {
    const Manner manner{false, design.solutions == BookletDesign::Solutions::Beneath, PuzzleCaptionHeight(design),
                        PuzzleCaptionHeight(design) > 0 ? kPuzzleCaptionWidth : 0, kSmallestPuzzleCell};
    const bool fills = design.perPage == BookletDesign::kAsManyAsFit;
    const Slots slots = fills ? Slots() : BestSlots(manner, entries, design.perPage, body);
    FindMisfits(manner, entries, slots, body, misfits);
    if (!fills) return LayOutInSlots(manner, entries, slots, body);
    return Fill(manner, entries, std::min(kPencilCell, SmallestFitting(manner, entries, {}, body)), body);
}

std::vector<BookletPage> LayOutSolutions(const std::vector<BookletEntry>& entries, const Surface::Area& body,
                                         std::vector<std::size_t>& misfits) {
    constexpr int kLargerCells[] = {260, 240, 220, 200, 180};
    const Manner manner{true, false, SolutionCaptionHeight(), kSolutionCaptionWidth, kSmallestSolutionCell};
    FindMisfits(manner, entries, {}, body, misfits);
    auto smallest = Fill(manner, entries, kSmallestSolutionCell, body);
    const int largest = SmallestFitting(manner, entries, {}, body);
    for (const int cell : kLargerCells) {
        if (cell > largest) continue;
        auto pages = Fill(manner, entries, cell, body);
        if (pages.size() == smallest.size()) return pages;
    }
    return smallest;
}

}  // namespace tidewalk
