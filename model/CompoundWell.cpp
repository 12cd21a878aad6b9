#include "model/CompoundWell.h"

#include "runtime/RuntimeError.h"

namespace zorvane {

CompoundWell::Pointer CompoundWell::AddSubWell(const Pointer& subWell, Integer index) {
    if (!subWell) Raise(ErrorNumber::ObjectNotSet);
    const bool atEnd = index < 0 || Count() == 0;
    wells_.InsertAfter(atEnd ? Count() : index, subWell->WellName(), subWell);
    return subWell;
}

CompoundWell::Pointer CompoundWell::Add(Single depth, Single xOffset, Single yOffset,
                                        Single wellSizeX, Single wellSizeY, Single rimWidth,
                                        Single rimHeight, Single maxVolume, Single rimCenterX,
                                        Single rimCenterY, Long style, const String& wellName,
                                        const String& /*key*/, Integer index) {
    auto well = std::make_shared<WellDetails>();
    well->Depth(depth);
    well->xOffset(xOffset);
    well->yOffset(yOffset);
    well->WellSizeX(wellSizeX);
    well->WellSizeY(wellSizeY);
    well->RimWidth(rimWidth);
    well->RimHeight(rimHeight);
    well->MaxVolume(maxVolume);
    well->RimCenterX(rimCenterX);
    well->RimCenterY(rimCenterY);
    well->Style(style);
    well->WellName(wellName);
    return AddSubWell(well, index);
}

void CompoundWell::CopyFrom(const CompoundWell& source) {
    Clear();
    for (const Pointer& each : source) {
        auto copy = std::make_shared<WellDetails>();
        copy->Copy(*each);
        AddSubWell(copy, -1);
    }
}

void CompoundWell::Swap(Integer index1, Integer index2) {
    const Pointer well1 = Item(index1);
    const Pointer well2 = Item(index2);
    const String key1 = wells_.KeyAt(index1);
    const String key2 = wells_.KeyAt(index2);
    if (index2 <= index1) {
        wells_.Remove(index2);
        if (index1 == 1) Raise(ErrorNumber::SubscriptOutOfRange); // there is no position before it
        wells_.InsertAfter(index1 - 1, key2, well2);
        wells_.Remove(index1 - 1);
        wells_.InsertAfter(index2 - 1, key1, well1);
    } else {
        wells_.Remove(index1);
        wells_.InsertAfter(index2 - 1, key1, well1);
        wells_.Remove(index2 - 1);
        wells_.InsertAfter(index1 - 1, key2, well2);
    }
}

} // namespace zorvane
