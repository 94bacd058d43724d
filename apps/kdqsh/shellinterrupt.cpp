#include "shellinterrupt.h"

#include "platform.h"

#include <atomic>
#include <cstdlib>

namespace {

std::atomic<bool> requested{false};

void request()
{
    if (requested.exchange(true))
        std::_Exit(nInterrupt::exitStatus);
}

} // namespace

void nInterrupt::watch()
{
    nPlatform::watchInterrupts(request);
}

bool nInterrupt::isRequested()
{
    return requested;
}

void nInterrupt::clear()
{
    requested = false;
}
