#include "hosts/qt/QtPalette.h"

namespace zorvane {

namespace {

struct Role {
    std::size_t index; // of the system colour
    QPalette::ColorRole role;
    QPalette::ColorGroup group = QPalette::Active;
};

constexpr Role kRoles[] = {
    {0x05, QPalette::Base},
    {0x08, QPalette::Text},
    {0x0D, QPalette::Highlight},
    {0x0E, QPalette::HighlightedText},
    {0x0F, QPalette::Button},
    {0x10, QPalette::Dark},
    {0x11, QPalette::ButtonText, QPalette::Disabled},
    {0x12, QPalette::ButtonText},
    {0x14, QPalette::Light},
    {0x15, QPalette::Shadow},
    {0x16, QPalette::Midlight},
    {0x17, QPalette::ToolTipText},
    {0x18, QPalette::ToolTipBase},
    {0x1A, QPalette::Link},
};

Rgb ToRgb(const QColor& color) {
    const auto byte = [](int value) { return static_cast<std::uint8_t>(value); };
    return {byte(color.red()), byte(color.green()), byte(color.blue())};
}

} // namespace

SystemPalette SystemColors(const QPalette& palette) {
    SystemPalette system;
    for (const Role& role : kRoles)
        system.colors[role.index] = ToRgb(palette.color(role.group, role.role));
    return system;
}

Long ToLong(const QColor& color, Long fallback) {
    if (!color.isValid()) return fallback;
    return static_cast<Long>(color.red() | color.green() << 8 | color.blue() << 16);
}

} // namespace zorvane
