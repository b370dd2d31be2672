#pragma once
#include <functional>

/** How an object outlives its own callbacks.

    A patch may delete a box while the box speaks: during a call of an outlet or a notification, and so in the middle of
    whatever made it speak, a method, a setter, a deferred call, or a hand on the window. The host takes the record back
    at once. So:

    - Every function that the host calls makes an ObjectCall first (HostFunction does), and so does every callback of
      the component that can make the object speak.
    - The function that frees the object calls objectGoes() with what these calls may still stand in: the component and
      its window.
    - What spoke asks objectIsGone() before it touches the record again.

    Calls know each other by thread: objects are freed on the main thread, where all of them speak. */
namespace orvanemax
{

/** One call under way in an object, from its construction to its destruction; calls nest. */
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

/** True if the object of this thread's innermost call was freed since the call began: its record is not there. */
[[nodiscard]] bool objectIsGone() noexcept;

/** Ends the calls that are under way in the object, and destroys its parts: at once if there are none, else on a later
    turn of JUCE's message loop, when the outermost call of all objects has returned. Main thread. */
void objectGoes (const void* object, std::function<void()> destroyParts);

}
