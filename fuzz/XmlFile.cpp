#include "support/XMLFile.h"
#include "runtime/RuntimeError.h"
#include "support/TStringPairList.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>

using namespace zorvane;

// Any bytes may stand behind the header line of a file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const String path =
        (std::filesystem::temp_directory_path() / "zorvane-fuzz-XmlFile.tmp").string();
    (std::ofstream(path, std::ios::binary) << "<?xml version=\"1.0\"?>\n")
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    XMLFile x;
    x.FileName(path);
    TStringPairList list;
    try {
        list.ReadFromXML(x);
    } catch (const RuntimeError&) {
        return 0;
    }
    return 0;
}
