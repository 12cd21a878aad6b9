#include "formats/PlateSource.h"
#include "formats/Quoted.h"
#include "formats/maps/MapLayout.h"
#include "formats/maps/MapPattern.h"
#include "formats/maps/TomlKeys.h"
#include "runtime/NumberText.h"
#include "runtime/Text.h"

#include <toml++/toml.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <sstream>

namespace zorvane {

namespace {

struct KindName {
    const char* name;
    GroupKind kind;
};

constexpr std::array<KindName, 6> kKinds{{{"icol", GroupKind::Icol},
                                          {"irow", GroupKind::Irow},
                                          {"col", GroupKind::Col},
                                          {"row", GroupKind::Row},
                                          {"block", GroupKind::Block},
                                          {"well", GroupKind::Well}}};

String Text(const toml::key& key) { return String(key.str()); }

[[noreturn]] void RefuseAt(const toml::source_position& place, const String& problem) {
    RefuseSource("line " + std::to_string(place.line) + ": " + problem);
}

/// Does something with a key and puts its line before the description of a failure.
template <class Action>
auto AtLineOf(const toml::key& key, Action action) {
    try {
        return action();
    } catch (const RuntimeError& error) {
        if (error.Description().starts_with("line ")) throw;
        RefuseAt(key.source().begin, error.Description());
    }
}

const toml::table& TableAt(const toml::key& key, const toml::node& node) {
    if (const auto* const table = node.as_table()) return *table;
    RefuseAt(key.source().begin, Text(key) + " is not a group of wells");
}

String NumberText(const toml::key& key, double value) {
    if (!std::isfinite(value)) RefuseAt(key.source().begin, Text(key) + " is not a finite number");
    return GeneralText(value);
}

String ValueText(const toml::key& key, const toml::node& node) {
    if (const auto* const text = node.as_string()) return text->get();
    if (const auto* const number = node.as_integer()) return std::to_string(number->get());
    if (const auto* const number = node.as_floating_point()) return NumberText(key, number->get());
    if (const auto* const flag = node.as_boolean()) return flag->get() ? "yes" : "no";
    std::ostringstream text;
    if (const auto* const date = node.as_date()) {
        text << date->get();
    } else if (const auto* const time = node.as_time()) {
        text << time->get();
    } else if (const auto* const both = node.as_date_time()) {
        text << both->get();
    } else {
        RefuseAt(key.source().begin, Text(key) + " is not one value");
    }
    return text.str();
}

/// The numbers of columns and rows of a block, as in "4x2".
void ReadSize(std::string_view size, MapGroup& group) {
    const std::size_t mark = std::min(size.find('x'), size.size());
    const auto width = ParseCol(size.substr(0, mark));
    const auto height = ParseCol(mark < size.size() ? size.substr(mark + 1) : "");
    if (!width || !height) RefuseSource(Quoted(size) + " is no size, as 4x2 is");
    group.width = *width + 1;
    group.height = *height + 1;
    if (std::int64_t{group.width} * group.height > kMostWells)
        RefuseSource("a plate cannot have more than 32767 wells");
}

class LayoutReader {
  public:
    std::vector<MapGroup> Read(const toml::table& file, const String& plateName) && {
        if (const auto* const meta = file["meta"].as_table()) RequireOneFile(*meta);
        for (const auto& [key, node] : file) {
            if (key.str() == "expt") AddGroup(GroupKind::Expt, key, node);
            AddKind(key, node);
        }
        AddPlates(file, plateName);
        return std::move(groups_);
    }

  private:
    static void RequireOneFile(const toml::table& meta) {
        for (const auto& [key, node] : meta) {
            if (key.str() == "include" || key.str() == "concat")
                RefuseAt(key.source().begin, "other files are not read: " + Text(key));
        }
    }

    /// What one key names by a kind; true when it is one.
    bool AddKind(const toml::key& key, const toml::node& node) {
        const auto* const known =
            std::find_if(kKinds.begin(), kKinds.end(),
                         [&](const KindName& kind) { return key.str() == kind.name; });
        if (known == kKinds.end()) return false;
        for (const auto& [pattern, group] : TableAt(key, node)) {
            if (known->kind == GroupKind::Block) {
                for (const auto& [corners, block] : TableAt(pattern, group))
                    AddBlock(pattern, corners, block);
            } else {
                AddGroup(known->kind, pattern, group);
            }
        }
        return true;
    }

    MapGroup NewGroup(GroupKind kind, const toml::key& key, const toml::node& node) const {
        MapGroup group;
        group.kind = kind;
        group.ofPlate = ofPlate_;
        const auto begin = key.source().begin;
        group.place = (std::int64_t{begin.line} << 32) + begin.column;
        for (const auto& [name, value] : TableAt(key, node))
            group.parameters.emplace_back(Text(name), ValueText(name, value));
        return group;
    }

    void AddGroup(GroupKind kind, const toml::key& key, const toml::node& node) {
        MapGroup group = NewGroup(kind, key, node);
        AtLineOf(key, [&] {
            if (kind == GroupKind::Well) group.corners = WellsOfPattern(key.str());
            if (kind == GroupKind::Row || kind == GroupKind::Irow)
                group.lines = RowsOfPattern(key.str());
            if (kind == GroupKind::Col || kind == GroupKind::Icol)
                group.lines = ColsOfPattern(key.str());
        });
        groups_.push_back(std::move(group));
    }

    void AddBlock(const toml::key& size, const toml::key& corners, const toml::node& node) {
        MapGroup group = NewGroup(GroupKind::Block, corners, node);
        AtLineOf(corners, [&] {
            ReadSize(size.str(), group);
            group.corners = WellsOfPattern(corners.str());
        });
        groups_.push_back(std::move(group));
    }

    /// The groups of the plate that was asked for, or of the only one.
    void AddPlates(const toml::table& file, const String& plateName) {
        const auto* const plates = file["plate"].as_table();
        if (plates == nullptr && !plateName.empty())
            RefuseSource("the layout has no plate " + plateName);
        if (plates == nullptr || plates->empty()) return;
        if (plateName.empty() && plates->size() > 1)
            RefuseSource("the layout has several plates: choose one of " + NamesIn(*plates));
        for (const auto& [key, node] : *plates) {
            if (!plateName.empty() && key.str() != plateName) continue;
            return AddPlate(key, node);
        }
        RefuseSource("the layout has no plate " + plateName + ", only " + NamesIn(*plates));
    }

    static String NamesIn(const toml::table& plates) {
        String names;
        for (const auto& [key, node] : plates)
            names += (names.empty() ? "" : ", ") + Text(key);
        return names;
    }

    void AddPlate(const toml::key& name, const toml::node& node) {
        ofPlate_ = true;
        MapGroup whole;
        whole.ofPlate = true;
        for (const auto& [key, value] : TableAt(name, node)) {
            if (AddKind(key, value)) continue;
            whole.parameters.emplace_back(Text(key), ValueText(key, value));
        }
        groups_.push_back(std::move(whole));
    }

    std::vector<MapGroup> groups_;
    bool ofPlate_ = false;
};

} // namespace

bool HasWellmap() { return true; }

std::vector<MappedWell> ReadWellmap(std::string_view text, const String& plateName) {
    RequireShortKeys(text);
    try {
        return WellsOfLayout(LayoutReader().Read(toml::parse(text), plateName));
    } catch (const toml::parse_error& error) {
        RefuseAt(error.source().begin, String(error.description()));
    }
}

} // namespace zorvane
