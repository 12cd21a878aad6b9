#pragma once

#include "control/PlateFields.h"
#include "control/PlateObserver.h"
#include "control/PlateTypes.h"
#include "control/Surface.h"
#include "model/cmPlate.h"
#include "platform/HostSite.h"
#include "platform/PropertyStore.h"
#include "runtime/Export.h"
#include "runtime/Types.h"

#include <memory>

namespace zorvane {

/// The plate control: shows one plate definition as a diagram of wells and lets a host and an
/// operator work on it. All calls come from the host's user-interface thread.
///
/// A well number counts from 0: the well of sub-well s (from 1) at row r and column c (from 0) is
/// (s - 1) * Rows * Cols + r * Cols + c. Lengths of the plate are millimetres, those of the drawing
/// are drawing units (twips, 1440 an inch). Every failure is a RuntimeError.
///
/// Every call is one operation: the host is told once, at its end, what has changed.
class ZORVANE_EXPORT Plate : public PlateFields {
  public:
    /// Starts the control up: its outline drawer exists and its library is the default one, but no
    /// plate is loaded. The site must outlive the control.
    explicit Plate(HostSite& site);
    ~Plate();
    Plate(const Plate&) = delete;
    Plate& operator=(const Plate&) = delete;

    // Creation and persistence.

    /// The settings of a control newly placed on a form; loads the plate "No_Plate".
    void InitialProperties();
    /// Restores the saved settings and loads the saved plate. Error 13 when a stored value has
    /// another type than its setting.
    void RestoreProperties(const PropertyStore& store);
    void SaveProperties(PropertyStore& store) const;

    /// Loads the plate PName (case does not matter) from the library FName, or from FileName when
    /// that is empty. A failure shows a message, answers False and leaves the drawing as it was.
    Boolean SetPlate(const String& PName, const String& FName = {});
    String PlateName() const;
    /// SetPlate with FileName; does not tell whether that worked.
    void PlateName(const String& value);
    /// The definition text of the loaded plate.
    String PlateClassText() const;
    /// Loads a plate from its definition text.
    void PlateClassText(const String& value);

    // The plate definition.

    String TagList() const;
    void SetProperty(const String& Name, const String& Value);
    /// Error 91 when the definition records no such property.
    String GetProperty(const String& Name) const;
    /// The box of a well position, in mm; the sub-well name is accepted and makes no difference.
    void WellEnvelope(Single& Xmin, Single& YMin, Single& Zmin, Single& Xmax, Single& Ymax,
                      Single& Zmax, Integer Row, Integer Col,
                      const String& SubPlateName = {}) const;
    /// The centre of a well position, in mm; the sub-well name is accepted and makes no difference.
    void WellCentroid(Single& X, Single& Y, Single& Z, Integer Row, Integer Col,
                      const String& SubPlateName = {}) const;
    Integer TotalWells() const;

    // Appearance.

    Single DrawingScale() const;
    /// Drawing units per millimetre; lays the plate out again once one is loaded.
    void DrawingScale(Single value);
    Long DefaultRimColor() const;
    /// Wells already drawn keep their colour until they are coloured again.
    void DefaultRimColor(Long value);
    Long DefaultWellColor() const;
    void DefaultWellColor(Long value);

    // The details panel, whose pages are numbered as in PanelElements.h.

    /// Whether the details panel is open.
    Boolean DataVisible() const;
    void DataVisible(Boolean value);
    Boolean EditEnable() const;
    /// Lets the operator edit the plate definition in the panel.
    void EditEnable(Boolean value);
    /// Whether the panel holds edits that ApplyPressed would take.
    Boolean EditsPending() const;
    /// Shows a page of the plate definition; the page chooser stays. Error 9 for the page of a
    /// sub-well that the definition does not have.
    void SetDataDisplay(Integer Index);
    /// Takes the panel's texts as a page of the plate definition, which then reads itself again.
    void GetDataDisplay(Integer Index);

    // The current well. Setters check no range and draw nothing; error 6 when the well number does
    // not fit 16 bits.

