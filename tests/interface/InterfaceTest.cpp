#include "Test.h"
#include "interface/DescribePlate.h"
#include "interface/MemberList.h"
#include "interface/ReferencePage.h"
#include "platform/memory/MemoryPropertyStore.h"
#include "platform/memory/MemorySite.h"

#include <map>

namespace zorvane {
namespace {

/// Compares with a file; a difference leaves what should be in it next to it.
void ExpectInFile(const String& text, const String& file) {
    std::ifstream stream(file, std::ios::binary);
    if (String(std::istreambuf_iterator<char>(stream), {}) == text) return;
    std::ofstream(file + ".new", std::ios::binary) << text;
    ADD_FAILURE() << file << " differs from the table of members, see " << file << ".new";
}

TEST(ReferencePage, IsTheOneInTheTree) { ExpectInFile(ReferencePage(), ZORVANE_REFERENCE_PAGE); }

// Programs call by these numbers: a new member takes the next one and a line at the end.
TEST(MemberTable, KeepsItsNumbers) {
    std::map<std::pair<bool, int>, String> names;
    for (const MemberGroupDescription& group : ListMembers()) {
        for (const MemberDescription& member : group.members)
            names[{member.kind == MemberKind::Event, member.number}] += member.name;
    }
    String lines;
    for (const auto& [key, name] : names)
        lines += (key.first ? "event " : "") + name + '=' + std::to_string(key.second) + '\n';
    ExpectInFile(lines, ZORVANE_NUMBERS);
}

TEST(MemberTable, MarksTheSavedSettings) {
    MemorySite site;
    MemoryPropertyStore store;
    Plate(site).SaveProperties(store);
    std::map<String, std::size_t> saved, marked;
    for (const auto& [key, value] : store.values)
        saved[key] = value.index();
    for (const MemberGroupDescription& group : ListMembers()) {
        for (const MemberDescription& member : group.members)
            if (member.saved) marked[String(member.name)] = member.saved->index();
    }
    EXPECT_EQ(marked, saved);
}

/// Checks that a row points to members of its own name, which the compiler spells in its type, and
/// to the setting of that name.
struct PointerCheck {
    template <class Row>
    void operator()(const Row& row) {
        const String type = __PRETTY_FUNCTION__;
        std::size_t at = type.find("&zorvane::");
        EXPECT_EQ(at == String::npos, (std::is_same_v<Row, MemberGroup>)) << type;
        for (; at != String::npos; at = type.find("&zorvane::", at + 1)) {
            const String pointer = type.substr(at, type.find_first_of(",;>])", at) - at);
            EXPECT_TRUE(pointer.ends_with("::" + String(row.name))) << type;
        }
        if constexpr (requires { row.setting; }) {
            EXPECT_TRUE(!row.setting || row.setting->key == row.name) << row.name;
        }
    }
};

TEST(MemberTable, NamesTheMembersItPointsTo) {
    PointerCheck check;
    DescribePlate(check);
}

} // namespace
} // namespace zorvane
