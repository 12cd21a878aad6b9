#include "python/Decimal.h"

#include "runtime/NumberText.h"

#include <cmath>

namespace zorvane::python {

double Decimal(Single value) {
    const double exact = value;
    if (std::abs(exact) < 10000) {
        // Lengths mostly have a few decimals. More digits than a Single has would not be the
        // shortest ones.
        for (const double scale : {100.0, 1000.0}) {
            const double rounded = std::round(exact * scale) / scale;
            if (static_cast<Single>(rounded) == value) return rounded;
        }
    }
    return std::isfinite(exact) ? ParseDouble(SingleText(value)) : exact;
}

} // namespace zorvane::python
