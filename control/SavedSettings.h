#pragma once

#include "control/PlateFields.h"
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
inline const Setting<Boolean> kFixedSize{"FixedSize", PlateFields().FixedSize};
inline constexpr Setting<Single> kDrawingScale{"DrawingScale", kDefaultScale};
inline constexpr Setting<Long> kRimColor{"DefaultRimColor", kDefaultWellColor};
inline constexpr Setting<Long> kSelectColor{"DefaultSelectColor", kDefaultSelectColor};
inline constexpr Setting<Long> kWellColor{"DefaultWellColor", kDefaultWellColor};
inline const Setting<Long> kDeselectedColor{"DeselectedColor", PlateFields().DeselectedColor};
inline const Setting<Long> kSelectedColor{"SelectedColor", PlateFields().SelectedColor};
inline const Setting<Boolean> kHorizontalCentred{"HorizontalCentred",
                                                 PlateFields().HorizontalCentred};
inline const Setting<Boolean> kVerticalCentred{"VerticalCentred", PlateFields().VerticalCentred};
inline const Setting<Boolean> kMultipleSelect{"MultipleSelect", PlateFields().MultipleSelect};

} // namespace zorvane::saved
