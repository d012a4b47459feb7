#pragma once

#include <functional>

class QWidget;

namespace qf {

// Runs `work` once `window` has painted its first frame, on the next turn of the event loop:
// for what the first screen does not show, so that it does not hold the window back.
void afterFirstFrame(QWidget* window, std::function<void()> work);

// For the start-up benchmark: when QUILLFORGE_REPORT_FIRST_FRAME is set, the process prints
// "first-frame rss_kb=N" on standard output once `window` has painted its first frame, then
// "screen-frame rss_kb=N" once the widget `screen` answers has painted (without `screen`, it
// quits at the first frame), and quits.
void reportFirstFrameIfRequested(QWidget* window, std::function<QWidget*()> screen = {});

} // namespace qf
