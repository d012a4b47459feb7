#pragma once

class QWidget;

namespace qf {

// For the start-up benchmark: when QUILLFORGE_REPORT_FIRST_FRAME is set, the process prints
// "first-frame rss_kb=N" on standard output once `window` has painted its first frame, and quits.
void reportFirstFrameIfRequested(QWidget* window);

} // namespace qf
