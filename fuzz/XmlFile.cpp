#include "support/XMLFile.h"
#include "InputFile.h"
#include "runtime/RuntimeError.h"
#include "support/TStringPairList.h"

using namespace zorvane;

// Any bytes may follow the first line of a file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    XMLFile x;
    x.FileName(InputFile("XmlFile", data, size, "<?xml version=\"1.0\"?>\n"));
    TStringPairList list;
    try {
        list.ReadFromXML(x);
    } catch (const RuntimeError&) {
        return 0;
    }
    return 0;
}
