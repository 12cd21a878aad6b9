// Prints where the positions of a plate are, also on the stage of an instrument, and writes a
// picture of it.
//
//   plate_picture LIBRARY PLATE PICTURE.svg

#include <calibration/StageCalibration.h>
#include <drawing/PlatePicture.h>
#include <runtime/RuntimeError.h>

#include <cmath>
#include <fstream>
#include <iostream>

namespace {

void WritePicture(const std::string& library, const std::string& plate, const std::string& file) {
    zorvane::PictureRequest request;
    request.fileName = library;
    request.plate = plate;
    request.width = 640;
    request.height = 440;
    request.selected = {"A1", "A2", "B2"};
    request.wells = {{.name = "C3", .color = 0x40C040, .caption = "7"}};
    std::ofstream(file) << zorvane::DrawPlate(request);
}

void PrintPlaces(const std::string& library, const std::string& name) {
    zorvane::PlatePicture picture({.plate = name, .fileName = library});
    const zorvane::Plate& plate = picture.Control();
    // Two points of the plate in millimetres, and where the instrument found them.
    const zorvane::StageCalibration calibration(
        {{{18.88, 15.74}, {1200, 500}}, {{108.88, 15.74}, {10200, 500}}});
    for (zorvane::Integer row = 0; row < plate.Rows; ++row) {
        for (zorvane::Integer col = 0; col < plate.Cols; ++col) {
            float x = 0, y = 0, z = 0;
            plate.WellCentroid(x, y, z, row, col);
            const zorvane::PlanePoint stage = calibration.ToStage({x, y});
            std::cout << plate.LoadedDefinition().WellLegend(row, col) << ": " << x << ", " << y
                      << " mm, on the stage " << std::round(stage.x) << ", " << std::round(stage.y)
                      << '\n';
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 4) return 2;
    try {
        PrintPlaces(argv[1], argv[2]);
        WritePicture(argv[1], argv[2], argv[3]);
    } catch (const zorvane::RuntimeError& error) {
        std::cerr << error.Description() << '\n';
        return 1;
    }
}
