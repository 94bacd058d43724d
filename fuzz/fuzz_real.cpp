#include "realcheck.h"

#include <cstdlib>

// Any eight bytes are a double; its deck form must be the rule's, digit by digit, and cropping must make it
// fit.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    static const RealCheck check;
    for (; size >= sizeof(double); data += sizeof(double), size -= sizeof(double)) {
        double value;
        std::memcpy(&value, data, sizeof value);
        if (!std::isfinite(value))
            value = 1.0 / 3.0;
        double cropped = value;
        CFEDatLineWriter::cropDoubleValue(cropped);
        const double magnitude = std::fabs(cropped);
        const bool fits = cropped == 0.0
            || (magnitude >= CFEDatLineWriter::MIN_COORD_VALUE()
                && magnitude < CFEDatLineWriter::MAX_COORD_VALUE());
        if (!fits || !check.difference(value).empty() || !check.difference(cropped).empty())
            std::abort();
    }
    return 0;
}
