// SPDX-License-Identifier: MIT
#include "fuzz/targets.h"
#include "model/collection_file.h"
#include "model/convert_layout.h"
#include "support/temp_folder.h"

namespace tidewalk::fuzz {

void ReadOldLayout(std::string_view bytes) {
    const test::TempFolder folder;
    const std::string from = folder.Write("old.txt", std::string(bytes));
    const std::string to = folder.Path("old-newformat.txt");
    ConvertCollection(from, to);
    // A puzzle of the older layout takes its kind, its header and an end; what is read is none of its business.
    const int records = CountLines(to);
    Demand(records <= CountLines(from) / 2, "more puzzles than there can be");
    for (int number = 1; number <= records && number <= 3; ++number)
        ReadPuzzle(to, number);
}

}  // namespace tidewalk::fuzz
