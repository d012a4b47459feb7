#pragma once

#include <algorithm>
#include <vector>

namespace qf::bench {

// The middle of the measurements (the mean of the two middle ones for an even count).
inline double median(std::vector<double> values)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    const size_t middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

inline double minimum(const std::vector<double>& values)
{
    return values.empty() ? 0 : *std::min_element(values.begin(), values.end());
}

} // namespace qf::bench