    Integer CurrentWell() const;
    void CurrentWell(Integer value);
    Integer Row() const;
    void Row(Integer value);
    Integer Col() const;
    void Col(Integer value);
    /// The sub-well's position from 1; assigning 0 chooses the last sub-well.
    Integer WellIndex() const;
    void WellIndex(Integer value);
    /// "Default" when no sub-well is chosen. An unknown name leads beyond the last well.
    String SubWell() const;
    void SubWell(const String& name);
    /// Sub-well, row and column, from 0: "Drop, 2, 5".
    String Location() const;

    // Selection.

    /// Makes a well current and does with the selection what the action says. Error 9 when the well
    /// does not exist.
    void SetWell(Integer R, Integer C, const String& SubWell = {},
                 WellSelectAction SelectionAction = wsSingle);
    /// Marks one well; neither counts it nor raises an event.
    void SelectWell(Integer WellNo, Boolean Value);
    void SelectAll(Boolean Value);
    Boolean WellSelected() const;
    void WellSelected(Boolean value);
    /// The wells selected by SetWell, area selections and arrays, as counted by them.
    Integer NSelected() const;
    /// Whether pointer input is honoured; also enables the details button.
    Boolean MouseEnabled() const;
    void MouseEnabled(Boolean value);
    /// Whether an area selection is framed; False hides the frame at once.
    void SelectBoxEnabled(Boolean value);
    /// Deselects every well; the current one stays.
    void ClearSelection();
    /// Marks the whole control as the selected one.
    Boolean Selected() const;
    void Selected(Boolean value);
    /// The well under a point of the plate area, or -1.
    Integer MouseToWell(Single X, Single Y) const;

    // Blocks of wells.

    Integer ArrayX() const;
    Integer ArrayY() const;
    Integer ArrayWidth() const;
    Integer ArrayHeight() const;
    String ArraySubwell() const;
    /// Records a block, chooses the sub-well and adds the block to the selection. Error 2999 when
    /// the block leaves the plate.
    void SetArray(Integer X, Integer Y, Integer Width, Integer Height, const String& SW,
                  Long Direction = foTopLeftHorizontal, Long Color = kNoColor);
    /// Walks the recorded block; a colour of -1 and the default text leave wells as they are. The
    /// first "#" of the text becomes the number along the walk.
    void FillArray(Long Color, const String& AnnotationText = kNoValue, Integer StartWell = 1,
                   Integer StopWell = -1);

    // Data of any well. Well numbers at or beyond TotalWells read as empty and ignore writes;
    // negative ones fail with 9.

    String Text(Integer WellNo) const;
    void Text(Integer WellNo, const String& value);
    /// Does not recolour; set it before IsDefined to get the error colour.
    Integer ErrorCode(Integer WellNo) const;
    void ErrorCode(Integer WellNo, Integer value);
    Single GetVolume(Integer WellNo) const;
    void SetVolume(Integer WellNo, Single V);
    /// The caption shown on a well.
    String WellAnnotation(Integer WellNo) const;
    void WellAnnotation(Integer WellNo, const String& value);
    Boolean IsDefined(Integer WellNo) const;
    /// Marks and colours a well; False also clears its error code.
    void IsDefined(Integer WellNo, Boolean value);
    /// The colours of a well's bottom and rim.
    Long WellFill(Integer WellNo) const;
    void WellFill(Integer WellNo, Long color);
    Long RimFill(Integer WellNo) const;
    void RimFill(Integer WellNo, Long color);
    /// False for any number that is no well.
    Boolean IsSelected(Integer WellNo) const;

    // Data of the current well; error 9 or 91 when it does not exist.

    Single CurrentVolume() const;
    void CurrentVolume(Single value);
    /// Unlike IsDefined, does not recolour.
    Boolean SolutionDefined() const;
    void SolutionDefined(Boolean value);
    /// Colours as text: decimal, or hexadecimal with the prefix "&H". Error 13 for any other text.
    String WellColor() const;
    void WellColor(const String& value);
    String RimColor() const;
    void RimColor(const String& value);
    /// Clears mark, volume, annotation and colour; text, error code and selection stay.
    void ClearWell();
    /// Clears the same of one sub-well in every position.
    void ClearSubWells(const String& SubWellName);

