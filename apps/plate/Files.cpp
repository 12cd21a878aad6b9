#include "apps/plate/Files.h"

#include "library/DefinitionLimits.h"
#include "library/DiskFiles.h"
#include "library/ReplaceFile.h"
#include "runtime/Text.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <utility>

namespace zorvane {

namespace {

bool IsDevice(const String& file) {
    std::error_code ignored;
    return std::filesystem::is_other(std::filesystem::status(file, ignored));
}

void Write(std::ostream& out, std::string_view bytes, const String& name) {
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush();
    if (!out) Fail(name + " cannot be written");
}

/// Everything up to the end of a stream that may have none.
String ReadStream(std::istream& in) {
    String bytes;
    std::array<char, 65536> block = {};
    do {
        in.read(block.data(), static_cast<std::streamsize>(block.size()));
        bytes.append(block.data(), static_cast<std::size_t>(in.gcount()));
        if (bytes.size() > kMostBytesRead) Fail("it is larger than 256 MB");
    } while (in);
    if (in.bad()) Fail("the device failed");
    return bytes;
}

String ReadStandardInput() {
    static bool read = false;
    if (std::exchange(read, true)) Fail("its content is needed twice");
    return ReadStream(std::cin);
}

String ReadAny(const String& file) {
    if (IsStandard(file)) return ReadStandardInput();
    if (!IsDevice(file)) return DiskFiles().Read(file);
    std::ifstream device(file, std::ios::binary);
    if (!device) Fail("there is no permission");
    return ReadStream(device);
}

} // namespace

void Fail(const String& description) { Raise(ErrorNumber::CommandFailed, description, "plate"); }

bool IsStandard(const String& file) { return file == "-"; }

String ShownName(const String& file) { return IsStandard(file) ? "standard input" : file; }

String PlateFailureText(const RuntimeError& error) {
    if (error.Is(ErrorNumber::InvalidProcedureCall))
        return " has rows or columns for which there are no letters or numbers";
    if (error.Is(ErrorNumber::Overflow)) return " has too many values, or one that is too large";
    if (error.Is(ErrorNumber::SubscriptOutOfRange)) return " has no sub-well";
    return ": " + error.Description();
}

void Print(std::string_view text) { Write(std::cout, text, "standard output"); }

void Warn(const String& text) { std::cerr << "plate: warning: " << PrintableUtf8(text) << "\n"; }

void WriteFile(const String& file, std::string_view bytes) {
    if (file.empty() || IsStandard(file)) return Print(bytes);
    if (IsDevice(file)) {
        std::ofstream device(file, std::ios::binary);
        return Write(device, bytes, file);
    }
    DiskFiles files;
    ReplaceFile(files, file, bytes);
}

String ReadFile(const String& file) {
    try {
        return ReadAny(file);
    } catch (const RuntimeError& error) {
        Fail(ShownName(file) + " cannot be read: " + error.Description());
    }
}

LibraryText ReadLibrary(const String& file) {
    LibraryText library(ReadFile(file));
    WithFile(file, [&] { CheckDefinitionSizes(library.Bytes()); });
    return library;
}

cmPlate ReadPlate(const String& file, const String& name) {
    const LibraryText library = ReadLibrary(file);
    return WithFile(file, [&] { return library.LookedUp(name); });
}

} // namespace zorvane
