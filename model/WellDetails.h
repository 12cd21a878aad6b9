#pragma once

#include "runtime/Export.h"
#include "runtime/Types.h"

#include <string_view>

namespace zorvane {

/// The geometry and volumes of one sub-well: one named cavity that every well position of a plate
/// has. Lengths are millimetres; positions are relative to the well position's reference point.
/// Nothing is checked: values are kept as they are given.
class ZORVANE_EXPORT WellDetails {
  public:
    /// The name of the sub-well inside its well position.
    const String& WellName() const { return wellName_; }
    void WellName(std::string_view value) { wellName_ = value; }

    /// The style code that the sub-well is drawn with; see WellStyle.h.
    Long Style() const { return style_; }
    void Style(Long value) { style_ = value; }

    Single Depth() const { return depth_; }
    void Depth(Single value) { depth_ = value; }

    /// Where the sub-well's centre lies.
    Single xOffset() const { return xOffset_; }
    void xOffset(Single value) { xOffset_ = value; }
    Single yOffset() const { return yOffset_; }
    void yOffset(Single value) { yOffset_ = value; }

    /// The extent along X and Y; for a circular well its diameter.
    Single WellSizeX() const { return wellSizeX_; }
    void WellSizeX(Single value) { wellSizeX_ = value; }
    Single WellSizeY() const { return wellSizeY_; }
    void WellSizeY(Single value) { wellSizeY_ = value; }
    /// Sets both extents.
    void WellDiameter(Single value) { wellSizeX_ = wellSizeY_ = value; }

    /// The thickness of the rim along X and along Y.
    Single RimWidth() const { return rimWidth_; }
    void RimWidth(Single value) { rimWidth_ = value; }
    Single RimHeight() const { return rimHeight_; }
    void RimHeight(Single value) { rimHeight_ = value; }

    /// Where the rim's centre lies.
    Single RimCenterX() const { return rimCenterX_; }
    void RimCenterX(Single value) { rimCenterX_ = value; }
    Single RimCenterY() const { return rimCenterY_; }
    void RimCenterY(Single value) { rimCenterY_ = value; }

    /// The capacity.
    Single MaxVolume() const { return maxVolume_; }
    void MaxVolume(Single value) { maxVolume_ = value; }

    /// The volume to start with.
    Single InitialVolume() const { return initialVolume_; }
    void InitialVolume(Single value) { initialVolume_ = value; }

    /// Takes everything from the source but InitialVolume, which stays this sub-well's own.
    void Copy(const WellDetails& source);

  private:
    String wellName_;
    Long style_ = 0;
    Single depth_ = 0;
    Single xOffset_ = 0;
    Single yOffset_ = 0;
    Single wellSizeX_ = 0;
    Single wellSizeY_ = 0;
    Single rimWidth_ = 0;
    Single rimHeight_ = 0;
    Single rimCenterX_ = 0;
    Single rimCenterY_ = 0;
    Single maxVolume_ = 0;
    Single initialVolume_ = 0;
};

} // namespace zorvane
