#pragma once

#include "control/PlateTypes.h"
#include "platform/PropertyStore.h"
#include "runtime/RuntimeError.h"
#include "runtime/Types.h"

namespace zorvane::saved {

/// A setting that a host's property store keeps: its key and the value that a store may leave out.
template <class Value>
struct Setting {
    const char* key;
    Value fallback;
};

/// Error 13 when the store holds a value of another type.
template <class Value>
Value Read(const PropertyStore& store, const Setting<Value>& setting) {
    const PropertyValue stored = store.Read(setting.key, setting.fallback);
    const Value* const value = std::get_if<Value>(&stored);
    if (!value) Raise(ErrorNumber::TypeMismatch);
    return *value;
}

template <class Value>
void Write(PropertyStore& store, const Setting<Value>& setting, const Value& value) {
    store.Write(setting.key, value, setting.fallback);
}

/// The file name's fallback is the default library of the running control.
inline Setting<String> FileName(const String& defaultLibrary) {
    return {"FileName", defaultLibrary};
}
inline const Setting<String> kPlateName{"PlateName", "No_Plate"};
inline constexpr Setting<Boolean> kFixedSize{"FixedSize", true};
inline constexpr Setting<Single> kDrawingScale{"DrawingScale", 50};
inline constexpr Setting<Long> kDefaultRimColor{"DefaultRimColor", 0xE0E0E0};
inline constexpr Setting<Long> kDefaultSelectColor{"DefaultSelectColor", 0x808080};
inline constexpr Setting<Long> kDefaultWellColor{"DefaultWellColor", 0xE0E0E0};
inline constexpr Setting<Long> kDeselectedColor{"DeselectedColor", kButtonFace};
inline constexpr Setting<Long> kSelectedColor{"SelectedColor", kButtonShadow};
inline constexpr Setting<Boolean> kHorizontalCentred{"HorizontalCentred", false};
inline constexpr Setting<Boolean> kVerticalCentred{"VerticalCentred", false};
inline constexpr Setting<Boolean> kMultipleSelect{"MultipleSelect", false};

} // namespace zorvane::saved
