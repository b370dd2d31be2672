#pragma once
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace bench
{

/** A pointer or wheel event at a pixel of an object's component. */
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

/** The windows of the objects on the bench as the user sees and operates them.
    The bench knows an object only by its pointer; the program that combines bench and GUI provides the driver.
    Main thread. Commands return empty text on success, otherwise the complaint to show. */
class WindowDriver
{
public:
    /** Receives a window's events in the bench's language, as after "NAME window ":
        "created LEFT TOP WIDTH HEIGHT TITLE", "shown", "hidden", "title TEXT", "front", "destroyed". */
    using Sink = std::function<void (void* object, const std::string& what)>;

    virtual ~WindowDriver() = default;

    /** Set before the first object is created; set an empty sink before the receiver is destroyed. */
    virtual void setSink (Sink sink) = 0;

    /** Delivers pending GUI messages, including repaints of windows on a display; a window in memory is painted when
        its picture is written. Returns whether there were any. */
    virtual bool pump() = 0;

    /** Descriptors that become readable when there is something to deliver: the bench sleeps until then. Empty on
        Windows, where the thread's message queue wakes it. */
    [[nodiscard]] virtual std::vector<int> descriptors() const { return {}; }

    /** False for windows in memory, which the user cannot close. */
    [[nodiscard]] virtual bool isOnDisplay() const = 0;

    virtual std::string turnPage (void* object, int page) = 0;
    virtual std::string pointer (void* object, const PointerEvent& event) = 0;
    virtual std::string key (void* object, const std::string& description) = 0;
    virtual std::string writePicture (void* object, const std::string& file) = 0;
};

/** The process's driver, or null; every Bench pumps and listens to it. Not owned. */
WindowDriver* windowDriver();
void setWindowDriver (WindowDriver* driver);

/** The object whose deferred call runs on this thread, or null: it owns a window created meanwhile. */
void* objectAtWork();

/** Sets objectAtWork() for its lifetime. */
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
