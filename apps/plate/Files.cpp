#include "apps/plate/Files.h"

#include <fstream>
#include <iostream>
#include <iterator>

namespace zorvane {

namespace {

constexpr Long kToolFailure = 1;

bool IsStandard(const String& file) { return file.empty() || file == "-"; }

} // namespace

void Fail(const String& description) { throw RuntimeError(kToolFailure, "plate", description); }

void WriteAll(const String& file, std::string_view text) {
    std::ofstream opened;
    if (!IsStandard(file)) opened.open(file, std::ios::binary | std::ios::trunc);
    std::ostream& out = IsStandard(file) ? std::cout : opened;
    out.write(text.data(), static_cast<std::streamsize>(text.size())).flush();
    if (!out) Fail((IsStandard(file) ? String("standard output") : file) + ": cannot be written");
}

String ReadAll(const String& file) {
    std::ifstream opened;
    if (!IsStandard(file)) opened.open(file, std::ios::binary);
    std::istream& in = IsStandard(file) ? std::cin : opened;
    String text{std::istreambuf_iterator<char>(in), {}};
    if (!in || in.bad()) Fail(file + ": cannot be read");
    return text;
}

} // namespace zorvane
