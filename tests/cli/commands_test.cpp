// SPDX-License-Identifier: MIT
// The commands, driven by their arguments.
#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <random>
#include <sstream>

#include "cli/arguments.h"
#include "drawing/puzzle_svg.h"
#include "model/puzzle_record.h"
#include "support/board_text.h"
#include "support/temp_folder.h"

namespace tidewalk::test {
namespace {

using nlohmann::json;
using Words = std::vector<std::string>;

/// Runs commands in a folder of their own and keeps what the last one printed.
class Cli : public ::testing::Test {
 protected:
    int Run(const Words& arguments, const std::string& input = "") {
        std::istringstream in(input);
        std::ostringstream out;
        std::ostringstream err;
        std::atomic<int> noSignal = 0;
        Console console{in, out, err, noSignal, outIsTerminal_, errIsTerminal_};
        console.outColumns = 11;
        console.outRows = terminalRows_;
        console.outShowsColour = outIsTerminal_;
        const int code = RunCommandLine(console, arguments);
        out_ = out.str();
        err_ = err.str();
        return code;
    }

    json RunJson(Words arguments) {
        arguments.push_back("--json");
        Run(arguments);
        return json::parse(out_);
    }

    std::string File(const std::string& name, const Words& lines) const {
        std::string bytes;
        for (const std::string& line : lines)
            bytes += line + "\r\n";
        return folder_.Write(name, bytes);
    }

