#include "Test.h"
#include "support/TStringPairList.h"
#include "support/XMLFile.h"

namespace zorvane {
namespace {

constexpr Long kRoot = kCurrentUser;
const String kKey = "Software\\Tool\\Pairs";

using Pairs = std::vector<std::pair<String, String>>;

Pairs PairsOf(const TStringPairList& list) {
    Pairs pairs;
    for (const auto& pair : list)
        pairs.emplace_back(pair->Name(), pair->Value());
    return pairs;
}

void Fill(TStringPairList& list, const Pairs& pairs) {
    for (const auto& [name, value] : pairs)
        list.Add(std::make_shared<TStringPair>(name, value));
}

void Write(const TStringPairList& list, const String& path) {
    XMLFile x;
    x.FileName(path);
    list.WriteToXML(x);
    x.CloseXMLFile();
}

void Read(TStringPairList& list, const String& path) {
    XMLFile x;
    x.FileName(path);
    list.ReadFromXML(x);
}

String Bytes(const TStringPairList& list) {
    const TempFile file;
    Write(list, file.Path());
    return file.Bytes();
}

TEST(PairListXML, WritesAllButPairsThatRepeatTheirName) {
    TStringPairList list;
    EXPECT_EQ(Bytes(list), "<?xml version=\"1.0\"?>\r\n<PairList>\r\n</PairList>\r\n");
    list.Name = "Tags";
    Fill(list, {{"Colour", "Red"}, {"ABC", "abc"}, {"a \"b\"", ""}, {"", "<1>"}, {"\n", "\n"}});
    EXPECT_EQ(Bytes(list), "<?xml version=\"1.0\"?>\r\n"
                           "<PairList>\r\n"
                           " <Name>&quot;Tags&quot;</Name>\r\n"
                           " <Field Name=\"Colour\">\r\n"
                           "  <Name>Colour</Name>\r\n"
                           "  <Value>Red</Value>\r\n"
                           " </Field>\r\n"
                           " <Field Name=\"a \"\"b\"\"\">\r\n"
                           "  <Name>a &quot;b&quot;</Name>\r\n"
                           "  <Value/>\r\n"
                           " </Field>\r\n"
                           " <Field Name=\"\">\r\n"
                           "  <Name/>\r\n"
                           "  <Value>&lt;1&gt;</Value>\r\n"
                           " </Field>\r\n"
                           "</PairList>\r\n");
}

TEST(PairListXML, ReadsFieldsInAnyCaseAndKeepsTheQuotesOfTheName) {
    const TempFile file("<?xml version=\"1.0\"?>\n<Other><pairlist><NAME>&quot;Tags&quot;</NAME>\n"
                        "<field Name=\"not this\"><value>1</value><More/><name>A</name></field>\n"
                        "<Field><Name>B</Name></Field>\n"
                        "<Field><Value>2</Value><Name>a</Name><Name>b</Name></Field>"
                        "</pairlist><Name>outside</Name>");
    TStringPairList list;
    Fill(list, {{"old", "gone"}});
    Read(list, file.Path());
    EXPECT_EQ(list.Name, "\"Tags\"");
    EXPECT_EQ(PairsOf(list), (Pairs{{"A", "1"}, {"b", "2"}}));
}

class PairListRegistry : public testing::Test {
  protected:
    void ExpectNoEntries() {
        process.messages.Expect("Could not open registry key <" + kKey +
                                "\\Entries> for writing.\r\nAPI Error=2");
    }

    TestProcess process;
    TStringPairList list;
};

TEST_F(PairListRegistry, AddsWhatWasWrittenAndWhatWasLeftBehind) {
    list.Name = "Tags";
    Fill(list, {{"A", "1"}, {"B", "b"}, {"C", "3"}});
    EXPECT_FALSE(list.WriteToRegistry(kRoot, kKey));
    list.Remove("A");
    list.WriteToRegistry(kRoot, kKey);
    TStringPairList read;
    Fill(read, {{"b", "replaced"}, {"Z", "kept"}});
    EXPECT_FALSE(read.ReadFromRegistry(kRoot, kKey));
    EXPECT_EQ(read.Name, "Tags");
    EXPECT_EQ(PairsOf(read), (Pairs{{"Z", "kept"}, {"A", "1"}, {"B", "b"}, {"C", "3"}}));
}

TEST_F(PairListRegistry, RefusesKeysThatHoldNoList) {
    ExpectNoEntries();
    EXPECT_EQ(NumberRaisedBy([&] { list.ReadFromRegistry(kRoot, kKey); }), 9);
    process.registry.Put(kRoot, kKey, "Name", kRegistryString, "Tags");
    process.registry.Put(kRoot, kKey, "Count", kRegistryNumber, {"\x02\0\0\0", 4});
    ExpectNoEntries();
    EXPECT_EQ(NumberRaisedBy([&] { list.ReadFromRegistry(kRoot, kKey); }), 9);
    EXPECT_EQ(list.Name, "Tags");
    process.registry.Put(kRoot, kKey + "\\Entries", "A", kRegistryString, "1");
    const struct {
        const char* count;
        Long number;
    } rows[] = {{"many", 13}, {"", 13}, {"40000", 6}, {" 1.5 ", 0}};
    for (const auto& row : rows) {
        process.registry.Put(kRoot, kKey, "Count", kRegistryString, row.count);
        list.Name = "before";
        EXPECT_EQ(NumberRaisedBy([&] { list.ReadFromRegistry(kRoot, kKey); }), row.number);
        EXPECT_EQ(list.Name, row.number == 0 ? "Tags" : "before") << row.count;
    }
}

} // namespace
} // namespace zorvane
