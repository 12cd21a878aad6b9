#include "apps/plate/Files.h"

#include "library/DiskFiles.h"
#include "library/ReplaceFile.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

namespace zorvane {

namespace {

bool IsStandard(const String& file) { return file.empty() || file == "-"; }

bool IsDevice(const String& file) {
    std::error_code ignored;
    return std::filesystem::is_other(std::filesystem::status(file, ignored));
}

void Write(std::ostream& out, std::string_view bytes, const String& name) {
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush();
    if (!out) Fail(name + ": cannot be written");
}

} // namespace

void Fail(const String& description) { Raise(ErrorNumber::CommandFailed, description, "plate"); }

void Print(std::string_view text) { Write(std::cout, text, "standard output"); }

void WriteFile(const String& file, std::string_view bytes) {
    if (IsStandard(file)) return Print(bytes);
    if (IsDevice(file)) {
        std::ofstream device(file, std::ios::binary);
        return Write(device, bytes, file);
    }
    DiskFiles files;
    ReplaceFile(files, file, bytes);
}

String ReadFile(const String& file) {
    if (IsStandard(file)) return {std::istreambuf_iterator<char>(std::cin), {}};
    try {
        return DiskFiles().Read(file);
    } catch (const RuntimeError&) {
        Fail(file + ": cannot be read");
    }
}

} // namespace zorvane
