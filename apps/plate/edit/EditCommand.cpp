#include "apps/plate/Arguments.h"
#include "apps/plate/Command.h"
#include "apps/plate/Files.h"
#include "apps/plate/edit/PlateEdits.h"
#include "library/DefinitionLimits.h"
#include "library/DiskFiles.h"
#include "library/LibraryDocument.h"
#include "library/LineDifference.h"
#include "library/ReadBack.h"
#include "library/ReplaceFile.h"

#include <iostream>
#include <map>
#include <memory>
#include <vector>

namespace zorvane {

namespace {

/// An option that changes the plate; without a form it takes no argument.
struct EditOption {
    const char* name;
    const char* form;
    const char* help;
    PlateEdit (*make)(const String& argument);
};

constexpr EditOption kEditOptions[] = {
    {"--rotate90", "", "Turn the plate counter-clockwise by a quarter", Rotation},
    {"--shift", "X,Y,Z", "Move all sub-wells by millimetres; a positive Z raises their bottoms",
     Shift},
    {"--rename", "OLD=NEW", "Give a sub-well another name", Renaming},
    {"--swap", "A,B", "Exchange two sub-wells in their order", Exchange},
    {"--remove", "NAME", "Remove a sub-well", Removal},
    {"--add", "NEW=FROM", "Add a sub-well with the values of another one", Addition},
};

struct Options {
    String plateLibrary;
    String plate;
    bool inPlace = false;
    bool difference = false;
    std::map<const CLI::Option*, const EditOption*> edits;
};

void AddEditOption(CLI::App& parser, Options& options, const EditOption& edit) {
    const bool takesArgument = *edit.form != '\0';
    CLI::Option* const option =
        takesArgument ? parser.add_option(edit.name, edit.help) : parser.add_flag(edit.name);
    options.edits[option] = &edit;
    option->description(edit.help);
    if (!takesArgument) return;
    option->type_name(edit.form)
        ->expected(1)
        ->allow_extra_args(false)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->check([make = edit.make](const String& argument) {
            try {
                make(argument);
            } catch (const RuntimeError& error) {
                return error.Description();
            }
            return String();
        });
}

/// The changes in the order of the command line.
std::vector<PlateEdit> EditsIn(const CLI::App& parser, const Options& options) {
    std::vector<PlateEdit> edits;
    std::map<const CLI::Option*, std::size_t> taken;
    for (const CLI::Option* const option : parser.parse_order()) {
        const auto edit = options.edits.find(option);
        if (edit == options.edits.end()) continue;
        edits.push_back(edit->second->make(option->results().at(taken[option]++)));
    }
    return edits;
}

String Edited(const LibraryText& library, const String& name, const std::vector<PlateEdit>& edits) {
    cmPlate plate = library.PlateOf(library.Get(name));
    for (const PlateEdit& edit : edits)
        edit(plate);
    const String difference = ValueNotReadBack(plate);
    if (!difference.empty()) {
        Fail("the changed definition of \"" + plate.PlateName() +
             "\" would be read back as another plate, " + difference);
    }
    return plate.Text();
}

/// A library before and after the edits of a plate.
struct Change {
    String definition; ///< of the plate, changed
    LibraryText before;
    LibraryText after;
};

Change ChangeOf(const LibraryText& library, const std::vector<PlateEdit>& edits,
                const Options& options) {
    return WithFile(options.plateLibrary, [&]() -> Change {
        try {
            const String definition = Edited(library, options.plate, edits);
            return {definition, library, library.WithReplaced(definition)};
        } catch (const RuntimeError& error) {
            if (!error.Is(ErrorNumber::Overflow)) throw;
            Fail(options.plate + PlateFailureText(error));
        }
    });
}

void PrintDifference(const Change& change, const Options& options) {
    Print(UnifiedDifference(change.before.Bytes(), change.after.Bytes(), options.plateLibrary));
}

ExitCode EditText(const std::vector<PlateEdit>& edits, const Options& options) {
    const Change change = ChangeOf(ReadLibrary(options.plateLibrary), edits, options);
    options.difference ? PrintDifference(change, options) : Print(change.definition);
    return kDone;
}

ExitCode EditFile(const std::vector<PlateEdit>& edits, const Options& options) {
    if (IsStandard(options.plateLibrary)) Fail("standard input cannot be changed in place");
    DiskFiles files;
    const auto lock = LockForSaving(files, options.plateLibrary);
    LibraryDocument document(files, options.plateLibrary);
    WithFile(options.plateLibrary, [&] { CheckDefinitionSizes(document.Text().Bytes()); });
    const Change change = ChangeOf(document.Text(), edits, options);
    // Printed first: once it is saved, the answer must not be that it failed.
    if (options.difference) PrintDifference(change, options);
    if (change.after.Bytes() != change.before.Bytes()) document.Save(change.after);
    return kDone;
}

ExitCode Run(const CLI::App& parser, const Options& options) {
    const std::vector<PlateEdit> edits = EditsIn(parser, options);
    if (edits.empty()) {
        std::cerr << "plate: no change is given; \"plate edit --help\" lists them\n";
        return kWrongUsage;
    }
    return options.inPlace ? EditFile(edits, options) : EditText(edits, options);
}

} // namespace

Command MakeEditCommand(CLI::App& app) {
    auto* const parser = app.add_subcommand("edit", "Change the definition of a plate");
    auto options = std::make_shared<Options>();
    AddLibraryArgument(*parser, options->plateLibrary);
    AddPlateArgument(*parser, options->plate);
    for (const EditOption& edit : kEditOptions)
        AddEditOption(*parser, *options, edit);
    parser->add_flag("--in-place", options->inPlace, "Save the change in the library");
    parser->add_flag("--diff", options->difference,
                     "Write what changes in the library instead of the new definition");
    parser->footer(
        "Changes can be given several times and are made in the order given. Without\n"
        "--in-place the new definition goes to standard output. The library keeps all its\n"
        "other bytes, and its previous content is kept next to it, with \"~\" after its name.\n"
        "Examples:\n"
        "  plate edit Plates.Dat Batch_96 --rotate90 --diff\n"
        "  plate edit Plates.Dat Batch_96 --rename Drop1=Drop --shift 0,0.5,0 --in-place");
    return {parser, [parser, options] { return Run(*parser, *options); }};
}

} // namespace zorvane