    TempFolder folder_;
    bool outIsTerminal_ = false;
    bool errIsTerminal_ = false;
    int terminalRows_ = 6;
    std::string out_;
    std::string err_;
};

// Four islands in a ring: 4-4/4-4 has one solution, and 2-2/2-2 one (two double bridges would be two groups).
const std::string kRing = Record({"2-2", "|.|", "2-2"});
const std::string kRingWithout = Record({"2.2", "...", "2.2"});
const std::string kRingSplit = Record({"2=2", "...", "2=2"});
const std::string kImpossible = Record({"1.2", "...", "2.2"});
// The bridge that is single may lie on any side.
const std::string kSeveral = Record({"3.3.2", ".....", "3.3.2"});

TEST_F(Cli, ListTellsTheStateOfTheStoredBridges) {
    const std::string file = File("c.txt", {kRing, "rubbish", kRingWithout, kRingSplit});
    EXPECT_EQ(Run({"list", file}), 1);
    EXPECT_EQ(out_,
              "     1    3x3    4 islands    4 bridges  solution valid\n"
              "     3    3x3    4 islands    0 bridges  solution none\n"
              "     4    3x3    4 islands    4 bridges  solution wrong\n");
    EXPECT_EQ(err_, "tidewalk-cli: " + file + ": puzzle 2: the line is no puzzle record\n");
    EXPECT_EQ(Run({"list", file, "3-3", "--jobs", "2"}), 0) << "nobody looks at the lines before";
    EXPECT_EQ(out_, "     3    3x3    4 islands    0 bridges  solution none\n");
    EXPECT_EQ(Run({"list", file, "4-5"}), 1);
    EXPECT_EQ(err_, "tidewalk-cli: " + file + ": puzzle 5: there is no such puzzle, the last one is 4\n");
    EXPECT_EQ(RunJson({"list", file})[1]["error"], "the line is no puzzle record");
    EXPECT_EQ(Run({"list", "-"}, kRing + "\n" + kRing), 0) << "line feeds alone, and a last line without an end";
    EXPECT_EQ(RunJson({"list", File("empty.txt", {})}), json::array());
}

TEST_F(Cli, OnATerminalABarShowsHowFarItIs) {
    const std::string file = File("c.txt", {kRing, kRing});
    errIsTerminal_ = true;
    Run({"list", file});
    EXPECT_TRUE(err_.starts_with("\r[###############...............] 1 puzzles\x1B[K")) << err_;
    EXPECT_TRUE(err_.ends_with("\r\x1B[K")) << "it is taken away in the end";
    Run({"list", "-"}, kRing);
    EXPECT_EQ(err_, "\r1 puzzles\x1B[K\r\x1B[K") << "nobody knows how much is to come";
    outIsTerminal_ = true;
    Run({"list", file});
    EXPECT_EQ(err_, "") << "the lines themselves show it";
}

TEST_F(Cli, SolveGivesBridgesAndRecords) {
    const std::string file = File("c.txt", {kRingWithout, kImpossible, Record({"...", "...", "..."})});
    const json solved = RunJson({"solve", file, "--links", "--out", folder_.Path("s.txt")});
    EXPECT_EQ(solved[0]["links"], json({"1-3:1", "1-7:1", "3-9:1", "7-9:1"}));
    EXPECT_EQ(solved[0]["grade"], "Easy") << "the rules alone do not close a ring";
    EXPECT_EQ(solved[1]["solved"], false);
    EXPECT_EQ(solved[1]["grade"], nullptr);
    EXPECT_EQ(solved[2]["error"], "the puzzle has no islands");
    EXPECT_EQ(folder_.Read("s.txt"), " 3, 3, 8;D;2-2,|.|,2-2,\r\n");
    EXPECT_EQ(Run({"solve", file, "--out", file}), 1);
    EXPECT_EQ(Run({"list", file}), 0) << "the collection itself is not replaced";
    EXPECT_EQ(Run({"solve", file, "--out", folder_.Path("no/such")}), 1);
    EXPECT_EQ(out_, "") << "what cannot be written is not solved first";
    EXPECT_EQ(Run({"solve", file, "1", "--out", "/dev/stdout"}), 0);
    EXPECT_EQ(out_, folder_.Read("s.txt"));
    Run({"solve", file, "1", "--links"});
    EXPECT_TRUE(out_.starts_with("     1    3x3  solved        3 trials  Easy   ")) << out_;
    EXPECT_TRUE(out_.ends_with(" ms  1-3:1 1-7:1 3-9:1 7-9:1\n")) << out_;
}

TEST_F(Cli, MaxTrialsIsTheMostThatAreTried) {
    const std::string all = std::string(TIDEWALK_DATA_DIR) + "/puzzles.txt";
    const json solved = RunJson({"solve", all, "117-117"});
    const int trials = solved[0]["trials"];
    ASSERT_GT(trials, 1);
    EXPECT_EQ(Run({"solve", all, "117", "--max-trials", std::to_string(trials)}), 0);
    EXPECT_EQ(Run({"solve", all, "117", "--max-trials", std::to_string(trials - 1)}), 1);
    EXPECT_NE(err_.find("puzzle 117: given up after " + std::to_string(trials - 1) + " trials"), std::string::npos);
    EXPECT_EQ(Run({"solve", all, "117", "--max-trials", "0"}), 1);
    EXPECT_NE(err_.find("puzzle 117: the rules alone do not solve it"), std::string::npos);
    EXPECT_EQ(Run({"solve", all, "1", "--max-trials", "0"}), 0) << "the rules alone solve it";
}

TEST_F(Cli, CheckCountsExactlyAndNeverGuesses) {
    const std::string file = File("c.txt", {kRing, kRingWithout, kRingSplit, kImpossible, kSeveral});
    EXPECT_EQ(Run({"check", file}), 1);
    EXPECT_EQ(out_,
              "     1    3x3  stored valid  solutions one\n"
              "     2    3x3  stored none   solutions one\n"
              "     3    3x3  stored wrong  solutions one\n"
              "     4    3x3  stored none   solutions none\n"
              "     5    3x5  stored none   solutions several\n");
    json checked = RunJson({"check", file, "4-5"});
    EXPECT_FALSE(checked[0].contains("different"));
    EXPECT_EQ(checked[1]["different"], json({{"1-3:1", "1-11:2", "3-5:1", "3-13:1", "5-15:1", "11-13:1", "13-15:1"},
                                             {"1-3:2", "1-11:1", "3-5:1", "5-15:1", "11-13:2", "13-15:1"}}));
    checked = RunJson({"check", File("s.txt", {kSeveral}), "--seconds", "0"});
    EXPECT_EQ(checked[0]["solutions"], "undecided");
    EXPECT_TRUE(checked[0]["unique"].is_null() && !checked[0].contains("different"));
}

TEST_F(Cli, PartsOfARunAreTheRun) {
    const std::vector<Words> orders{{"random", "--unique"},
                                    {"random", "--any", "--density", "20-20"},
                                    {"9", "--any", "--doubles", "50-"},
                                    {"8", "--grade", "Hard", "--loops", "1-9"}};
    for (const Words& order : orders) {
        const std::string name = ::testing::PrintToString(order);
        const auto made = [&](const std::string& first, const std::string& count, const std::string& jobs) {
            Words words{"create", "--seed", "5", "--first", first, "--count", count, "--jobs", jobs, "--out", "-"};
            words.insert(words.end(), order.begin(), order.end());
            EXPECT_EQ(Run(words), 0) << name << err_;
            return out_;
        };
        const std::string whole = made("1", "12", "1");
        EXPECT_EQ(made("1", "5", "3") + made("6", "7", "2"), whole) << name;
        EXPECT_EQ(Run({"check", "-"}, whole), order[1] == "--any" ? 1 : 0) << name << " are unique";
        made("2147483646", "1", "1");
    }
}

TEST_F(Cli, CreateKeepsWhatIsOrdered) {
    const Words order{"create",  "12", "--count",   "4",     "--seed", "2",         "--out", "-",
                      "--loops", "3",  "--density", "15-19", "--any",  "--doubles", "40"};
    ASSERT_EQ(Run(order), 0) << err_;
    std::istringstream records(out_);
    for (std::string record; std::getline(records, record);) {
        record.pop_back();
        const Puzzle puzzle = ParsePuzzleRecord(record).value();
        EXPECT_EQ(puzzle.LinkCount() - puzzle.IslandCount() + 1, 3);
        EXPECT_NEAR(puzzle.IslandCount() / 1.44, 17, 2);
        const auto isDouble = [](const Link& link) { return link.Bridges() == 2; };
        const auto doubles = std::count_if(puzzle.LinkList.begin(), puzzle.LinkList.end(), isDouble);
        EXPECT_NEAR(100.0 * static_cast<double>(doubles) / puzzle.LinkCount(), 40, 5);
    }
    ASSERT_EQ(Run({"create", "8", "--grade", "veasy", "--seed", "1", "--out", folder_.Path("v")}), 0);
    EXPECT_EQ(RunJson({"list", folder_.Path("v"), "--grades"})[0]["grade"], "VEasy");
    const json report = RunJson(
        {"create", "7", "--first", "9", "--seed", "1", "--density", "13", "--loops", "4", "--out", folder_.Path("no")});
    EXPECT_EQ(err_, "tidewalk-cli: puzzle 9: none came out right in 10000 tries\n");
    EXPECT_EQ(report["tried"], 10000);
}

TEST_F(Cli, AnOrderThatNoSuchSizeMeetsIsRefusedWithWhatItMeets) {
    const auto refusal = [&](const Words& order) {
        Words words{"create", "--out", folder_.Path("no")};
        words.insert(words.end(), order.begin(), order.end());
        EXPECT_EQ(Run(words), 2);
        return err_;
    };
    EXPECT_TRUE(refusal({"7", "--density", "3-9"})
                    .starts_with("tidewalk-cli: --density: 7x7 has 6 to 22 islands, 12.2 to 44.9 in"));
    EXPECT_NE(refusal({"random", "--loops", "58"}).find("up to 24x24, have 0 to 57 loops"), std::string::npos);
    EXPECT_NE(refusal({"random", "--loops", "57", "--density", "10-10"}).find("no size has"), std::string::npos);
}

TEST_F(Cli, CreateAppendsPuzzlesOfAnySize) {
    ASSERT_EQ(Run({"create", "9", "--out", folder_.Path("91")}), 0);
    const std::string before = folder_.Read("91");
    ASSERT_EQ(Run({"create", "7X10", "--out", folder_.Path("91")}), 0);
    EXPECT_TRUE(folder_.Read("91").starts_with(before + " 7, 10,")) << "it is appended";
    for (const char* const size : {"6", "7x", "9x99999999999", "", "7x7x7"}) {
        EXPECT_EQ(Run({"create", size, "--out", folder_.Path("no")}), 2) << size;
        EXPECT_EQ(err_, std::string("tidewalk-cli: a puzzle has 7 to 25 rows and columns, not \"") + size + "\"\n");
    }
    EXPECT_EQ(Run({"create", "7"}), 2) << "no file to write to";
}

TEST_F(Cli, PuzzlesMoveBetweenFilesAsInTheWindow) {
    const std::string from = File("from.txt", {kRing, kSeveral});
    const std::string to = folder_.Path("to.txt");
    EXPECT_EQ(Run({"export", from, "1", folder_.Path("grid.txt")}), 0);
    EXPECT_EQ(folder_.Read("grid.txt"), "2.2\r\n...\r\n2.2\r\n");
    EXPECT_EQ(Run({"export", from, "2", folder_.Path("grid.txt")}), 1) << "there is something in it";
    EXPECT_EQ(Run({"export", from, "2", folder_.Path("grid.txt"), "--force"}), 0);
    EXPECT_EQ(Run({"export", from, "1", from, "--force"}), 1) << "its own collection";
    EXPECT_EQ(Run({"import", folder_.Path("grid.txt"), to}), 0);
    EXPECT_EQ(Run({"import", "/dev/stdin", to}, "2.2\n...\n2.2\n"), 0);
    EXPECT_EQ(RunJson({"append", from, "1", to})["number"], 3);
    EXPECT_EQ(RunJson({"append", from, "1", "/dev/null"})["number"], nullptr) << "it has no lines";
    EXPECT_EQ(Run({"import", File("none.txt", {"..."}), to}), 1);
    EXPECT_EQ(Run({"import", to, "./to.txt"}), 1) << "into itself";
    EXPECT_EQ(Run({"delete", to, "4"}), 1);
    EXPECT_EQ(RunJson({"delete", to, "1"})["left"], 2);
    EXPECT_EQ(Run({"delete", to, "1"}), 0);
    EXPECT_EQ(folder_.Read("to.txt"), " 3, 3, 4;D;2-2,|.|,2-2,\r\n");
}

TEST_F(Cli, GridsMoveInEveryFormAndManyAtATime) {
    const std::string from = File("from.txt", {kRing, "no record", kRing});
    const std::string grids = folder_.Path("grids.txt");
    EXPECT_EQ(Run({"export", from, "1-4", grids, "--form", "spaced"}), 1) << "two that are none";
    EXPECT_EQ(folder_.Read("grids.txt"), "2 . 2\r\n. . .\r\n2 . 2\r\n\r\n2 . 2\r\n. . .\r\n2 . 2\r\n\r\n");
    EXPECT_EQ(Run({"export", from, "all", grids}), 1) << "it is there already";
    EXPECT_EQ(Run({"export", from, "2-2", folder_.Path("no")}), 1);
    EXPECT_FALSE(std::filesystem::exists(folder_.Path("no")));
    EXPECT_EQ(Run({"export", from, "1", "--form", "sized"}), 0);
    EXPECT_EQ(out_, "3x3\r\n2.2\r\n...\r\n2.2\r\n");
    const std::string to = folder_.Path("to.txt");
    folder_.Write("grids.txt", folder_.Read("grids.txt") + "1.9\n");
    const auto all = RunJson({"import", grids, to, "--all"});
    EXPECT_EQ(all["written"].get<int>() * 10 + all["grids"].get<int>(), 23);
    EXPECT_EQ(err_, "tidewalk-cli: " + grids + ": line 9: not a puzzle\n");
    EXPECT_EQ(folder_.Read("to.txt"), " 3, 3, 0;D;2.2,...,2.2,\r\n 3, 3, 0;D;2.2,...,2.2,\r\n");
    EXPECT_EQ(Run({"import", grids, to, "--grid", "2"}), 0);
    EXPECT_EQ(err_, "") << "it was told which";
    EXPECT_EQ(Run({"import", grids, to}), 0);
    EXPECT_EQ(err_, "tidewalk-cli: " + grids +
                        ": 3 grids of 3x3, one not a puzzle: line 9; --grid takes another one, --all takes all\n");
    EXPECT_EQ(Run({"import", grids, to, "--grid", "1", "--all"}), 2);
    EXPECT_EQ(Run({"import", grids, to, "--grid", "3"}), 0);
    EXPECT_EQ(err_, "tidewalk-cli: " + grids + ": line 9: not a puzzle, taken as it is\n");
}

TEST_F(Cli, ARecordThatIsCutShortIsToldFromAWrongOne) {
    const std::string file = File("c.txt", {Record({"2-2", "1.1"}), Record({"2-2", "1.2"})});
    const auto list = RunJson({"list", file});
    EXPECT_EQ(list[0]["solution"], "cut short");
    EXPECT_EQ(list[1]["solution"], "wrong");
    EXPECT_EQ(Run({"solve", file, "1", "--out", folder_.Path("solved.txt")}), 0);
    EXPECT_NE(err_.find("puzzle 1: the record cannot hold a bridge between touching islands"), std::string::npos);
    Run({"check", file});
    EXPECT_NE(err_.find("puzzle 1: the record cannot hold"), std::string::npos);
    EXPECT_NE(err_.find("puzzle 2: the stored bridges are no solution"), std::string::npos);
}

TEST_F(Cli, ShuffledAndConvertedCopiesLieBesideTheCollection) {
    EXPECT_EQ(Run({"shuffle", File("a.b.txt", {kRing, kSeveral, kRing}), "--seed", "1"}), 0);
    EXPECT_EQ(RunJson({"list", folder_.Path("a.b-noduprandom.txt")}).size(), 2U);
    const Words older{"#1", "D", "3,3,4", "2-2", "|.|", "2-2", "#end"};
    File("old.x.txt", older);
    EXPECT_EQ(Run({"convert", "./old.x.txt"}), 0) << "the dot of the folder is not that of the name";
    EXPECT_EQ(folder_.Read("old-newformat.txt"), "3,3,4;D;2-2,|.|,2-2,\r\n");
    EXPECT_EQ(Run({"convert", File("new.txt", {kRing, kRing, kRing, kRing, kRing})}), 1) << "not the older layout";
    EXPECT_FALSE(std::filesystem::exists(folder_.Path("new-newformat.txt")));
}

TEST_F(Cli, ShowDrawsBridgesWithBoxCharacters) {
    const std::string file = File("c.txt", {Record({"3=3", "|.|", "1.1"}), kRingWithout});
    EXPECT_EQ(Run({"show", file, "1", "--solution"}), 0);
    EXPECT_EQ(out_, "3═══3\n│ · │\n1 · 1\n");
    EXPECT_EQ(Run({"show", file, "1"}), 0);
    EXPECT_EQ(out_, "3 · 3\n· · ·\n1 · 1\n");
    EXPECT_EQ(Run({"show", file, "2", "--solution"}), 1);
    EXPECT_EQ(err_, "tidewalk-cli: " + file + ": puzzle 2: there are no stored bridges\n");
    EXPECT_EQ(Run({"show", file, "1", "--solution", "--cells", "large"}), 0);
    EXPECT_EQ(out_, "(3)═════(3)\n │       │\n │   ·   │\n │       │\n(1)  ·  (1)\n");
    EXPECT_EQ(Run({"show", File("down", {Record({"3-1", "I..", "2.."})}), "1", "--solution", "--ascii"}), 0);
    EXPECT_EQ(out_, "3---1\n\" . .\n2 . .\n");
    EXPECT_EQ(Run({"show", file, "2", "--color", "always"}), 0);
    EXPECT_EQ(out_.substr(0, out_.find('\n')), "\x1B[1;7m2\x1B[0m \x1B[2m·\x1B[0m \x1B[1;7m2\x1B[0m");
}

TEST_F(Cli, ShowDrawsLargeAndInColourOnATerminalWithRoom) {
    const std::string file = File("c.txt", {Record({"3=3", "|.|", "1.1"})});
    outIsTerminal_ = true;
    Run({"show", file, "1", "--solution"});
    EXPECT_EQ(out_.substr(0, out_.find('\n')), "\x1B[1;7m 3 \x1B[0m\x1B[35m═════\x1B[0m\x1B[1;7m 3 \x1B[0m");
    const std::string large = "(3)  ·  (3)\n\n ·   ·   ·\n\n(1)  ·  (1)\n";
    Run({"show", file, "1", "--color", "never"});
    EXPECT_EQ(out_, large);
    EXPECT_EQ(RunJson({"show", file, "1"})["drawing"][0], "3 · 3") << "whoever reads it";
    Run({"show", file, "1", "--color", "never", "--cells", "small"});
    EXPECT_EQ(out_, "3 · 3\n· · ·\n1 · 1\n");
    terminalRows_ = 5;
    Run({"show", file, "1", "--color", "never"});
    EXPECT_EQ(out_, "3 · 3\n· · ·\n1 · 1\n") << "the prompt takes a line";
}

TEST_F(Cli, ShowPrintsThePictureThatTheWindowSaves) {
    const std::string record = Record({"3=3", "|.|", "1.1"});
    const std::string file = File("c.txt", {record});
    const auto picture = [&](RenderMode mode, const std::string& title) {
        return PuzzleSvg(*ParsePuzzleRecord(record), PictureRequest(mode, title, 4));
    };
    for (const std::string& name : {file, std::string("./c.txt")}) {
        EXPECT_EQ(Run({"show", name, "1", "--svg"}), 0);
        EXPECT_EQ(out_, picture(RenderMode::Puzzle, "Puzzle# 1 file:" + file));
    }
    EXPECT_EQ(Run({"show", "-", "1", "--svg", "--solution"}, record), 0);
    EXPECT_EQ(out_, picture(RenderMode::Solution, "Solution# 1 file:standard input"));
}

TEST_F(Cli, WrongUsageIsTold) {
    const std::string file = File("c.txt", {kRing});
    const std::vector<Words> wrong{{},
                                   {"list"},
                                   {"list", file, "--loud"},
                                   {"solve", file, "2-1"},
                                   {"solve", file, "5-2147483647"},
                                   {"solve", file, "--jobs", "0"},
                                   {"solve", file, "--out", "-", "--json"},
                                   {"show", file, "x"},
                                   {"show", file, "1", "--color", "loud"},
                                   {"show", file, "1", "--svg", "--ascii"},
                                   {"delete", "/dev/stdin", "1"},
                                   {"shuffle", "-", "--json"},
                                   {"delete", folder_.Path(""), "1"},
                                   {"create", "9", "--out", file, "--seed", "18446744073709551616"},
                                   {"create", "9", "--out", file, "--any", "--unique"},
                                   {"create", "9", "--out", file, "--any", "--grade", "easy"},
                                   {"create", "9", "--out", file, "--grade", "harder"},
                                   {"create", "9", "--out", file, "--density", "101"},
                                   {"create", "9", "--out", file, "--doubles", "30-20"},
                                   {"create", "9", "--out", file, "--loops", "3-5-"},
                                   {"create", "9", "--out", file, "--first", "2147483646", "--count", "2"},
                                   {"check", file, "--seconds", "nan"}};
    for (const Words& arguments : wrong) {
        EXPECT_EQ(Run(arguments), 2) << ::testing::PrintToString(arguments);
        EXPECT_NE(err_.find("tidewalk-cli: "), std::string::npos);
        EXPECT_EQ(out_, "");
    }
    EXPECT_EQ(Run({"solve", "--help"}), 0);
    EXPECT_NE(out_.find("--max-trials"), std::string::npos);
}

TEST_F(Cli, NoFileIsTooStrange) {
    std::mt19937 random(3);
    const std::string alphabet = "0123456789,;;,,.-=|I# \r\n\t\0x\xFF+eD";
    for (int round = 0; round < 60; ++round) {
        std::string bytes = round % 2 == 0 ? " 7, 7, 0;D;" : "#0707\n";
        for (int i = 0; i < 400; ++i)
            bytes += alphabet[random() % alphabet.size()];
        const std::string file = folder_.Write("r.txt", bytes);
        for (const char* const command : {"list", "solve", "check", "convert", "shuffle"})
            EXPECT_LE(Run({command, file}), 1) << round;
        for (const char* const command : {"show", "export"})
            EXPECT_LE(Run({command, file, "1"}), 1) << round;
        EXPECT_LE(Run({"import", file, "-"}), 1) << round;
        RunJson({"list", file});
    }
    EXPECT_EQ(Run({"list", folder_.Write("long.txt", std::string(3'000'000, '1') + "\n" + kRing)}), 1);
    EXPECT_EQ(out_, "     2    3x3    4 islands    4 bridges  solution valid\n");
    for (const std::string& path : {folder_.Path("missing"), folder_.Path(""), std::string()}) {
        EXPECT_EQ(Run({"list", path}), 1) << path;
        EXPECT_EQ(Run({"shuffle", path}), 1) << path;
        EXPECT_EQ(Run({"import", path, "-"}), 1) << path;
        EXPECT_EQ(Run({"append", path, "1", "-"}), 1) << path;
        EXPECT_NE(err_, "");
    }
}

TEST_F(Cli, ExplainTellsTheWayAndListTheGrade) {
    const std::string file = File("a", {kSmallPuzzle, kRingSplit, kImpossible, "no record"});
    const json all = RunJson({"explain", file});
    EXPECT_EQ(all[0]["grade"], "VEasy");
    EXPECT_TRUE(all[0]["solved"]);
    const json& step = all[0]["steps"][0];
    EXPECT_EQ(step["technique"].get<std::string>() + ", " + step["rule"].get<std::string>(), "last, 4-2 connect");
    EXPECT_EQ(step["islands"], (std::vector<int>{3, 7, 17}));
    EXPECT_EQ(step["must"], (std::vector<std::vector<int>>{{3, 7, 2}, {3, 17, 2}}));
    EXPECT_TRUE(step["cannot"].empty() && step["level"] == 1);
    EXPECT_EQ(all[2]["solutions"], 0);
    EXPECT_TRUE(all[2]["grade"].is_null() && all[2]["steps"].empty() && !all[2]["solved"]);
    EXPECT_EQ(Run({"explain", file, "2"}), 0);
    EXPECT_TRUE(out_.starts_with("     2    3x3  Easy   one solution\n")) << out_;
    const json grades = RunJson({"list", file, "--grades"});
    EXPECT_EQ(grades[0]["grade"], "VEasy");
    EXPECT_EQ(grades[1]["score"], all[1]["score"]);
}

TEST_F(Cli, HintTellsTheNextStepOrWhatIsWrong) {
    const std::string file = File("a", {Record({"1.2.1"}), kImpossible});
    const auto hint = [&](const std::string& laid, const std::string& noMore) {
        return RunJson({"hint", file, "1", "--laid", laid, "--not", noMore});
    };
    EXPECT_EQ(hint("", "")["steps"][0]["must"], (std::vector<std::vector<int>>{{1, 3, 1}}));
    EXPECT_EQ(hint("3-1:1", "1-3")["steps"][0]["must"], (std::vector<std::vector<int>>{{3, 5, 1}}));
    EXPECT_EQ(hint("1-3:2", "3-5")["mistake"], (std::vector<std::vector<int>>{{1, 3}, {3, 5}}));
    EXPECT_TRUE(hint("1-3:1 3-5:1", "")["solved"]);
    EXPECT_EQ(Run({"hint", file, "2"}), 1);
    EXPECT_EQ(out_, "the puzzle has no solution\n");
    EXPECT_EQ(Run({"hint", file, "1", "--laid", "1-5:1"}), 2);
    for (const char* wrong : {"1-3", "1-3:3", "1-3:1x", "0-3:1", "1:3", "+1-3:1"})
        EXPECT_EQ(Run({"hint", file, "1", "--laid", wrong}), 2) << wrong;
}

}  // namespace
}  // namespace tidewalk::test
