#include "TempFolder.h"
#include "ToolRun.h"

namespace zorvane {
namespace {

TEST(PlateRegistry, SetsGetsListsAndExports) {
    const TempFolder folder;
    const String tool = "ZORVANE_REGISTRY=" + Quoted((folder.Path() / "r.sqlite").string()) + " " +
                        Quoted(PLATE_TOOL) + " registry";
    const struct {
        const char* arguments;
        int exitCode;
        const char* out;
        const char* err; ///< null for any
    } steps[] = {
        {"list", 0, "key\n", ""},
        {R"(get 'HKLM\K' V)", 1, "",
         "plate: HKEY_LOCAL_MACHINE\\K: there is no such key or value\n"},
        {R"(set 'HKLM\K\Sub' V 'a "text" \')", 0, "", ""},
        {R"(set 'hkey_local_machine\k' n --dword 4294967295)", 0, "", ""},
        {R"(get 'HKLM\k\sub' v)", 0, "a \"text\" \\\n", ""},
        {R"(get 'HKLM\K' N)", 0, "4294967295\n", ""},
        {R"(get 'HKLM\K' W)", 1, "",
         "plate: HKEY_LOCAL_MACHINE\\K, W: there is no such key or value\n"},
        {R"(list 'HKLM\K' --csv)", 0, "name,type,data\nn,number,4294967295\n", ""},
        {"list --csv", 0, "key\nHKEY_LOCAL_MACHINE\\K\nHKEY_LOCAL_MACHINE\\K\\Sub\n", ""},
        {"set 'HKLM\\K' '' '[HKLM]\n[x]'", 0, "", ""},
        {"set 'HKLM\\K' '\n' -- -5", 0, "", ""},
        {"export", 0,
         "[HKEY_LOCAL_MACHINE\\K]\n\"n\"=dword:ffffffff\n@=hex(1):5b,48,4b,4c,4d,5d,0a,5b,78,5d\n"
         "\"\uFFFD\"=\"-5\"\n\n[HKEY_LOCAL_MACHINE\\K\\Sub]\n"
         "\"V\"=\"a \\\"text\\\" \\\\\"\n",
         ""},
        {R"(export 'HKLM\K\Sub')", 0,
         "[HKEY_LOCAL_MACHINE\\K\\Sub]\n\"V\"=\"a \\\"text\\\" \\\\\"\n", ""},
        {R"(export 'HKCU\K')", 1, "", nullptr},
        {R"(set 'HKLM\K' V)", 2, "",
         "value or --dword is required\nRun with --help for more information.\n"},
        {R"(set 'HKLM\K' V x --dword 1)", 2, "", nullptr},
        {R"(set 'HKLM\K' V --dword -1)", 2, "", nullptr},
        {"set HKLMK V x", 1, "", nullptr},
        {"", 2, "", nullptr},
    };
    for (const auto& step : steps) {
        const ToolRun run(step.arguments, tool);
        EXPECT_EQ(run.exitCode, step.exitCode) << step.arguments << ": " << run.err;
        EXPECT_EQ(run.out, step.out) << step.arguments;
        if (step.err) {
            EXPECT_EQ(run.err, step.err) << step.arguments;
        }
    }
}

TEST(PlateRegistry, AFileThatIsNoRegistryIsLeftAsItIs) {
    const TempFolder folder;
    const String path = (folder.Path() / "letter.txt").string();
    std::ofstream(path) << "Dear operator, this is no registry.";
    const ToolRun run(R"(set 'HKLM\K' V x)",
                      "ZORVANE_REGISTRY=" + Quoted(path) + " " + Quoted(PLATE_TOOL) + " registry");
    EXPECT_EQ(run.err, "plate: HKEY_LOCAL_MACHINE\\K: the registry's file is damaged or holds "
                       "something else (" +
                           path + ")\n");
    EXPECT_EQ(BytesOf(path), "Dear operator, this is no registry.");
}

} // namespace
} // namespace zorvane
