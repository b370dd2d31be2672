#pragma once
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace bench
{

/** A pointer or wheel event at a pixel of an object's whole component. */
struct PointerEvent
{
    enum class Action
    {
        down,
        drag,
        up,
        move,
        doubleClick,
        wheel
    };

    Action action = Action::move;
    float x = 0;
    float y = 0;
    float wheelDelta = 0; // wheel only; positive is away from the user
    bool shift = false;
    bool ctrl = false;
    bool alt = false;
    bool right = false; // the right button instead of the left one
};

/** The windows of the objects on the bench, seen from outside: what a user's hands and eyes are.
    The bench knows an object by its pointer alone; the program that joins the bench and a GUI brings the driver.
    Main thread. The commands give an empty text when done, else the complaint that is shown to the user. */
class WindowDriver
{
public:
    /** Gets what a window did, as the bench's language writes it behind "NAME window ":
        "created LEFT TOP WIDTH HEIGHT TITLE", "shown", "hidden", "title TEXT", "front", "destroyed". */
    using Sink = std::function<void (void* object, const std::string& what)>;

    virtual ~WindowDriver() = default;

    /** Set before the first object is made; an empty one is set before the receiver goes. */
    virtual void setSink (Sink sink) = 0;

    /** Delivers the GUI's pending messages, the repaints of windows on a display among them; a window in memory is
        painted when its picture is written. True if there was anything to deliver. */
    virtual bool pump() = 0;

    /** What can be read when there is something to deliver: the bench sleeps until then. None on Windows, where the
        thread's own queue wakes it. */
    [[nodiscard]] virtual std::vector<int> descriptors() const { return {}; }

    /** False for windows in memory, which nobody can close by hand. */
    [[nodiscard]] virtual bool isOnDisplay() const = 0;

    virtual std::string turnPage (void* object, int page) = 0;
    virtual std::string pointer (void* object, const PointerEvent& event) = 0;
    virtual std::string key (void* object, const std::string& description) = 0;
    virtual std::string writePicture (void* object, const std::string& file) = 0;
};

/** The driver of this process, or null: what every Bench pumps and listens to. Not owned. */
WindowDriver* windowDriver();
void setWindowDriver (WindowDriver* driver);

/** The object whose deferred call runs on this thread, or null: a window that is made meanwhile is its own. */
void* objectAtWork();

/** Makes an object the one at work as long as this lives. */
class ObjectAtWork
{
public:
    explicit ObjectAtWork (void* object);
    ~ObjectAtWork();

    ObjectAtWork (const ObjectAtWork&) = delete;
    ObjectAtWork& operator= (const ObjectAtWork&) = delete;

private:
    void* const before;
};

}
