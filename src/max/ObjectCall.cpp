#include "max/ObjectCall.h"

#include <juce_events/juce_events.h>

#include <utility>
#include <vector>

namespace orvanemax
{
namespace
{

thread_local ObjectCall* innermost = nullptr;
thread_local bool partsWait = false;

/** Parts to destroy once all calls have returned. Main thread. */
std::vector<std::function<void()>>& waitingParts()
{
    static std::vector<std::function<void()>> parts;
    return parts;
}

void destroyWaitingParts()
{
    if (innermost != nullptr) {
        partsWait = true; // inside a call's nested message loop; retried when that call ends
        return;
    }
    for (const auto& destroy : std::exchange (waitingParts(), {}))
        destroy();
}

}

ObjectCall::ObjectCall (const void* objectToCall) noexcept
    : object (objectToCall), outer (std::exchange (innermost, this))
{}

ObjectCall::~ObjectCall()
{
    innermost = outer;
    if (innermost == nullptr && std::exchange (partsWait, false))
        juce::MessageManager::callAsync (destroyWaitingParts);
}

bool objectIsGone() noexcept { return innermost != nullptr && innermost->isGone; }

void objectGoes (const void* object, std::function<void()> destroyParts)
{
    bool isCalled = false;
    for (auto* call = innermost; call != nullptr; call = call->outer)
        if (call->object == object && ! std::exchange (call->isGone, true))
            isCalled = true;
    if (! isCalled)
        return destroyParts();
    waitingParts().push_back (std::move (destroyParts));
    partsWait = true;
}

}
