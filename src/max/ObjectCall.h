#pragma once
#include <functional>

/** How an object survives its own callbacks.

    A patch may delete a box while the box is sending: during an outlet call or a notification, and therefore in the
    middle of the method, setter, deferred call or window event that caused it. The host frees the struct at once. So:

    - Every function that the host calls first constructs an ObjectCall (HostFunction does so), and so does every
      callback of the component that can make the object send.
    - The function that frees the object calls objectGoes() with what these calls may still be using: the component and
      its window.
    - After sending, check objectIsGone() before touching the struct again.

    Calls find each other per thread: objects are freed on the main thread, and all sending happens there. */
namespace orvanemax
{

/** One call in progress on an object, from construction to destruction; calls nest. */
class ObjectCall
{
public:
    explicit ObjectCall (const void* object) noexcept;
    ~ObjectCall();

    ObjectCall (const ObjectCall&) = delete;
    ObjectCall& operator= (const ObjectCall&) = delete;

private:
    friend bool objectIsGone() noexcept;
    friend void objectGoes (const void* object, std::function<void()> destroyParts);

    const void* object;
    bool isGone = false;
    ObjectCall* outer;
};

/** True if the object of this thread's innermost call was freed since the call began: its struct is invalid. */
[[nodiscard]] bool objectIsGone() noexcept;

/** Marks the object as gone for its calls in progress, and destroys its parts: at once if there are none, otherwise on
    a later turn of JUCE's message loop, once the outermost call of all objects has returned. Main thread. */
void objectGoes (const void* object, std::function<void()> destroyParts);

}
