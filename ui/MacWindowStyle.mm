#include "MacWindowStyle.h"

#include <QWidget>

#import <AppKit/AppKit.h>
#import <QuartzCore/QuartzCore.h>

namespace qf {

void applyMacWindowStyle(QWidget* window)
{
    if (!window)
        return;
    NSView* view = reinterpret_cast<NSView*>(window->winId());
    NSWindow* nsWindow = view.window;
    if (!nsWindow)
        return;
    nsWindow.titlebarAppearsTransparent = YES;
    nsWindow.titleVisibility = NSWindowTitleHidden;
    nsWindow.styleMask |= NSWindowStyleMaskFullSizeContentView;
    nsWindow.backgroundColor = NSColor.windowBackgroundColor;
    NSView* content = nsWindow.contentView;
    if (!content)
        return;
    [content setWantsLayer:YES];
    content.layer.cornerRadius = 22.0;
    content.layer.masksToBounds = YES;
}

} // namespace qf
