#include "formats/PlateSource.h"

#include "formats/PlateGrid.h"
#include "runtime/RuntimeError.h"
#include "runtime/Text.h"

#include <algorithm>
#include <array>
#include <set>
#include <string>

namespace zorvane {

namespace {

class Lines {
  public:
    void Add(std::string_view keyword, std::string_view argument) {
        text_.append(keyword).append(" ").append(argument).append("\r\n");
    }
    void Add(std::string_view keyword, const ExactNumber& number) { Add(keyword, number.Text()); }
    const String& Text() const { return text_; }

  private:
    String text_;
};

/// A name must be one word that the reader of libraries takes for no comment.
void RequireWord(const String& name, const String& what) {
    const bool word = !name.empty() && std::none_of(name.begin(), name.end(), [](char c) {
        return IsBlank(c) || static_cast<unsigned char>(c) < ' ';
    });
    if (!word || name[0] == ';' || name[0] == '\'')
        RefuseSource("the name of " + what + " must be one word and is \"" + name + "\"");
}

/// The label of the first line, from which the control counts up only at A and 1.
String FirstLabel(const GridLines& lines, const char* what, String (*labelOf)(Long)) {
    String label = labelOf(lines.NameAt(0));
    if (lines.count > 1 && !lines.countsDown && lines.first != 0) {
        RefuseSource(String(what) + " that begin with " + label +
                     " and count up cannot be labelled: they must begin with " + labelOf(0));
    }
    if (label.empty() || labelOf(lines.first + lines.count - 1).empty())
        RefuseSource(std::to_string(lines.count) + " " + what + " cannot be labelled");
    return label;
}

String ColLabel(Long col) { return std::to_string(col + 1); }

/// A value that all wells of a sub-well must have.
struct Shared {
    const char* name;
    ExactNumber SourceWell::*value;
};

constexpr std::array<Shared, 6> kShared{{{"size along X", &SourceWell::sizeX},
                                         {"size along Y", &SourceWell::sizeY},
                                         {"depth", &SourceWell::depth},
                                         {"volume", &SourceWell::volume},
                                         {"rim along X", &SourceWell::rimWidth},
                                         {"rim along Y", &SourceWell::rimHeight}}};

[[noreturn]] void RefuseDifferent(const char* what, const SourceWell& first, const String& value,
                                  const SourceWell& other, const String& otherValue) {
    RefuseSource("the wells differ: the " + String(what) + " of " + PositionName(first.position) +
                 " is " + value + " and that of " + PositionName(other.position) + " " +
                 otherValue);
}

void RequireShared(const std::vector<SourceWell>& wells) {
    const SourceWell& first = wells.front();
    for (const SourceWell& well : wells) {
        for (const auto& [name, value] : kShared) {
            if (!SameNumber(well.*value, first.*value))
                RefuseDifferent(name, first, (first.*value).Text(), well, (well.*value).Text());
        }
        if (well.style != first.style)
            RefuseDifferent("style", first, first.style, well, well.style);
    }
}

void AddSubWell(Lines& lines, const SourceSubWell& subWell, const PlateGrid& grid) {
    RequireWord(subWell.name, "a sub-well");
    if (subWell.name.find('.') != subWell.name.npos)
        RefuseSource("the name of a sub-well cannot have a full stop, as " + subWell.name + " has");
    RequireShared(subWell.wells);
    const SourceWell& well = subWell.wells.front();
    lines.Add("WELL", subWell.name);
    lines.Add("  STYLE", well.style);
    lines.Add("  XOFFSET", grid.cols.offset);
    lines.Add("  YOFFSET", grid.rows.offset);
    lines.Add("  WELLSIZEX", well.sizeX);
    lines.Add("  WELLSIZEY", well.sizeY);
    lines.Add("  RIMWIDTH", well.rimWidth);
    lines.Add("  RIMHEIGHT", well.rimHeight);
    lines.Add("  DEPTH", well.depth);
    lines.Add("  VOLUME", well.volume);
}

/// The grid of a further sub-well, which must be that of the first one but for its offset.
PlateGrid MatchingGrid(const SourceSubWell& subWell, const PlateGrid& first) {
    PlateGrid grid(subWell.wells);
    const auto match = [](GridLines& lines, const GridLines& expected) {
        const bool same = lines.first == expected.first && lines.count == expected.count &&
                          lines.countsDown == expected.countsDown;
        lines.pitch = expected.pitch;
        return same;
    };
    if (!match(grid.rows, first.rows) || !match(grid.cols, first.cols)) {
        RefuseSource("the sub-well " + subWell.name +
                     " is not at the same positions as the first one");
    }
    grid.RequireRegular(subWell.wells);
    return grid;
}

void AddPlate(Lines& lines, const SourcePlate& plate, const PlateGrid& grid) {
    RequireWord(plate.name, "a plate");
    if (std::int64_t{grid.rows.count} * grid.cols.count *
            static_cast<std::int64_t>(plate.subWells.size()) >
        kMostWells)
        RefuseSource("a plate cannot have more than 32767 wells");
    lines.Add("PLATE", plate.name);
    lines.Add("ROWS", std::to_string(grid.rows.count));
    lines.Add("COLS", std::to_string(grid.cols.count));
    lines.Add("ROWLABEL", FirstLabel(grid.rows, "rows", RowLabel));
    lines.Add("COLLABEL", FirstLabel(grid.cols, "columns", ColLabel));
    // Rims are cut to the pitch: a single row or column has the whole plate for them.
    lines.Add("XPITCH", grid.cols.count > 1 ? grid.cols.pitch : plate.length);
    lines.Add("YPITCH", grid.rows.count > 1 ? grid.rows.pitch : plate.width);
    lines.Add("XOVERALL", plate.length);
    lines.Add("YOVERALL", plate.width);
    lines.Add("HEIGHT", plate.height);
    lines.Add("SHELFDEPTH", plate.shelfDepth);
    String tags;
    for (const String& tag : plate.tags) {
        RequireWord(tag, "a tag");
        tags += (tags.empty() ? "" : " ") + tag;
    }
    if (!tags.empty()) lines.Add("TAGLIST", tags);
}

} // namespace

void RefuseSource(const String& description) {
    Raise(ErrorNumber::TypeMismatch, description, "Zorvane::Formats");
}

String DefinitionText(const SourcePlate& plate) {
    if (plate.subWells.empty()) RefuseSource("there are no wells");
    std::set<String> names;
    for (const SourceSubWell& subWell : plate.subWells) {
        if (!names.insert(LowerText(subWell.name)).second)
            RefuseSource("two sub-wells are named " + subWell.name);
    }
    const PlateGrid grid(plate.subWells.front().wells);
    Lines lines;
    AddPlate(lines, plate, grid);
    AddSubWell(lines, plate.subWells.front(), grid);
    for (std::size_t i = 1; i < plate.subWells.size(); ++i)
        AddSubWell(lines, plate.subWells[i], MatchingGrid(plate.subWells[i], grid));
    return lines.Text();
}

} // namespace zorvane
