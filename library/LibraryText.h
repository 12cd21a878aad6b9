#pragma once

#include "model/cmPlate.h"
#include "runtime/Types.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace zorvane {

/// The part of a library that defines one plate: from its PLATE line to the last of its lines that
/// is neither blank nor a comment. Blank lines and comments after that stand between plates and are
/// no part of it, although the reader takes those comments for the plate's, as it does the comment
/// at the end of the line that ends the plate, which mostly is the PLATE line of the next one.
struct PlateBlock {
    std::size_t begin = 0;
    std::size_t end = 0;               ///< after the end of its last line
    std::size_t readTo = 0;            ///< where the reader goes on after the plate
    String name;                       ///< in the letter case of the library
    String definition;                 ///< the text of the plate, read by itself
    std::vector<String> commentsAfter; ///< those in the plate's comment that stand after the block
};

/// The bytes of a plate library, for changing one plate in them and nothing else.
///
/// Plates are found by the reader itself, so the first of a name is meant, in any letter case, and
/// nothing after a line that ends every look-up can be reached. Definitions are what cmPlate::Text
/// gives. They take the line ends of what they replace or follow.
///
/// Failures are RuntimeErrors with a description for the user.
class LibraryText {
  public:
    explicit LibraryText(String bytes) : bytes_(std::move(bytes)) {}

    const String& Bytes() const { return bytes_; }

    /// Nothing when no look-up gives a plate of this name.
    std::optional<PlateBlock> Find(const String& name) const;
    /// Find, or the failure that says why there is no such plate.
    PlateBlock Get(const String& name) const;
    /// The plate that a look-up of the name gives programs: what its lines leave out, it keeps from
    /// the plates before it. Fails like Get.
    cmPlate LookedUp(const String& name) const;
    /// The plate of a block, with all comments that the reader takes for its own.
    cmPlate PlateOf(const PlateBlock& block) const;
    /// The bytes of a block.
    std::string_view Of(const PlateBlock& block) const;

    /// The library with another definition in place of the plate that has its name. Fails when
    /// that could not be read back, or would change what is read after it.
    LibraryText WithReplaced(const String& definition) const;
    /// The library with one more plate after its last one. Fails when it has a plate of this name
    /// already, or when the new one could not be read back.
    LibraryText WithAppended(const String& definition) const;

  private:
    String Fitted(std::string_view definition, std::string_view lineEnd) const;
    std::string_view LineEndAt(std::size_t begin, std::size_t end) const;
    String WhyNotFound(const String& name) const;

    String bytes_;
};

/// The name on the PLATE line of a definition; empty when it has none.
String NameIn(std::string_view definition);

/// A definition with another name; error when a library could not give a plate of that name.
String Renamed(const String& definition, const String& name);

/// The first plate that a text defines.
cmPlate PlateIn(const String& text);

/// The lines of a plate's comment as a definition has them after "; ".
std::vector<String> CommentLines(std::string_view comment);

/// A definition without the comment lines that the reader makes again of comments at the end of
/// other lines, so that they do not double with each writing and reading.
String WithoutEchoes(const String& definition);

/// A definition without the comment lines that stand after the plate in its library, and would be
/// there twice if they were written into the plate.
String WithoutCommentsAfter(const String& definition, const PlateBlock& block);

} // namespace zorvane