    // Geometry of the current sub-well, in mm; 0 and ignored while none is chosen. Only
    // InitialVolume lays the plate out again.

    Integer Style() const;
    void Style(Integer value);
    Single MaxVolume() const;
    void MaxVolume(Single value);
    Single Depth() const;
    void Depth(Single value);
    /// Reads as the mean of WellSizeX and WellSizeY.
    Single WellDiameter() const;
    void WellDiameter(Single value);
    Single WellSizeX() const;
    void WellSizeX(Single value);
    Single WellSizeY() const;
    void WellSizeY(Single value);
    Single RimWidth() const;
    void RimWidth(Single value);
    Single RimHeight() const;
    void RimHeight(Single value);
    Single xOffset() const;
    void xOffset(Single value);
    Single yOffset() const;
    void yOffset(Single value);
    Single InitialVolume() const;
    void InitialVolume(Single value);

    // Plate coordinates, in mm. Those of the current well leave XLeft and YTop out.

    Single CurrentWellX() const;
    Single CurrentWellY() const;
    Single CurrentWellZ() const;
    Single WellX(Integer DesiredColumn, Integer DesiredRow, const String& DesiredSubWell) const;
    Single WellY(Integer DesiredColumn, Integer DesiredRow, const String& DesiredSubWell) const;
    Single WellZ(Integer DesiredColumn, Integer DesiredRow, const String& DesiredSubWell) const;

    // For the host that shows the control.

    void AddObserver(PlateObserver& observer);
    void RemoveObserver(PlateObserver& observer) noexcept;
    /// The plate definition, empty after a failed load; error 91 before the first load.
    const cmPlate& LoadedDefinition() const;
    /// What is shown, to paint or to mirror.
    const Surface& Elements() const;
    /// The window has been repainted: puts a visible rubber band back.
    void Paint();
    /// The button that opens the details panel was pressed.
    void DataButtonPressed();

    // Input in the details panel, from the host that mirrors it. Failures of a command reach the
    // caller with the changes made before them in place.

    /// An entry of comboSelect was chosen; error 5 when there is none at this position.
    void PageChosen(Integer position);
    /// The text in txtComment, or in a row of txtData, is now this. Lines end with CR LF. Error 9
    /// for a row that is not there.
    void CommentTyped(const String& text);
    void RowTyped(Integer row, const String& text);
    /// An entry of cmbStyle was chosen; error 5 when there is none at this position.
    void StyleChosen(Integer position);
    void ApplyPressed();
    /// cmdPopup was pressed: lets the operator choose a command and carries it out.
    void MenuPressed();
    /// Carries out a command, whether or not its menu entry is enabled.
    void MenuChosen(SubWellCommand command);

    // Operator input, from the host; InputRouter makes it out of a window's. X and Y are drawing
    // units in the plate area; buttons and shift keys as in PlateTypes.h. While the mouse is
    // disabled input on the plate area is ignored, except for moves.

    void ButtonDown(Integer button, Integer shift, Single x, Single y);
    void PointerMove(Integer buttons, Integer shift, Single x, Single y);
    void ButtonUp(Integer button, Integer shift, Single x, Single y);
    void AreaClicked();
    void AreaDoubleClicked();
    void PanelClicked();
    void PanelDoubleClicked();
    /// A press or click on the control outside of plate area and panel.
    void BackgroundPressed();
    /// Key codes are the platform's virtual keys; only the arrows, 37 to 40, mean something.
    void KeyDown(Integer keyCode, Integer shift);
    void KeyUp(Integer keyCode, Integer shift);
    void CharacterTyped(Integer code);

  private:
    struct Parts;

    /// Runs a step of an operation; the host is told at the operation's end.
    template <class Step>
    void Operate(Step step);
    void ShowLoadedPlate(Parts& parts);
    void LayOut(Parts& parts, Boolean fullReset);
    /// The definition of the current sub-well, or null while none is chosen.
    std::shared_ptr<WellDetails> CurrentSubWell() const;
    Single ReadSubWell(Single (WellDetails::*field)() const) const;
    void WriteSubWell(void (WellDetails::*field)(Single), Single value);

    const std::unique_ptr<Parts> parts_;
};

} // namespace zorvane
