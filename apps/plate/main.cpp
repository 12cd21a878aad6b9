#include "apps/plate/Interruption.h"
#include "apps/plate/ToolProcess.h"
#include "apps/plate/commandline/CommandLine.h"
#include "runtime/RuntimeError.h"

#include <exception>
#include <iostream>

int main(int argc, char** argv) {
    using namespace zorvane;
    RemoveTemporariesOnSignals();
    ToolProcess process;
    const InstalledProcess installed(process);
    try {
        return CommandLine().Run(argc, argv);
    } catch (const RuntimeError& error) {
        std::cerr << "plate: " << PrintableUtf8(error.Description()) << "\n";
    } catch (const std::exception& error) {
        std::cerr << "plate: " << error.what() << "\n";
    }
    return kFailed;
}
