#include "MacVolume.h"

#import <Foundation/Foundation.h>

namespace qf {

std::optional<DiskSpace> importantUsageSpace(const QString& path)
{
    @autoreleasepool {
        NSURL* url = [NSURL fileURLWithPath:path.toNSString() isDirectory:YES];
        id value = nil;
        NSError* error = nil;
        if (![url getResourceValue:&value forKey:NSURLVolumeAvailableCapacityForImportantUsageKey error:&error])
            return std::nullopt;
        if (![value isKindOfClass:[NSNumber class]])
            return std::nullopt;
        NSNumber* capacity = value;
        return DiskSpace{static_cast<qint64>(capacity.longLongValue), QString()};
    }
}

} // namespace qf
