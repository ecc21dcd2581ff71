// SPDX-License-Identifier: MIT
#include "options/scheme_file.h"

#include <algorithm>
#include <cerrno>
#include <ostream>
#include <sstream>

#include "model/characters.h"
#include "model/file_error.h"
#include "model/line_reader.h"
#include "model/numbers.h"
#include "model/replace_file.h"
#include "options/colour_scheme.h"

namespace tidewalk {

namespace {

constexpr int kLongestName = 40;  ///< in characters

constexpr std::array<std::string_view, 12> kShipped{"xp",           "default", "light",       "dark",
                                                    "highcontrast", "paper",   "colourblind", "harbour",
                                                    "moss",         "sand",    "dusk",        "deepsea"};

bool IsControl(char character) {
    const auto byte = static_cast<unsigned char>(character);
    return byte < 0x20U || byte == 0x7FU;
}

std::string SchemeText(const std::string& name, const SchemeEntries& entries) {
    std::string text = name + std::string(kSchemeEnding);
    text += kLineEnd;
    for (const Colour entry : entries) {
        text += NumText(RedOf(entry)) + ";" + NumText(GreenOf(entry)) + ";" + NumText(BlueOf(entry));
        text += kLineEnd;
    }
    return text;
}

/// Where a scheme lies in the bytes of the file, its name and its colours.
struct Place {
    std::size_t from = 0;
    std::size_t to = 0;
};

/// The place of the scheme, as far as a reader would take its lines for it; nothing when there is none.
std::optional<Place> FindScheme(const std::string& bytes, const std::string& name) {
    std::stringbuf input(bytes);
    LineReader lines(input, name);
    const std::string wanted = name + std::string(kSchemeEnding);
    std::string line;
    std::optional<Place> place;
    while (!place && lines.Next(line)) {
        if (line == wanted) place = {lines.LineStart(), lines.Position()};
    }
    for (std::size_t i = 0; place && i < kReadEntries && lines.Next(line) && IsColourLine(line); ++i)
        place->to = lines.Position();
    return place;
}

void Edit(std::string& bytes, const std::string& name, const std::optional<SchemeEntries>& entries) {
    const std::string text = entries ? SchemeText(name, *entries) : "";
    if (const auto place = FindScheme(bytes, name)) {
        bytes.replace(place->from, place->to - place->from, text);
    } else if (entries) {
        if (!bytes.empty() && bytes.back() != '\n') bytes += kLineEnd;
        bytes += text;
    }
}

}  // namespace

bool IsShippedScheme(std::string_view name) {
    return std::find(kShipped.begin(), kShipped.end(), name) != kShipped.end();
}

std::string WhyNoSchemeName(std::string_view name, const std::vector<std::string>& taken) {
    if (Trim(name).empty()) return "A colour scheme needs a name.";
    if (Trim(name) != name) return "The name of a colour scheme must not begin or end with a blank.";
    if (CharacterCount(name) > kLongestName)
        return "The name of a colour scheme may have up to " + NumText(kLongestName) + " characters.";
    if (std::any_of(name.begin(), name.end(), IsControl))
        return "The name of a colour scheme must not have line breaks or tabs.";
    // The comma would end the name in "tide.cfg", the semicolon make it look like a colour.
    if (name.find_first_of(",;") != std::string_view::npos)
        return "The name of a colour scheme must not have a comma or a semicolon.";
    const std::string lower = LowerCase(name);
    if (lower.find(kSchemeEnding) != std::string::npos)
        return "The name of a colour scheme must not have \".col\" in it.";
    if (lower.find("default") != std::string::npos)
        return "Names with \"default\" in them are for the scheme that follows the desktop.";
    const auto isSame = [&](const std::string& other) { return LowerCase(other) == lower; };
    if (std::any_of(taken.begin(), taken.end(), isSame))
        return "There is a colour scheme \"" + std::string(name) + "\" already.";
    return "";
}

void WriteSchemes(const std::string& path, const SchemeEdits& edits, const MayWait& mayWait) {
    const SystemFile file = OpenLocked(path, SystemFile::Mode::Change, mayWait);
    std::string bytes = file.Read(0, file.Size());
    // What could not be read must not be missing from what is written.
    if (bytes.size() != file.Size()) Fail(path, errno);
    for (const auto& [name, entries] : edits)
        Edit(bytes, name, entries);
    ReplaceFile(path, [&](std::ostream& out) { out << bytes; });
}

}  // namespace tidewalk
