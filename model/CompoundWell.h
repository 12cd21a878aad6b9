#pragma once

#include "model/WellDetails.h"
#include "runtime/Export.h"
#include "runtime/KeyedStore.h"
#include "runtime/Types.h"

#include <memory>

namespace zorvane {

/// The ordered sub-wells of a well position, each under a key equal to its name when it was added.
/// Positions count from 1; keys ignore letter case. The stored objects themselves are handed out,
/// so a change made through Item changes the layout.
///
/// Errors: 457 for a name already present, 5 for an unknown name, 9 for a position out of range.
class ZORVANE_EXPORT CompoundWell {
  public:
    using Pointer = std::shared_ptr<WellDetails>;

    /// Inserts a sub-well and returns it: at the end when index is negative or the layout is empty,
    /// at the front when index is 0, otherwise directly after position index. A failure leaves the
    /// layout as it was; error 91 for no sub-well.
    Pointer AddSubWell(const Pointer& subWell, Integer index = 0);

    /// Makes a sub-well of these values, inserts it as AddSubWell does and returns it. The key is
    /// always the name, whatever is asked for.
    Pointer Add(Single depth, Single xOffset, Single yOffset, Single wellSizeX, Single wellSizeY,
                Single rimWidth, Single rimHeight, Single maxVolume, Single rimCenterX,
                Single rimCenterY, Long style, const String& wellName, const String& key = {},
                Integer index = 0);

    /// Replaces the content by new copies of the source's sub-wells, with InitialVolume 0.
    void CopyFrom(const CompoundWell& source);

    /// Exchanges two sub-wells, each keeping its key. The positions must differ: equal ones lose
    /// the sub-well before the position and then fail with 457; 1 and 1 lose the first sub-well
    /// and fail with 9.
    void Swap(Integer index1, Integer index2);

    void Clear() { wells_.Clear(); }

    Pointer Item(Long position) const { return wells_.Item(position); }
    Pointer Item(const String& key) const { return wells_.Item(key); }
    Long Count() const { return wells_.Count(); }
    void Remove(Long position) { wells_.Remove(position); }
    void Remove(const String& key) { wells_.Remove(key); }

    auto begin() const { return wells_.begin(); }
    auto end() const { return wells_.end(); }

  private:
    KeyedStore<WellDetails> wells_;
};

} // namespace zorvane
