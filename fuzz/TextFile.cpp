#include "runtime/TextFile.h"
#include "InputFile.h"

#include <cstdlib>

using namespace zorvane;

// Reading a line again from its remembered position gives the same line, and the last one ends
// where the file ends.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    TextFile file;
    file.OpenInput(InputFile("TextFile", data, size));
    while (!file.AtEnd()) {
        const auto position = file.Position();
        const String line = file.ReadLine();
        const auto next = file.Position();
        file.Seek(position);
        if (file.ReadLine() != line || file.Position() != next) std::abort();
        if (line.find_first_of("\r\n") != line.npos) std::abort();
    }
    if (file.Position() != static_cast<TextFile::FilePosition>(size)) std::abort();
    return 0;
}
