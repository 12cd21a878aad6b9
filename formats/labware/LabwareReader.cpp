#include "formats/labware/JsonValue.h"
#include "formats/labware/Labware.h"
#include "formats/labware/SafeName.h"
#include "runtime/Text.h"

#include <algorithm>
#include <set>

namespace zorvane {

namespace {

/// A name that can be part of a plate library, or nothing.
bool IsWord(const String& text) {
    return !text.empty() && std::none_of(text.begin(), text.end(), IsBlank);
}

SourceWell ReadWell(const String& name, const JsonNode& node, const ExactNumber& width) {
    SourceWell well;
    const auto position = ParsePosition(name);
    if (!position || LowerText(name) == name) node.Refuse("is not named as A1 is");
    well.position = *position;
    well.x = node.At("x").Number();
    well.y = width - node.At("y").Number();
    well.depth = node.At("depth").Number();
    well.volume = node.At("totalLiquidVolume").Number();
    const String& shape = node.At("shape").Text();
    if (shape == "circular") {
        well.sizeX = well.sizeY = node.At("diameter").Number();
    } else if (shape == "rectangular") {
        well.sizeX = node.At("xDimension").Number();
        well.sizeY = node.At("yDimension").Number();
        well.style = "SQUARE";
    } else {
        node.At("shape").Refuse("is neither circular nor rectangular");
    }
    return well;
}

std::vector<SourceWell> ReadWells(const JsonNode& labware, const ExactNumber& width) {
    std::vector<SourceWell> wells;
    for (const auto& [name, node] : labware.At("wells").Members()) {
        if (wells.size() == static_cast<std::size_t>(kMostWells))
            RefuseSource("a plate cannot have more than 32767 wells");
        wells.push_back(ReadWell(name, node, width));
    }
    return wells;
}

/// The order lists each well once.
void RequireOrdering(const JsonNode& labware) {
    std::set<String> ordered;
    for (const JsonNode& column : labware.At("ordering").Items()) {
        for (const JsonNode& name : column.Items())
            if (!ordered.insert(name.Text()).second) name.Refuse("is there twice: " + name.Text());
    }
    for (const auto& [name, node] : labware.At("wells").Members())
        if (ordered.erase(name) == 0) node.Refuse("is not in the ordering");
    if (!ordered.empty())
        RefuseSource("the ordering has " + *ordered.begin() + ", which is not among the wells");
}

void RequirePlate(const JsonNode& labware) {
    const JsonNode version = labware.At("schemaVersion");
    if (version.Number().Units() != 2 * ExactNumber::kOne)
        version.Refuse("is " + version.Number().Text() + "; this reads labware of schema 2");
    const JsonNode tipRack = labware.At("parameters").At("isTiprack");
    if (tipRack.Flag()) tipRack.Refuse("is true: a rack of tips is not a plate");
}

/// The name that was exported, or else the one to load the labware by.
String PlateName(const JsonNode& labware) {
    const String& loadName = labware.At("parameters").At("loadName").Text();
    const String& shown = labware.At("metadata").At("displayName").Text();
    return IsWord(shown) && SafeName(shown) == loadName ? shown : loadName;
}

std::vector<String> Tags(const JsonNode& labware) {
    std::vector<String> tags;
    const JsonNode metadata = labware.At("metadata");
    if (!metadata.Has("tags")) return tags;
    for (const JsonNode& tag : metadata.At("tags").Items()) {
        String word = tag.Text();
        std::replace_if(word.begin(), word.end(), IsBlank, '_');
        if (!word.empty()) tags.push_back(word);
    }
    return tags;
}

/// The name of the first group of wells where it is a word, in which a definition can have no full
/// stop.
String SubWellName(const JsonNode& labware) {
    for (const JsonNode& group : labware.At("groups").Items()) {
        const JsonNode metadata = group.At("metadata");
        if (!metadata.Has("displayName")) break;
        const String& name = metadata.At("displayName").Text();
        if (IsWord(name) && name.find('.') == name.npos) return name;
        break;
    }
    return "Well";
}

/// How far the bottoms lie from where the height and the depth have them.
ExactNumber BottomOffset(const JsonNode& labware, const LabwareSource& source) {
    std::optional<ExactNumber> offset;
    for (const auto& [name, node] : labware.At("wells").Members()) {
        const ExactNumber top = node.At("z").Number() + node.At("depth").Number();
        const ExactNumber here = top - source.plate.height;
        if (offset && !SameNumber(*offset, here))
            node.At("z").Refuse("differs from that of the other wells");
        if (!offset) offset = here;
    }
    return offset.value_or(ExactNumber());
}

} // namespace

bool HasLabware() { return true; }

LabwareSource ReadLabware(std::string_view json) {
    const JsonValue value = ParseJson(json);
    const JsonNode labware(value);
    RequirePlate(labware);
    LabwareSource source;
    const JsonNode dimensions = labware.At("dimensions");
    source.plate.name = PlateName(labware);
    source.plate.length = dimensions.At("xDimension").Number();
    source.plate.width = dimensions.At("yDimension").Number();
    source.plate.height = dimensions.At("zDimension").Number();
    source.plate.tags = Tags(labware);
    source.plate.subWells.push_back({SubWellName(labware), ReadWells(labware, source.plate.width)});
    RequireOrdering(labware);
    source.bottomOffset = BottomOffset(labware, source);
    return source;
}

} // namespace zorvane
