#include "support/RegistryFunctions.h"

#include "Test.h"

#include <gtest/gtest.h>

namespace zorvane {
namespace {

const String kKey = "Software\\Tool";

class RegistryFunctions : public testing::Test {
  protected:
    ~RegistryFunctions() override { EXPECT_EQ(process.registry.OpenHandles(), 0); }

    String Read(const String& name) {
        type = -1;
        return GetSettingEx(kLocalMachine, kKey, name, "fallback", type);
    }
    void Put(const String& name, Long valueType, std::string_view data) {
        process.registry.Put(kLocalMachine, kKey, name, valueType, data);
    }

    TestProcess process;
    Long type = -1;
    std::vector<String> names = {"untouched"};
    std::vector<String> values = {"untouched"};
};

TEST_F(RegistryFunctions, ReadsEachTypeOrFallsBack) {
    using namespace std::string_literals;
    EXPECT_EQ(Read("no key"), "fallback");
    EXPECT_EQ(type, -1);
    const auto reads = [&](const char* name, Long valueType, const String& data, const char* text) {
        Put(name, valueType, data);
        EXPECT_EQ(Read(name), text) << name;
        EXPECT_EQ(type, valueType) << name;
    };
    reads("plain", kRegistryString, "abc", "abc");
    reads("ended", kRegistryString, "abc\0def\0"s, "abc");
    reads("empty", kRegistryString, "", "");
    reads("expand", kRegistryExpandString, "%HOME%\0"s, "%HOME%");
    reads("number", kRegistryNumber, "\x1F\0\0\0"s, "&H0000001F");
    reads("negative", kRegistryNumber, "\xFE\xFF\xFF\xFF", "&HFFFFFFFE");
    reads("short number", kRegistryNumber, "\x01", "&H00000001");
    reads("binary", kRegistryBinary, "abc", "");
    EXPECT_EQ(Read("no value"), "fallback");
    Put("longest", kRegistryString, String(255, 'x'));
    EXPECT_EQ(Read("longest"), String(255, 'x'));
    Put("too long", kRegistryString, String(256, 'x'));
    EXPECT_EQ(Read("too long"), "fallback");
}

/// A registry that opens keys and refuses to store values.
class ReadOnlyValues : public Registry {
    Long CreateKey(Long, const String&, Long, Handle& opened) override {
        opened = 1;
        return kRegistrySuccess;
    }
    Long SetValue(Handle, const String&, Long, std::string_view) override {
        return kRegistryMoreData;
    }
};

TEST_F(RegistryFunctions, ShowsWhyNothingWasSaved) {
    process.registry.RefuseWrites(kRegistryAccessDenied);
    process.messages.Expect("Could not open registry key <Software\\Tool> for writing.\r\n"
                            "API Error=5");
    EXPECT_FALSE(SaveSettingEx(kLocalMachine, kKey, "value", "abc"));
    EXPECT_EQ(process.messages.shown.at(0).title, "Registry Functions::SaveSettingEx()");

    struct : MemoryProcess {
        Registry& TheRegistry() override { return values; }
        ReadOnlyValues values;
    } refusing;
    const InstalledProcess installed(refusing);
    EXPECT_FALSE(SaveSettingEx(kLocalMachine, kKey, "value", "abc"));
    const Message& shown = refusing.messages.shown.at(0);
    EXPECT_EQ(shown.prompt, "Could not write data to value <value> in registry key "
                            "<Software\\Tool>\r\nAPI Error=234");
    EXPECT_EQ(shown.title, "Registry Functions::SaveSettingEx()");
}

TEST_F(RegistryFunctions, ListsAtMostFiftyOneValues) {
    for (int i = 0; i < 60; ++i)
        Put("v" + std::to_string(i), kRegistryString, String("x\0", 2));
    EXPECT_EQ(EnumerateValues(kLocalMachine, kKey, names, values), 51);
    EXPECT_EQ(names.size(), 51U);
    EXPECT_EQ(names.back(), "v50");
    EXPECT_EQ(values.back(), String("x\0", 2));
}

TEST_F(RegistryFunctions, LeavesTheListsAloneWhenThereIsNothing) {
    process.messages.Expect("Could not open registry key <Software\\Tool> for writing.\r\n"
                            "API Error=2");
    EXPECT_EQ(EnumerateValues(kLocalMachine, kKey, names, values), 0);
    EXPECT_EQ(process.messages.shown.at(0).title, "Registry Functions::EnumerateValues()");
    Put(String(256, 'n'), kRegistryString, "name too long to list");
    EXPECT_EQ(EnumerateValues(kLocalMachine, kKey, names, values), 0);
    EXPECT_EQ(names, std::vector<String>{"untouched"});
    EXPECT_EQ(values, std::vector<String>{"untouched"});
}

TEST(RegistryText, CutsAndCopiesBytes) {
    EXPECT_EQ(TrimNull(std::string_view("ab\0c\0", 5)), "ab");
    EXPECT_EQ(TrimNull("ab"), "ab");
    EXPECT_EQ(BytesToText(std::string_view("\0\xFFz", 3), 2), String("\0\xFF", 2));
    EXPECT_EQ(BytesToText("abc", -1), "");
    EXPECT_EQ(NumberRaisedBy([] { BytesToText("abc", 4); }), 9);
}

} // namespace
} // namespace zorvane
