#pragma once

#include "model/CompoundWell.h"
#include "model/Coordinate.h"
#include "model/WellDetails.h"
#include "runtime/Export.h"
#include "runtime/TextFile.h"
#include "runtime/Types.h"
#include "support/TStringPairList.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace zorvane {

enum class Keyword : std::uint8_t;
enum class LineCode : Long;

/// The system's mark for "no value", where an empty text is a value: the character ESC.
inline constexpr const char* kNoValue = "\x1B";

/// One plate definition: a grid of well positions with pitches, overall size and labels, the layout
/// of sub-wells that every position has, instrument defaults, tags and comments.
///
/// Lengths are millimetres. Every setter of a grid or sub-well value also records the value by name
/// in Properties, which is what the definition's text is written from. Rows, columns and indices
/// count from 0; their arithmetic is 16-bit and fails with 6 on overflow. Positions of sub-wells
/// count from 1. Failures are RuntimeErrors and leave the changes made before them in place.
class ZORVANE_EXPORT cmPlate {
  public:
    cmPlate();

    /// The coordinate keyword ("XYZ" or "XYZV") whose lines give the instrument defaults.
    String CoordinateSystem;
    /// Every recorded setting, in the order in which it is written. A look-up of a missing name
    /// gives no pair instead of an error.
    TStringPairList Properties;
    TStringPairList Tags;
    /// The comments of the definition, each ended by CR LF.
    String Comment;
    /// Belongs to the owner; has no meaning here.
    Long UserData = 0;

    // --- Plain values, not recorded ---

    const String& PlateName() const { return plateName_; }
    void PlateName(const String& value) { plateName_ = value; }
    /// A status code; 0 once a definition begins to be read.
    Integer Status() const { return status_; }
    void Status(Integer value) { status_ = value; }
    /// Whether the definition can be used with the present CoordinateSystem.
    Boolean Available() const { return available_; }
    void Available(Boolean value) { available_ = value; }
    Single DefaultX() const { return defaultX_; }
    void DefaultX(Single value) { defaultX_ = value; }
    Single DefaultY() const { return defaultY_; }
    void DefaultY(Single value) { defaultY_ = value; }
    Single DefaultZ() const { return defaultZ_; }
    void DefaultZ(Single value) { defaultZ_ = value; }
    Integer DefaultRotation() const { return defaultRotation_; }
    void DefaultRotation(Integer value) { defaultRotation_ = value; }

    // --- The grid, recorded ---

    Integer Rows() const { return rows_; }
    void Rows(Integer value);
    Integer Cols() const { return cols_; }
    void Cols(Integer value);
    /// The distance between column centres and between row centres.
    Single XPitch() const { return xPitch_; }
    void XPitch(Single value);
    Single YPitch() const { return yPitch_; }
    void YPitch(Single value);
    Single xOverall() const { return xOverall_; }
    void xOverall(Single value);
    Single yOverall() const { return yOverall_; }
    void yOverall(Single value);
    Single Height() const { return height_; }
    void Height(Single value);
    /// The depth of the drop shelf; -0.001 for a definition that gives none.
    Single ShelfDepth() const { return shelfDepth_; }
    void ShelfDepth(Single value);
    /// The label of the first column and of the first row. "1", "a" and "A" count upwards from
    /// there, any other label downwards.
    String ColumnLabel() const { return columnLabel_; }
    void ColumnLabel(const String& value);
    String RowLabel() const { return rowLabel_; }
    void RowLabel(const String& value);

    // --- The current sub-well's values, recorded under "<SubWell>.<NAME>" ---
    // Error 5 when SubWell names no sub-well of the layout.

    /// The name of the sub-well that the members below address.
    String SubWell() const { return subWell_; }
    void SubWell(const String& value) { subWell_ = value; }

