#pragma once

namespace qf {

// Resident memory of this process in kilobytes, now and at its peak (0 where it cannot be read).
long residentMemoryKB();
long peakResidentMemoryKB();

} // namespace qf
