#include "python/Picture.h"

#include "python/Text.h"

#include "drawing/PlatePicture.h"
#include "runtime/Rounding.h"
#include "runtime/RuntimeError.h"

#include <charconv>

namespace py = pybind11;

namespace zorvane::python {

namespace {

/// 0x00BBGGRR of "#RRGGBB".
Long ColorOf(const String& text) {
    Long value = 0;
    const char* const end = text.data() + text.size();
    const bool formed = text.size() == 7 && text.front() == '#';
    if (!formed || std::from_chars(text.data() + 1, end, value, 16).ptr != end || value < 0)
        throw py::value_error("\"" + text + "\" is not a colour of the form #RRGGBB");
    return (value & 0xFF) << 16 | (value & 0xFF00) | value >> 16;
}

/// A colour, or a colour or None and a caption.
DrawnWell DrawnAs(const String& name, const py::handle& look) {
    DrawnWell well{.name = name};
    if (!py::isinstance<py::tuple>(look)) {
        well.color = ColorOf(look.cast<Text>().bytes);
        return well;
    }
    const auto [color, caption] = look.cast<std::pair<py::object, Text>>();
    if (!color.is_none()) well.color = ColorOf(color.cast<Text>().bytes);
    well.caption = caption.bytes;
    return well;
}

} // namespace

String ToSvg(const cmPlate& plate, double scale, Integer width, Integer height,
             const py::iterable& selected, const py::dict& wells) {
    PictureRequest request{.definition = plate.Text(), .scale = ToSingle(scale)};
    request.width = width;
    request.height = height;
    for (const py::handle name : selected)
        request.selected.push_back(name.cast<Text>().bytes);
    for (const auto& [name, look] : wells)
        request.wells.push_back(DrawnAs(name.cast<Text>().bytes, look));
    return DrawPlate(request);
}

} // namespace zorvane::python