    /// The capacity of the current sub-well.
    Single Volume() const { return Current()->MaxVolume(); }
    void Volume(Single value);
    Single WellSizeX() const { return Current()->WellSizeX(); }
    void WellSizeX(Single value);
    Single WellSizeY() const { return Current()->WellSizeY(); }
    void WellSizeY(Single value);
    /// Sets both extents.
    void WellDiameter(Single value);
    Single Depth() const { return Current()->Depth(); }
    void Depth(Single value);
    Single xOffset() const { return Current()->xOffset(); }
    void xOffset(Single value);
    Single yOffset() const { return Current()->yOffset(); }
    void yOffset(Single value);
    Single RimWidth() const { return Current()->RimWidth(); }
    void RimWidth(Single value);
    /// Reading any of these three moves its value into RimWidth and answers 0: existing callers
    /// rely on that. The values themselves are read from the sub-well.
    Single RimHeight();
    void RimHeight(Single value);
    Single RimCenterX();
    void RimCenterX(Single value);
    Single RimCenterY();
    void RimCenterY(Single value);

    /// The plate's own style, which is always 0.
    Long Style() const { return style_; }
    /// Sets the style of the current sub-well.
    void Style(Long value);
    /// The name of a style code: 0 "ROUND", 1 "CCSHELF", 2 "PILLAR", 3 "SQUARE", others "".
    static String StyleText(Long style);

    /// The layout of sub-wells, never null; setting none gives an empty one.
    std::shared_ptr<zorvane::CompoundWell> CompoundWell() const { return layout_; }
    void CompoundWell(const std::shared_ptr<zorvane::CompoundWell>& value);

    // --- Recorded properties and tags ---

    /// Sets a recorded property. A new one is placed by position as TStringPairList::Add does; one
    /// that is there keeps its place.
    void SetProperty(std::string_view name, std::string_view value, Integer position = 0);
    /// The value of a recorded property; error 91 when there is none.
    String GetProperty(std::string_view name) const;
    /// The values of the tags, separated by single spaces.
    String TagListText() const;

    // --- Indices and legends ---

    /// The index of a position, counted along rows, or along columns when columnMajor.
    Integer RowColToIndex(Integer row, Integer col, Boolean columnMajor = false) const;
    /// The row and the column of an index; error 11 for a plate without columns or rows.
    Integer IndexToRow(Integer index, Boolean columnMajor = false) const;
    Integer IndexToCol(Integer index, Boolean columnMajor = false) const;
    /// A row-major index as a column-major one, or the reverse.
    Integer TransposeIndex(Integer index, Boolean toColumnMajor = false) const;

    /// The label of a position ("A1"), of a row and of a column. Error 5 when a letter leaves the
    /// character codes 0 to 255, or the first label is empty.
    String WellLegend(Integer row, Integer col) const;
    String RowLegend(Integer row) const;
    String ColumnLegend(Integer col) const;

    // --- Operations on the layout, which keep Properties in step ---

    /// Inserts a sub-well as CompoundWell::AddSubWell does. With a parent, the recorded properties
    /// of the parent are recorded for the new sub-well too; without one, none are.
    void AddSubWell(const std::shared_ptr<WellDetails>& subWell, Integer index,
                    const std::shared_ptr<WellDetails>& parent = nullptr);
    /// Removes a sub-well and its recorded properties. Fails, with the sub-well still in place,
    /// when it has none recorded.
    void RemoveSubWell(Integer index);
    void RenameSubWell(Integer index, const String& newName);
    /// Exchanges two sub-wells; does nothing when either has no recorded properties. The positions
    /// must differ.
    void SwapSubWells(Integer index1, Integer index2);

    /// Moves every sub-well; a positive dZ makes it shallower. SubWell then names the last one.
    void ShiftWells(Single dX, Single dY, Single dZ);
    /// Turns the plate by a quarter. SubWell then names the last sub-well.
    void Rotate90();
    /// Accepts an angle and changes nothing.
    void Rotate(Integer angle);

    // --- Geometry ---

    /// The corners of the rectangle around all sub-wells of a position, as X and Y. Error 9 for a
    /// plate without sub-wells.
    void WellEnvelope(Integer row, Integer col, Coordinate& minCorner, Coordinate& maxCorner) const;
    /// The middle of the envelope.
    Coordinate WellCentroid(Integer row, Integer col) const;

