#include "platecheck/SlasCheck.h"

#include "model/DropCentre.h"
#include "platetext/LineParts.h"
#include "runtime/NumberText.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zorvane {

namespace {

/// A length and by how much it may differ, in millimetres.
struct Toleranced {
    Double nominal, tolerance;
};

constexpr Toleranced kLength{127.76, 0.25};
constexpr Toleranced kWidth{85.48, 0.25};
constexpr Toleranced kHeight{14.35, 0.76};

/// Where the wells of a plate are. The centre of each lies within a circle of that diameter.
struct WellFormat {
    Integer rows, cols;
    Double pitch;
    Double left, top; ///< of the first well
    Double diameter;
};

constexpr std::array<WellFormat, 3> kFormats{{{8, 12, 9, 14.38, 11.24, 0.70},
                                              {16, 24, 4.5, 12.13, 8.99, 0.70},
                                              {32, 48, 2.25, 11.005, 7.865, 0.50}}};

/// By less than this the Singles of a plate are off the numbers in its text.
constexpr Double kNoise = 1e-4;

String Millimetres(Double value) { return FormatPicture(value, "0.0##"); }

struct Point {
    Double x, y;
};

class Check {
  public:
    Check(const cmPlate& plate, const PlateLines& lines, FindingList& findings)
        : plate_(plate), lines_(lines), findings_(findings),
          upright_(plate.yOverall() > plate.xOverall()) {}

    void Run() {
        Size(Keyword::XOverall, plate_.xOverall(), upright_ ? kWidth : kLength, "ANSI SLAS 1-2004");
        Size(Keyword::YOverall, plate_.yOverall(), upright_ ? kLength : kWidth, "ANSI SLAS 1-2004");
        Size(Keyword::Height, plate_.Height(), kHeight, "ANSI SLAS 2-2004");
        for (const WellFormat& format : kFormats) {
            if (plate_.Rows() == (upright_ ? format.cols : format.rows) &&
                plate_.Cols() == (upright_ ? format.rows : format.cols))
                Wells(format);
        }
    }

  private:
    void Size(Keyword keyword, Double value, const Toleranced& size, const char* standard) {
        if (std::abs(value - size.nominal) <= size.tolerance + kNoise) return;
        Report(keyword, Name(keyword) + " is " + Millimetres(value) + " mm; " + standard + " has " +
                            Millimetres(size.nominal) + " mm, give or take " +
                            Millimetres(size.tolerance));
    }

    void Wells(const WellFormat& format) {
        const bool across = Pitch(Keyword::XPitch, plate_.XPitch(), plate_.Cols(), format);
        const bool down = Pitch(Keyword::YPitch, plate_.YPitch(), plate_.Rows(), format);
        if (across && down) Offset(format);
    }

    /// Whether the last well is off by no more than it may be, if the first is where it should be.
    bool Pitch(Keyword keyword, Double value, Integer count, const WellFormat& format) {
        const Double off = std::abs(value - format.pitch) * (count - 1);
        if (off <= format.diameter / 2 + kNoise) return true;
        Report(keyword, Name(keyword) + " is " + Millimetres(value) + " mm; ANSI SLAS 4-2004 has " +
                            Millimetres(format.pitch) + " mm; the last well is " +
                            Millimetres(off) + " mm off, " + Allowed(format));
        return false;
    }

    void Offset(const WellFormat& format) {
        if (plate_.CompoundWell()->Count() == 0) return;
        Coordinate nearest = plate_.WellCentroid(0, 0);
        for (const auto& subWell : *plate_.CompoundWell()) {
            const Coordinate centre = DropCentre(plate_, *subWell, 0, 0);
            if (Farthest(centre, format) < Farthest(nearest, format)) nearest = centre;
        }
        const Double off = Farthest(nearest, format);
        if (off <= format.diameter / 2 + kNoise) return;
        const Point expected = First(format);
        const SourceLine& line = lines_.subWells.front();
        findings_.Warning(line, LineParts(line.text).first,
                          "the first well is " + Millimetres(nearest.X()) +
                              " mm from the left and " + Millimetres(nearest.Y()) +
                              " mm from the top; ANSI SLAS 4-2004 has " + Millimetres(expected.x) +
                              " and " + Millimetres(expected.y) + " mm; the well farthest off is " +
                              Millimetres(off) + " mm off, " + Allowed(format));
    }

    static String Allowed(const WellFormat& format) {
        return Millimetres(format.diameter / 2) + " mm is allowed";
    }

    Point First(const WellFormat& format) const {
        return upright_ ? Point{format.top, format.left} : Point{format.left, format.top};
    }

    /// How far the worst of the corner wells is off, for a centre of the first one.
    Double Farthest(const Coordinate& centre, const WellFormat& format) const {
        const Point expected = First(format);
        const Double lastX = (plate_.XPitch() - format.pitch) * (plate_.Cols() - 1);
        const Double lastY = (plate_.YPitch() - format.pitch) * (plate_.Rows() - 1);
        Double farthest = 0;
        for (const Double dx : {0.0, lastX}) {
            for (const Double dy : {0.0, lastY}) {
                farthest = std::max(farthest, std::hypot(centre.X() - expected.x + dx,
                                                         centre.Y() - expected.y + dy));
            }
        }
        return farthest;
    }

    static String Name(Keyword keyword) { return String(TraitsOf(keyword).name); }

    void Report(Keyword keyword, String message) {
        const SourceLine& line = lines_.LineOf(keyword);
        findings_.Warning(line, LineParts(line.text).first, std::move(message));
    }

    const cmPlate& plate_;
    const PlateLines& lines_;
    FindingList& findings_;
    bool upright_;
};

} // namespace

void CheckSlas(const cmPlate& plate, const PlateLines& lines, FindingList& findings) {
    Check(plate, lines, findings).Run();
}

} // namespace zorvane
