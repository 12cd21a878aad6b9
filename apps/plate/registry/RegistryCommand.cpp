#include "apps/plate/Command.h"
#include "apps/plate/Files.h"
#include "apps/plate/registry/RegistryPath.h"
#include "apps/plate/registry/RegistryText.h"
#include "apps/plate/table/Table.h"
#include "platform/sqlite/SqliteRegistry.h"
#include "runtime/Text.h"

#include <cstdint>
#include <filesystem>
#include <limits>
#include <memory>
#include <optional>

namespace zorvane {

namespace {

struct Options {
    String key;
    String name;
    std::optional<String> text;
    std::optional<std::uint32_t> number;
    TableForm form = TableForm::Aligned;
};

/// Where a root's keys are kept, for the user to look at.
String PlacesText(const SqliteRegistry& registry, Long root) {
    String text;
    for (const std::filesystem::path& file : registry.Files(root))
        text += (text.empty() ? " (" : ", ") + file.string();
    return text.empty() ? " (no HOME or ZORVANE_REGISTRY says where its file is)" : text + ")";
}

/// Fails with what a result means, naming what was asked for.
void Check(Long result, const SqliteRegistry& registry, const RegistryPath& path,
           const String& name = {}) {
    if (result == kRegistrySuccess) return;
    const String what = RegistryPathText(path) + (name.empty() ? "" : ", " + name);
    Fail(what + ": " + RegistryResultText(result) +
         (result == kRegistryNotFound ? "" : PlacesText(registry, path.root)));
}

/// A key that is closed when it goes.
class OpenKey {
  public:
    OpenKey(SqliteRegistry& registry, const RegistryPath& path, bool make) : registry_(registry) {
        const Long result = make ? registry.CreateKey(path.root, path.key, kAllAccess, handle_)
                                 : registry.OpenKey(path.root, path.key, kReadAccess, handle_);
        Check(result, registry, path);
    }
    ~OpenKey() { registry_.CloseKey(handle_); }
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;

    Registry::Handle Handle() const { return handle_; }

  private:
    Registry& registry_;
    Registry::Handle handle_ = 0;
};

std::vector<StoredValue> ValuesOf(SqliteRegistry& registry, const RegistryPath& path) {
    const OpenKey key(registry, path, false);
    std::vector<StoredValue> values;
    Check(registry.Values(path.root, path.key, values), registry, path);
    return values;
}

std::vector<RegistryPath> AllKeys(const SqliteRegistry& registry) {
    std::vector<StoredKey> keys;
    Check(registry.Keys(keys), registry, {kLocalMachine, {}});
    std::vector<RegistryPath> paths;
    paths.reserve(keys.size());
    for (const StoredKey& key : keys)
        paths.push_back({key.root, key.path});
    return paths;
}

ExitCode Get(const Options& options) {
    SqliteRegistry registry;
    const RegistryPath path = ParseRegistryPath(options.key);
    const OpenKey key(registry, path, false);
    StoredValue value{.name = options.name, .type = 0, .data = {}};
    Check(registry.QueryValue(key.Handle(), options.name, std::numeric_limits<Long>::max(),
                              value.type, value.data),
          registry, path, options.name);
    Print(DataText(value) + "\n");
    return kDone;
}

String NumberBytes(std::uint32_t number) {
    String bytes;
    for (int shift = 0; shift < 32; shift += 8)
        bytes += static_cast<char>(number >> shift & 0xFF);
    return bytes;
}

ExitCode Set(const Options& options) {
    SqliteRegistry registry;
    const RegistryPath path = ParseRegistryPath(options.key);
    const OpenKey key(registry, path, true);
    const Long type = options.number ? kRegistryNumber : kRegistryString;
    Check(registry.SetValue(key.Handle(), options.name, type,
                            options.number ? NumberBytes(*options.number) : *options.text),
          registry, path, options.name);
    return kDone;
}

ExitCode List(const Options& options) {
    SqliteRegistry registry;
    Table table;
    if (options.key.empty()) {
        table.columns = {"key"};
        for (const RegistryPath& path : AllKeys(registry))
            table.rows.push_back({RegistryPathText(path)});
    } else {
        table.columns = {"name", "type", "data"};
        for (const StoredValue& value : ValuesOf(registry, ParseRegistryPath(options.key)))
            table.rows.push_back({value.name, TypeText(value.type), DataText(value)});
    }
    Print(TableText(table, options.form));
    return kDone;
}

bool LiesIn(const RegistryPath& path, const RegistryPath& parent) {
    if (path.root != parent.root) return false;
    return parent.key.empty() || EqualNoCase(path.key, parent.key) ||
           StartsWithNoCase(path.key, parent.key + "\\");
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
    if (text.empty() && start) Check(kRegistryNotFound, registry, *start);
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

    auto* const list = add("list", "List the values of a key, or all keys");
    takeKey(*list, "ROOT\\KEY; all keys are listed without it");
    AddFormOptions(*list, options->form);

    auto* const write = add("export", "Write keys and values as text to read and compare");
    takeKey(*write, "ROOT\\KEY to begin at");

    parser->footer("Tell every control on this machine where its plate library lies:\n"
                   "  plate registry set 'HKLM\\Software\\Brasquel\\Directories' GlobalDataDir "
                   "/data/plates/");
    return {parser, [=] {
                if (get->parsed()) return Get(*options);
                if (set->parsed()) return Set(*options);
                return list->parsed() ? List(*options) : Export(*options);
            }};
}

} // namespace zorvane
