#pragma once

#include "runtime/Types.h"

#include <string_view>
#include <utility>

namespace zorvane {

/// A name and a text value.
class TStringPair {
  public:
    TStringPair() = default;
    TStringPair(String name, String value) : value_(std::move(value)), name_(std::move(name)) {}

    void Copy(const TStringPair& source) { *this = source; }

    /// The name. A list that holds the pair goes on finding it under the name it was added with.
    const String& Name() const { return name_; }
    void Name(std::string_view value) { name_ = value; }
    const String& Value() const { return value_; }
    void Value(std::string_view value) { value_ = value; }

  private:
    String value_;
    String name_;
};

} // namespace zorvane
