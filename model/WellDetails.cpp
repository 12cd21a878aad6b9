#include "model/WellDetails.h"

namespace zorvane {

void WellDetails::Copy(const WellDetails& source) {
    const Single ownInitialVolume = initialVolume_;
    *this = source;
    initialVolume_ = ownInitialVolume;
}

} // namespace zorvane
