#include "hosts/qt/PlateWidget.h"
#include "interface/MemberList.h"

#include <QMetaMethod>
#include <QMetaProperty>

#include <gtest/gtest.h>

#include <cctype>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

namespace zorvane {
namespace {

const QMetaObject& Class() { return PlateWidget::staticMetaObject; }

bool HasMethod(const String& name, bool isSignal) {
    for (int i = Class().methodOffset(); i < Class().methodCount(); ++i) {
        const QMetaMethod method = Class().method(i);
        if (method.name() == name.c_str() && isSignal == (method.methodType() == method.Signal))
            return true;
    }
    return false;
}

/// What the widget calls a member of the control, where that is not its name.
std::map<String, String> OtherNames() {
    std::map<String, String> names;
    std::ifstream file(ZORVANE_OTHER_NAMES);
    for (String line; std::getline(file, line);) {
        std::istringstream words(line);
        String member, equals, name;
        if (words >> member >> equals >> name) names[member] = name;
    }
    return names;
}

String NameOf(const MemberDescription& member) {
    static const auto others = OtherNames();
    String name(member.name);
    name[0] = static_cast<char>(std::tolower(name[0]));
    if (member.kind == MemberKind::Event) name += "()";
    const auto other = others.find(name);
    return other == others.end() ? name : other->second;
}

TEST(WidgetInterface, HasEveryMemberOfTheControl) {
    for (const MemberGroupDescription& group : ListMembers()) {
        for (const MemberDescription& member : group.members) {
            const String name = NameOf(member);
            const bool isProperty = Class().indexOfProperty(name.c_str()) >= 0;
            const bool isEvent = member.kind == MemberKind::Event;
            EXPECT_TRUE(HasMethod(name, isEvent) || (isProperty && !isEvent)) << name;
        }
    }
}

TEST(WidgetInterface, FormsKeepTheSavedSettingsAndTheWidgetsOwn) {
    std::set<String> kept{"aids", "refitOnResize", "detailsDetached"};
    for (const MemberGroupDescription& group : ListMembers()) {
        for (const MemberDescription& member : group.members)
            if (member.saved) kept.insert(NameOf(member));
    }
    for (int i = Class().propertyOffset(); i < Class().propertyCount(); ++i) {
        const QMetaProperty property = Class().property(i);
        const bool isKept = kept.erase(property.name()) > 0;
        EXPECT_EQ(property.isStored(), isKept) << property.name();
        EXPECT_EQ(property.isDesignable(), isKept) << property.name();
        EXPECT_TRUE(!isKept || property.isResettable()) << property.name();
    }
    EXPECT_TRUE(kept.empty());
}

} // namespace
} // namespace zorvane
