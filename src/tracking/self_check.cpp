#include "tracking/self_check.h"

namespace vistrel {

SelfCheck::Verdict SelfCheck::judge(const MissionControlReading& reading) {
    if (reading.thumbnails == 0 && reading.windows == 0) return Verdict::nothingToShow;
    return reading.mapped > 0 ? Verdict::worked : Verdict::failed;
}

bool SelfCheck::record(const MissionControlReading& reading) {
    last_ = reading;
    const bool before = cannotRead();
    switch (judge(reading)) {
        case Verdict::worked:
            failuresInARow_ = 0;
            break;
        case Verdict::failed:
            ++failuresInARow_;
            break;
        case Verdict::nothingToShow:
            break;
    }
    return cannotRead() != before;
}

}  // namespace vistrel
