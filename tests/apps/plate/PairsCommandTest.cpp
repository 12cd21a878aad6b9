#include "ToolRun.h"

namespace zorvane {
namespace {

/// A folder of its own for one test, with the tool run in it.
struct PairsFolder {
    PairsFolder() { std::filesystem::create_directory(path); }
    ~PairsFolder() { std::filesystem::remove_all(path); }

    ToolRun Pairs(const String& arguments) const {
        return ToolRun("cd " + Quoted(path) + "; ZORVANE_REGISTRY=$PWD/registry.sqlite " +
                           Quoted(PLATE_TOOL) + " pairs " + arguments,
                       "");
    }
    void Write(const String& bytes) const {
        std::ofstream(path + "/a.xml", std::ios::binary) << bytes;
    }
    String Bytes() const { return BytesOf(path + "/a.xml"); }
    auto Files() const {
        const std::filesystem::directory_iterator files(path);
        return std::distance(begin(files), end(files));
    }

    // Tests run side by side.
    const String path = testing::TempDir() + "pairs_" +
                        testing::UnitTest::GetInstance()->current_test_info()->name();
};

String Saved(const String& lines) {
    return "<?xml version=\"1.0\"?>\r\n<PairList>\r\n" + lines + "</PairList>\r\n";
}

TEST(PlatePairs, ShowsAndChangesAList) {
    const PairsFolder folder;
    const struct {
        const char* arguments;
        const char* out;
        const char* err;
    } steps[] = {
        {"a.xml --set Colour=Red --set 'Size=\"a\"=<b>'",
         "name    value\nColour  Red\nSize    \"a\"=<b>\n", ""},
        {"a.xml --csv", "name,value\nColour,Red\nSize,\"\"\"a\"\"=<b>\"\n", ""},
        {"a.xml --remove size --set colour= --json",
         "[\n  {\"name\": \"Colour\", \"value\": \"\"}\n]\n", ""},
        {"a.xml --set Same=SAME --set 'Lines=a\n b' --csv",
         "name,value\nColour,\nSame,SAME\nLines,\"a\n b\"\n",
         "plate: warning: Same: is not kept, because its value is its name\n"
         "plate: warning: Lines: its value is not kept as it is\n"},
        {"a.xml --csv", "name,value\nColour,\nLines,ab\n", ""},
    };
    for (const auto& step : steps) {
        const ToolRun run = folder.Pairs(step.arguments);
        EXPECT_EQ(run.exitCode, 0) << step.arguments;
        EXPECT_EQ(run.out, step.out) << step.arguments;
        EXPECT_EQ(run.err, step.err) << step.arguments;
    }
    EXPECT_EQ(folder.Files(), 1);
}

TEST(PlatePairs, WritesTheNameOfAListBackAsItWas) {
    const PairsFolder folder;
    const String name = " <Name>&quot;The &quot;&quot;best&quot;&quot; tags&quot;</Name>\r\n";
    const String field = " <Field Name=\"A\">\r\n  <Name>A</Name>\r\n  <Value>1</Value>\r\n"
                         " </Field>\r\n";
    folder.Write(Saved(name));
    for (int round = 0; round < 2; ++round) {
        folder.Pairs("a.xml --set A=1");
        EXPECT_EQ(folder.Bytes(), Saved(name + field));
    }
}

TEST(PlatePairs, ExchangesListsWithTheRegistry) {
    const PairsFolder folder;
    folder.Write(Saved(" <Name>&quot;N&quot;</Name>\r\n"));
    EXPECT_EQ(folder.Pairs("a.xml --set A=1 --set B=b --to-registry 'HKCU\\Tool'").exitCode, 0);
    const ToolRun run = folder.Pairs("new.xml --from-registry 'hkey_current_user\\tool' --csv");
    EXPECT_EQ(run.out, "name,value\nA,1\nB,b\n");
    EXPECT_EQ(run.err, "plate: warning: B: is not kept, because its value is its name\n");
    EXPECT_EQ(BytesOf(folder.path + "/new.xml"), folder.Bytes());
    EXPECT_NE(folder.Bytes().find("<Name>&quot;N&quot;</Name>"), String::npos);

    String many = "a.xml --to-registry 'HKCU\\Many'";
    for (int i = 0; i < 60; ++i)
        many += " --set v" + std::to_string(i) + "=1";
    const ToolRun cut = folder.Pairs(many);
    EXPECT_EQ(cut.exitCode, 1);
    EXPECT_NE(cut.err.find("HKEY_CURRENT_USER\\Many: 10 of the pairs cannot be read back"),
              String::npos)
        << cut.err;
    EXPECT_EQ(folder.Pairs("b.xml --from-registry 'HKCU\\None'").exitCode, 1);
}

TEST(PlatePairs, LeavesTheFileAloneWhenItFails) {
    const PairsFolder folder;
    std::filesystem::create_directory(folder.path + "/folder");
    const String list = Saved(" <Name>&quot;N&quot;</Name>\r\n");
    const struct {
        String bytes;
        const char* arguments;
        int exitCode;
        const char* err; ///< null for any
    } rows[] = {
        {list, "a.xml --set 'a>b=1'", 1,
         "plate: a.xml: not changed: a name with a \">\" or a line break in it cannot be saved\n"},
        {list, "a.xml --set B=1 --remove A", 1, "plate: a.xml: there is no pair \"A\" to remove\n"},
        {list + "<PairList></PairList>", "a.xml --set B=1", 1,
         "plate: a.xml: holds more than a list of pairs, and is not changed\n"},
        {list, "a.xml --set B=1 >/dev/full", 1, "plate: standard output: cannot be written\n"},
        {list.substr(0, 35), "a.xml --set B=1", 1,
         "plate: Could not read data from XMLFile <a.xml>\n"},
        {"plain", "a.xml", 1, "plate: Could not open XMLFile <a.xml> for reading.\n"},
        {Saved("<Name\r\n"), "a.xml", 1, "plate: XML section header missing in file a.xml\n"},
        {Saved("</PairList>"), "a.xml --set B=1", 1,
         "plate: a.xml: holds more than a list of pairs, and is not changed\n"},
        {"<?xml version=\"1.0\"?></a>\n</a>", "a.xml", 1,
         "plate: a.xml: sections are nested too deeply, or end before they begin\n"},
        {list, "missing.xml", 1, "plate: Could not open XMLFile <missing.xml> for reading.\n"},
        {list, "missing/a.xml --set A=1", 1, "plate: missing/a.xml: cannot be written\n"},
        {list, "folder --set A=1", 1, "plate: Could not open XMLFile <folder> for reading.\n"},
        {list, "a.xml --from-registry NO_ROOT\\\\KEY", 1, nullptr},
        {list, "a.xml --set =1", 2, nullptr},
        {list, "a.xml --set A", 2, nullptr},
    };
    for (const auto& row : rows) {
        folder.Write(row.bytes);
        const ToolRun run = folder.Pairs(row.arguments);
        EXPECT_EQ(run.exitCode, row.exitCode) << row.arguments;
        if (row.err) {
            EXPECT_EQ(run.err, row.err) << row.arguments;
        }
        if (String(row.arguments).find("/dev/full") == String::npos) {
            EXPECT_EQ(folder.Bytes(), row.bytes) << row.arguments;
        }
        EXPECT_EQ(folder.Files(), 2) << row.arguments;
    }
}

} // namespace
} // namespace zorvane
