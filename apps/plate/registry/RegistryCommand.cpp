#include "apps/plate/Command.h"
#include "apps/plate/Files.h"
#include "apps/plate/registry/RegistryImport.h"
#include "apps/plate/registry/RegistryKeys.h"
#include "apps/plate/registry/RegistryText.h"
#include "apps/plate/table/Table.h"

#include <cstdint>
#include <limits>
#include <memory>
#include <optional>

namespace zorvane {

namespace {

struct Options {
    String key;
    String name;
    std::optional<String> text;
    std::optional<String> deletedName;
    String file;
    std::optional<std::uint32_t> number;
    TableForm form = TableForm::Aligned;
};

ExitCode Get(const Options& options) {
    SqliteRegistry registry;
    const RegistryPath path = ParseRegistryPath(options.key);
    const OpenKey key(registry, path, false);
    StoredValue value{.name = options.name, .type = 0, .data = {}};
    CheckResult(registry.QueryValue(key.Handle(), options.name, std::numeric_limits<Long>::max(),
                                    value.type, value.data),
                registry, path, options.name);
    Print(DataText(value) + "\n");
    return kDone;
}

ExitCode Set(const Options& options) {
    SqliteRegistry registry;
    const RegistryPath path = ParseRegistryPath(options.key);
    const OpenKey key(registry, path, true);
    const Long type = options.number ? kRegistryNumber : kRegistryString;
    CheckResult(registry.SetValue(key.Handle(), options.name, type,
                                  options.number ? NumberBytes(*options.number) : *options.text),
                registry, path, options.name);
    return kDone;
}

Table KeyTable(const std::vector<RegistryPath>& paths) {
    Table table{{"key"}, {}};
    for (const RegistryPath& path : paths)
        table.rows.push_back({RegistryPathText(path)});
    return table;
}

/// The values of a key; of one that has none, the keys below it.
Table ContentTable(SqliteRegistry& registry, const RegistryPath& path) {
    const auto below = KeysBelow(registry, path);
    // A root is no key of its own.
    const bool root = path.key.empty() && !below.empty();
    const auto values = root ? std::vector<StoredValue>() : ValuesOf(registry, path);
    if (values.empty() && !below.empty()) return KeyTable(below);
    Table table{{"name", "type", "data"}, {}};
    for (const StoredValue& value : values)
        table.rows.push_back({value.name, TypeText(value.type), DataText(value)});
    return table;
}

ExitCode List(const Options& options) {
    SqliteRegistry registry;
    const Table table = options.key.empty()
                            ? KeyTable(AllKeys(registry))
                            : ContentTable(registry, ParseRegistryPath(options.key));
    Print(TableText(table, options.form));
    return kDone;
}

ExitCode Delete(const Options& options) {
    const SqliteRegistry registry;
    const RegistryPath path = ParseRegistryPath(options.key);
    if (path.key.empty()) Fail(RegistryPathText(path) + ": a root cannot be deleted");
    const Long result = options.deletedName
                            ? registry.DeleteValue(path.root, path.key, *options.deletedName)
                            : registry.DeleteKey(path.root, path.key);
    CheckResult(result, registry, path, options.deletedName.value_or(String()));
    return kDone;
}

ExitCode Import(const Options& options) {
    const String text = ReadFile(options.file);
    const auto keys = WithFile(options.file, [&] { return ReadExportText(text); });
    SqliteRegistry registry;
    for (const ImportedKey& each : keys) {
        const OpenKey key(registry, each.path, true);
        for (const StoredValue& value : each.values) {
            CheckResult(registry.SetValue(key.Handle(), value.name, value.type, value.data),
                        registry, each.path, value.name);
        }
    }
    return kDone;
}

ExitCode Export(const Options& options) {
    SqliteRegistry registry;
    std::optional<RegistryPath> start;
    if (!options.key.empty()) start = ParseRegistryPath(options.key);
    String text;
    for (const RegistryPath& path : AllKeys(registry)) {
        if (start && !LiesIn(path, *start)) continue;
        text += (text.empty() ? "" : "\n") +
                ExportText(RegistryPathText(path), ValuesOf(registry, path));
    }
    if (text.empty() && start) CheckResult(kRegistryNotFound, registry, *start);
    Print(text);
    return kDone;
}

} // namespace

Command MakeRegistryCommand(CLI::App& app) {
    auto* const parser =
        app.add_subcommand("registry", "Read and change the registry that programs here share");
    parser->require_subcommand(1);
    auto options = std::make_shared<Options>();
    const auto add = [&](const char* name, const char* what) {
        return parser->add_subcommand(name, what);
    };
    const auto takeKey = [options](CLI::App& command, const char* what) {
        return command.add_option("key", options->key, what);
    };

    auto* const get = add("get", "Print a value");
    takeKey(*get, "ROOT\\KEY")->required();
    get->add_option("name", options->name, "Name of the value")->required();

    auto* const set = add("set", "Write a value");
    takeKey(*set, "ROOT\\KEY")->required();
    set->add_option("name", options->name, "Name of the value")->required();
    auto* const text = set->add_option("value", options->text, "Text to write");
    set->add_option("--dword", options->number, "Number of 32 bits to write instead")
        ->excludes(text);
    set->callback([options] {
        if (!options->text && !options->number) throw CLI::RequiredError("value or --dword");
    });

    auto* const list =
        add("list", "List the values of a key, or the keys below one that has no values");
    takeKey(*list, "ROOT\\KEY; all keys are listed without it");
    AddFormOptions(*list, options->form);

    auto* const write = add("export", "Write keys and values as text to read and compare");
    takeKey(*write, "ROOT\\KEY to begin at");

    auto* const remove = add("delete", "Delete a value, or a key with everything below it");
    takeKey(*remove, "ROOT\\KEY")->required();
    remove->add_option("name", options->deletedName,
                       "Name of the value; the key is deleted without it");

    auto* const read = add("import", "Write the keys and values that \"export\" has written");
    read->add_option("file", options->file, "File to read; \"-\" is standard input")->required();

    parser->footer("Tell every control on this machine where its plate library lies:\n"
                   "  plate registry set 'HKLM\\Software\\Brasquel\\Directories' GlobalDataDir "
                   "/data/plates/\n"
                   "Environment:\n"
                   "  ZORVANE_REGISTRY  a file for the registry, in place of those of the user and "
                   "of\n"
                   "                    the machine");
    return {parser, [=] {
                if (get->parsed()) return Get(*options);
                if (set->parsed()) return Set(*options);
                if (list->parsed()) return List(*options);
                if (remove->parsed()) return Delete(*options);
                return read->parsed() ? Import(*options) : Export(*options);
            }};
}

} // namespace zorvane
