#include "apps/plate/Command.h"
#include "apps/plate/Files.h"
#include "apps/plate/pairs/RegistryPairs.h"
#include "apps/plate/pairs/SavedPairs.h"
#include "apps/plate/table/Table.h"

#include <memory>
#include <optional>

namespace zorvane {

namespace {

struct Options {
    String file;
    std::vector<String> set;
    std::vector<String> remove;
    String fromRegistry;
    String toRegistry;
    TableForm form = TableForm::Aligned;
};

Table TableOf(const TStringPairList& list) {
    Table table{{"name", "value"}, {}};
    for (const auto& pair : list)
        table.rows.push_back({pair->Name(), pair->Value()});
    return table;
}

String CheckAssignment(const String& text) {
    const std::size_t equals = text.find('=');
    const bool good = equals != text.npos && equals > 0;
    return good ? String() : "\"" + text + "\" is not NAME=VALUE";
}

void Change(TStringPairList& list, const Options& options) {
    for (const String& name : options.remove) {
        if (!list.Find(name)) Fail(options.file + ": there is no pair \"" + name + "\" to remove");
        list.Remove(name);
    }
    for (const String& assignment : options.set) {
        const std::size_t equals = assignment.find('=');
        list.Value(assignment.substr(0, equals), assignment.substr(equals + 1));
    }
}

std::optional<RegistryPath> PathOf(const String& text) {
    return text.empty() ? std::nullopt : std::optional(ParseRegistryPath(text));
}

ExitCode Run(const Options& options) {
    const std::optional<RegistryPath> from = PathOf(options.fromRegistry);
    const std::optional<RegistryPath> to = PathOf(options.toRegistry);
    const bool adds = from || !options.set.empty();
    const bool changes = adds || !options.remove.empty();
    SavedPairs saved(options.file);
    TStringPairList list;
    changes ? saved.ReadToChange(list, adds) : saved.Read(list);
    if (from) AddPairs(list, *from);
    Change(list, options);
    if (changes) saved.Prepare(list);
    // Printed first: once it is saved, the answer must not be that it failed.
    Print(TableText(TableOf(list), options.form));
    if (changes) saved.Save();
    if (to) StorePairs(list, *to);
    return kDone;
}

void AddOptions(CLI::App& parser, Options& options) {
    parser
        .add_option("file", options.file, "XML file with a list of pairs; \"-\" is standard input")
        ->required();
    parser.add_option("--from-registry", options.fromRegistry, "Add the pairs stored in a key")
        ->type_name("ROOT\\KEY");
    parser.add_option("--remove", options.remove, "Remove a pair, named in any letter case")
        ->type_name("NAME")
        ->allow_extra_args(false);
    parser.add_option("--set", options.set, "Set the value of a pair, or add one")
        ->check(CheckAssignment)
        ->type_name("NAME=VALUE")
        ->allow_extra_args(false);
    parser.add_option("--to-registry", options.toRegistry, "Store the pairs in a key")
        ->type_name("ROOT\\KEY");
    AddFormOptions(parser, options.form);
}

} // namespace

Command MakePairsCommand(CLI::App& app) {
    auto* const parser = app.add_subcommand("pairs", "Show or change a saved list of pairs");
    auto options = std::make_shared<Options>();
    AddOptions(*parser, *options);
    parser->footer(
        "--remove and --set can be given several times. Pairs from the registry are added first,\n"
        "then pairs are removed, then values set; the file is replaced when all of that worked,\n"
        "or begun where there is none. Roots are HKEY_LOCAL_MACHINE (HKLM) and\n"
        "HKEY_CURRENT_USER (HKCU). A file does not keep a pair whose value is its name.\n"
        "Examples:\n"
        "  plate pairs tags.xml --json\n"
        "  plate pairs tags.xml --set Colour=Red --remove Size\n"
        "  plate pairs tags.xml --to-registry 'HKCU\\Software\\Tool\\Tags'");
    return {parser, [options] { return Run(*options); }};
}

} // namespace zorvane
