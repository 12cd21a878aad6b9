#pragma once

#include <QCoreApplication>
#include <QString>

namespace zorvane::viewer {

/// What the operator asks for on the command line.
struct CommandLine {
    /// Reads the arguments of the program. Does not return where they ask for text only, or are
    /// wrong.
    explicit CommandLine(const QCoreApplication& app);

    QString picture;  ///< the plate to draw; empty to open a window
    QString output;   ///< the image file to draw it to
    QString fileName; ///< the library to open; empty for the default one

    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

/// Whether the arguments ask for help or the version, which need no display.
bool AsksForTextOnly(int argc, char** argv);

} // namespace zorvane::viewer
