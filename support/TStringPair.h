#pragma once

#include "runtime/Types.h"

#include <string_view>
#include <utility>

namespace zorvane {

class XMLFile;

/// A name and a text value.
class TStringPair {
  public:
    TStringPair() = default;
    TStringPair(String name, String value) : value_(std::move(value)), name_(std::move(name)) {}

    void Copy(const TStringPair& source) { *this = source; }

    /// The name. A list that holds the pair still finds it under the name it was added with.
    const String& Name() const { return name_; }
    void Name(std::string_view value) { name_ = value; }
    const String& Value() const { return value_; }
    void Value(std::string_view value) { value_ = value; }

    /// Writes the pair as a section, or takes the name and value from the rest of one. Errors of
    /// XMLFile; 1051 for a file that ends within the section.
    void WriteToXML(XMLFile& x) const;
    void ReadFromXML(XMLFile& x);
    /// Stores the value under the name in a key; whether it was stored. A failure has been shown.
    Boolean WriteToRegistry(Long root, const String& key) const;

  private:
    String value_;
    String name_;
};

} // namespace zorvane