    // --- The definition as text ---

    /// Reads lines of an open file until one plate is complete, and leaves the file at the line
    /// that begins the next one. The result is a ReadResult, which tells a plate of this name, when
    /// one is given, from another one, or the error number of a failure to read the file.
    Integer ReadNextPlate(TextFile& file, String name = {});
    /// The steps of reading, for callers that look at every line: BeginReading forgets the plate
    /// that was being read, its tags, its comment and the status; ReadLine applies one line,
    /// without its line end, and returns what it turned out to be. A plate that is complete, as
    /// LineCode says, is followed by BeginReading and the line that completed it.
    void BeginReading();
    LineCode ReadLine(std::string_view line);
    /// Loads one definition from text with CR LF line ends; stops at the first unknown keyword.
    /// What the text does not mention keeps its value.
    void SetFromText(String text);
    /// Finds a plate by name, apart from letter case, in a library file and loads it. Shows a
    /// message and answers false when it cannot; this object then holds the last plate read.
    Boolean SetPlate(const String& fileName, String plateName);

    /// The definition written from the recorded properties, as it was read.
    String Text() const;
    /// Does nothing: SetFromText loads a definition.
    void Text(const String&) {}
    /// The definition written from the values.
    String AsText() const;
    /// Writes Text and an empty line to an open file; always 0.
    Integer WritePlate(TextFile& file) const;

    /// Loads the source's Text and takes its UserData; both names do the same.
    void CopyFrom(const cmPlate& source);
    void Copy(const cmPlate& source) { CopyFrom(source); }

  private:
    class LineReader;

    /// What the reader keeps from one line to the next.
    struct ReaderState {
        bool inPlate = false;
        std::shared_ptr<WellDetails> subWell;
        String prefix;
        bool tagsToRecord = false; ///< there are tags that the recorded list lacks
        // These keep their storage, so that reading a line allocates nothing.
        String line;
        String blanked;
        String propertyName;
    };

    static Integer DirectionOf(std::string_view label);
    static String SubWellText(const WellDetails& subWell, std::string_view indent);

    std::shared_ptr<WellDetails> Current() const { return layout_->Item(subWell_); }
    /// A value of the plate as it is recorded and written.
    String ValueText(Keyword keyword) const;
    void Record(Keyword keyword, Integer position = 0);
    void SetCurrent(Keyword keyword, Single value);
    void RecordCurrent(Keyword keyword);
    void RecordLikeParent(const String& name, const String& parentPrefix);
    void RenameBlock(const String& name, const String& newName);
    void Rotate90(const WellDetails& well);

    LineCode ApplyLine(std::string_view line);
    /// Brings the recorded list of tags up to date: once for many TAG lines, which would take long
    /// if each of them wrote the whole list.
    void RecordTags();
    /// Applies the lines of a text for as long as the codes of the lines are at most this one.
    void ReadLines(std::string_view text, LineCode lastCode);
    Integer ReadPlate(TextFile& file);

    String plateName_;
    Integer status_ = 0;
    Integer cols_ = 0;
    Integer rows_ = 0;
    Long style_ = 0;
    Single xPitch_ = 0;
    Single yPitch_ = 0;
    Single xOverall_ = 0;
    Single yOverall_ = 0;
    Single height_ = 0;
    Single shelfDepth_ = 0;
    String columnLabel_;
    Integer columnDirection_ = 0;
    String rowLabel_;
    Integer rowDirection_ = 0;
    Single defaultX_ = 0;
    Single defaultY_ = 0;
    Single defaultZ_ = 0;
    Integer defaultRotation_ = 0;
    Boolean available_ = false;
    std::shared_ptr<zorvane::CompoundWell> layout_ = std::make_shared<zorvane::CompoundWell>();
    String subWell_;
    ReaderState reader_;
};

} // namespace zorvane
