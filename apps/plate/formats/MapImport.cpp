#include "apps/plate/formats/MapImport.h"

#include "apps/plate/Files.h"
#include "formats/maps/PlateMap.h"

namespace zorvane {

namespace {

constexpr const char* kCell = "cell";

/// The column that the cells of a matrix are.
MapColumns MatrixColumns(const MapOptions& options) {
    if (options.columns.size() > 1) Fail("a matrix is one column");
    return {{options.columns.empty() ? "text" : options.columns[0], kCell}};
}

MapColumns LayoutColumns(const MapOptions& options) {
    MapColumns columns;
    for (const String& column : options.columns) {
        const std::size_t equals = column.find('=');
        if (equals == column.npos) Fail("--column " + column + ": must be COLUMN=PARAMETER");
        columns.emplace_back(column.substr(0, equals), column.substr(equals + 1));
    }
    return columns;
}

} // namespace

String WellDataOfMatrix(const String& file, const MapOptions& options) {
    const String text = ReadFile(file);
    const MapColumns columns = MatrixColumns(options);
    return WithFile(file,
                    [&] { return WellDataOf(ReadMatrix(text, kCell), options.subWell, columns); });
}

String WellDataOfWellmap(const String& file, const MapOptions& options) {
    const String text = ReadFile(file);
    const MapColumns columns = LayoutColumns(options);
    return WithFile(file, [&] {
        return WellDataOf(ReadWellmap(text, options.plate), options.subWell, columns);
    });
}

} // namespace zorvane
