#include "apps/viewer/CommandLine.h"

#include <QCommandLineParser>

#include <algorithm>
#include <string_view>

namespace zorvane::viewer {

CommandLine::CommandLine(const QCoreApplication& app) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("Shows the plates of a library, and the data of their wells."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption({QStringLiteral("picture"),
                      tr("Write the picture of a plate to a file and exit."), tr("plate")});
    parser.addOption({{QStringLiteral("o"), QStringLiteral("output")},
                      tr("The image file that --picture writes."),
                      tr("file")});
    parser.addPositionalArgument(tr("library"),
                                 tr("Plate library to open; else that of the last run, or the one "
                                    "that the registry leads to."),
                                 tr("[library]"));
    parser.process(app);
    const QStringList files = parser.positionalArguments();
    picture = parser.value(QStringLiteral("picture"));
    output = parser.value(QStringLiteral("output"));
    fileName = files.value(0);
    const bool incomplete =
        parser.isSet(QStringLiteral("picture")) && (output.isEmpty() || fileName.isEmpty());
    if (incomplete || files.size() > 1) parser.showHelp(EXIT_FAILURE);
}

bool AsksForTextOnly(int argc, char** argv) {
    return std::any_of(argv + 1, argv + argc, [](std::string_view option) {
        return option == "-h" || option == "--help" || option == "-v" || option == "--version";
    });
}

} // namespace zorvane::viewer
