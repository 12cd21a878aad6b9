#include "runtime/RuntimeError.h"
#include "runtime/Text.h"
#include "support/XMLFile.h"

#include <utility>

namespace zorvane {

namespace {

const char* const kFileSource = "XMLFile";
const char* const kTagSource = "XML Read Data";

/// Without the spaces around it; other blanks belong to names and values of attributes.
std::string_view TrimSpaces(std::string_view text) {
    while (text.starts_with(' '))
        text.remove_prefix(1);
    while (text.ends_with(' '))
        text.remove_suffix(1);
    return text;
}

bool Contains(std::string_view text, std::string_view part) { return text.find(part) != text.npos; }

bool IsHeaderLine(std::string_view line) {
    return Contains(line, "<?xml version") && Contains(line, "\"1.0\"") && Contains(line, "?>");
}

} // namespace

String XMLFile::ReadXMLSectionHeader() {
    tagName_.clear();
    tagValue_.clear();
    indexes_.At(depth_).clear();
    images_.At(depth_).clear();
    const std::string_view buffer = ReadBuffer();
    buffer_.Take(buffer.find('<') + 1); // nothing when there is none
    const std::size_t end = buffer_.Rest().find('>');
    if (end == String::npos) {
        // Source and text have changed places here; hosts show them that way.
        Raise(ErrorNumber::XMLBadTag, "Application-defined or object-defined error",
              "XML section header missing in file " + fileName_);
    }
    const std::string_view tag = buffer_.Take(end + 1).substr(0, end);
    return tag.starts_with('/') ? EndSection(tag) : BeginSection(tag);
}

String XMLFile::EndSection(std::string_view tag) {
    if (tag.substr(1) != sections_.At(depth_ - 1)) RaiseSectionEnd();
    --depth_;
    return String(tag);
}

String XMLFile::BeginSection(std::string_view tag) {
    String name(tag.substr(0, tag.find(' ')));
    ReadAttributes(name, TrimSpaces(tag.substr(name.size())));
    if (name.ends_with('/')) {
        // An empty member reads as a section that ends at once.
        name.pop_back();
        buffer_.PutBack("</" + name + ">");
    }
    sections_.At(depth_) = name;
    ++depth_;
    return name;
}

void XMLFile::ReadAttributes(std::string_view section, std::string_view rest) {
    while (!rest.empty()) {
        const std::size_t equals = rest.find('=');
        if (equals == rest.npos) {
            tagName_ = rest;
            return;
        }
        const std::string_view name = TrimSpaces(rest.substr(0, equals));
        const std::string_view value = TrimSpaces(rest.substr(equals + 1));
        const std::size_t quote = value.find('"', 1);
        if (!value.starts_with('"') || quote == value.npos) {
            Raise(ErrorNumber::XMLBadTag,
                  "Missing quotes in section <" + String(section) + "> tag value in file " +
                      fileName_,
                  kTagSource);
        }
        StoreAttribute(name, value.substr(1, quote - 1));
        rest = TrimSpaces(value.substr(quote + 1));
    }
}

void XMLFile::StoreAttribute(std::string_view name, std::string_view value) {
    if (name == "Index") {
        indexes_.At(depth_) = value;
    } else if (name == "Image") {
        images_.At(depth_) = value;
    } else {
        tagName_ = name;
        tagValue_ = value;
    }
}

String XMLFile::ReadXMLData() {
    String data;
    std::size_t tag = 0;
    while ((tag = ReadBuffer().find('<')) == String::npos)
        data += buffer_.Take(buffer_.Rest().size());
    data += buffer_.Take(tag);
    if (buffer_.Rest().starts_with("</")) {
        EndData();
    } else {
        sectionComplete_ = false;
    }
    return XMLToString(data);
}

/// Takes the tag that ends the section off with its data. One that is cut off ends nothing.
void XMLFile::EndData() {
    const std::size_t end = buffer_.Rest().find('>');
    const bool whole = end != String::npos;
    const std::string_view name =
        whole ? buffer_.Take(end + 1).substr(2, end - 2) : std::string_view();
    sectionComplete_ = whole && name == sections_.At(depth_ - 1);
    if (!sectionComplete_) RaiseSectionEnd();
    --depth_;
}

String XMLFile::ReadXMLStringValue() { return XMLToString(ReadXMLData()); }

void XMLFile::RaiseSectionEnd() const {
    Raise(ErrorNumber::XMLBadTag,
          "Section end </" + sections_.At(depth_ - 1) + "> not found in file " + fileName_,
          kTagSource);
}

std::string_view XMLFile::ReadBuffer() {
    if (!openForReading_) OpenForReading();
    while (buffer_.Rest().empty())
        ReadNextLine();
    return buffer_.Rest();
}

void XMLFile::ReadFrom(String text) { readFrom_ = std::move(text); }

void XMLFile::OpenForReading() {
    openForReading_ = true;
    try {
        readFrom_ ? input_.OpenText(*readFrom_) : input_.OpenInput(fileName_);
        ReadHeaderLine();
    } catch (const RuntimeError&) {
        input_.Close();
        Raise(ErrorNumber::XMLNotOpened, "Could not open XMLFile <" + fileName_ + "> for reading.",
              kFileSource);
    }
}

/// A line that is no header stays in the buffer, and reading on begins with it.
void XMLFile::ReadHeaderLine() {
    buffer_.Set(String(TrimSpaces(input_.ReadLine())));
    if (!IsHeaderLine(buffer_.Rest()))
        Raise(ErrorNumber::XMLNotRead, "No header line", kFileSource);
    buffer_.Set({});
}

void XMLFile::ReadNextLine() {
    try {
        buffer_.ReadLine(input_);
    } catch (const RuntimeError&) {
        input_.Close();
        Raise(ErrorNumber::XMLNotRead, "Could not read data from XMLFile <" + fileName_ + ">",
              kFileSource);
    }
}

} // namespace zorvane
