#pragma once

#include "runtime/Export.h"
#include "runtime/TextFile.h"
#include "runtime/Types.h"
#include "support/SectionSlots.h"
#include "support/XMLBuffer.h"

#include <initializer_list>
#include <optional>
#include <string_view>

namespace zorvane {

/// Writes or reads one file of nested sections and members in a small, line-oriented part of XML.
/// The file is opened by the first line that is written or read. docs/pair-lists.md describes the
/// format.
///
/// Errors: 1050 the file cannot be opened for reading or lacks its header line; 1051 it ends early
/// or cannot be read; 1053 it cannot be written; 1055 a tag is not as it must be; 9 for sections
/// nested deeper than 17, and for what asks about a section when none is open.
class ZORVANE_EXPORT XMLFile {
  public:
    /// The name that an inner section would take the place of: at first empty, then the section
    /// closed last at that level. Callers that want the innermost open section keep its name. Empty
    /// outside of all sections.
    String Section() const;
    /// The attributes Image and Index in the header of the innermost open section.
    const String& SectionImage() const;
    const String& SectionIndex() const;
    /// Whether the data read last ended with the end of its section.
    Boolean SectionComplete() const { return sectionComplete_; }
    /// The last attribute but Image and Index in the header read last.
    const String& SectionTagValue() const { return tagValue_; }
    const String& SectionTagName() const { return tagName_; }

    /// Writes the start of a section; a tag follows its name verbatim (`name="value"`).
    void OpenXMLSection(std::string_view section, std::string_view tag = {});
    /// Writes the end of the innermost section. Without one it fails, and so does all that follows.
    void CloseXMLSection();
    /// Writes a line verbatim.
    void WriteXMLData(std::string_view data);
    /// The text with & ' < > " as escapes, and back.
    static String StringToXML(std::string_view source);
    static String XMLToString(std::string_view source);
    /// Writes a member on one line; an empty one is left out with `suppress`.
    void WriteXMLMember(std::string_view memberName, std::string_view memberValue,
                        std::string_view tag = {}, Boolean suppress = false);
    /// Writes "Yes" or "No".
    void WriteXMLBooleanValue(std::string_view memberName, Boolean memberValue,
                              Boolean suppressFalse = false);
    /// ReadXMLData with its escapes undone a second time.
    String ReadXMLStringValue();
    /// Writes a text in double quotes, which reading leaves on it; an empty one is left out.
    void WriteXMLStringValue(std::string_view memberName, std::string_view memberValue,
                             std::string_view tag = {});
    void WriteXMLIntegerValue(std::string_view memberName, Long memberValue,
                              Boolean suppressZero = false);
    /// Writes a number with a picture (see FormatPicture), or as general number text without one.
    /// A number in words of digits is taken too: error 13 when it is none.
    void WriteXMLFloatValue(std::string_view memberName, Double memberValue,
                            std::string_view formatString = {}, Boolean suppressZero = false);
    void WriteXMLFloatValue(std::string_view memberName, std::string_view memberValue,
                            std::string_view formatString = {}, Boolean suppressZero = false);

    /// Reads this text in place of the file, whose name is then only for errors.
    void ReadFrom(String text);
    /// Adds what is written to this text in place of the file. The text must outlive that.
    void WriteTo(String& text) { writtenTo_ = &text; }

    /// Finishes the file. Sections that are open stay so, for a file that is then begun. Error 1053
    /// when the last of it cannot be written; it is closed all the same.
    void CloseXMLFile();

    /// Goes to the next tag and gives its name, that of an end with its slash.
    String ReadXMLSectionHeader();
    /// The text up to the next tag, without its line breaks and the blanks around them. The end of
    /// the innermost section is consumed with it.
    String ReadXMLData();

    /// True from the first line on until the file is closed or cannot be written.
    Boolean IsOpenForWriting() const { return openForWriting_; }
    /// True from the first attempt to read on, a failed one included, until CloseXMLFile.
    Boolean IsOpenForReading() const { return openForReading_; }

    const String& FileName() const { return fileName_; }
    void FileName(std::string_view value) { fileName_ = value; }

  private:
    void WriteLine(std::initializer_list<std::string_view> parts);
    void WriteIndented(std::initializer_list<std::string_view> parts);
    void Emit(std::string_view line);
    [[noreturn]] void RaiseNotWritten() const;

    std::string_view ReadBuffer();
    void OpenForReading();
    void ReadHeaderLine();
    void ReadNextLine();

    String EndSection(std::string_view tag);
    String BeginSection(std::string_view tag);
    void ReadAttributes(std::string_view section, std::string_view rest);
    void StoreAttribute(std::string_view name, std::string_view value);
    void EndData();
    [[noreturn]] void RaiseSectionEnd() const;

    SectionSlots sections_;
    SectionSlots indexes_;
    SectionSlots images_;
    Integer depth_ = 0; ///< open sections; below 0 after one end too many
    XMLBuffer buffer_;
    String written_; ///< the line being written
    TextFile input_;
    TextFile output_;
    std::optional<String> readFrom_;
    String* writtenTo_ = nullptr;
    Boolean openForReading_ = false;
    Boolean openForWriting_ = false;
    String fileName_;
    String tagName_;
    String tagValue_;
    Boolean sectionComplete_ = false;
};

} // namespace zorvane
