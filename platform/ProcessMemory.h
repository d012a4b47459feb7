#pragma once

namespace qf {

// Resident memory of this process in kilobytes, now and at its peak (0 where it cannot be read).
long residentMemoryKB();
long peakResidentMemoryKB();

// Bytes read and written so far by the processes of process group `group`, together: on
// Linux every read and write (files, pipes), on macOS what went to and from the disk. A count
// that changes means work goes on even while nothing is printed. -1 when it cannot be read.
long long processGroupIoBytes(long long group);

} // namespace qf
