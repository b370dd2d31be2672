#pragma once
#include "host/pd/Value.h"
#include <memory>
#include <string>
#include <vector>

/** The Max side of an object in Pd. Everything here runs on Pd's thread. */
namespace pdhost
{

/** Receives what an object sends and logs. */
class Listener
{
public:
    enum class Row
    {
        post,
        warning,
        error,
        bug
    };

    virtual ~Listener() = default;
    virtual void message (int outlet, const char* selector, const Values& values) = 0;
    virtual void row (Row kind, const std::string& text) = 0;

    /** The user changed the object's state by hand; messages do not count. */
    virtual void editedByHand() = 0;
};

class Box
{
public:
    /** Makes an object from the words behind the class name; null, and logged to the listener, if it cannot be made. */
    static std::unique_ptr<Box> make (Listener& listener, const Values& words);

    /** Silences the object, and frees it now or, while it is at work, as soon as its last call has returned. */
    ~Box();
    Box (const Box&) = delete;
    Box& operator= (const Box&) = delete;

    [[nodiscard]] int numberOfOutlets() const;

    /** Relative file names refer to this folder. */
    void setFolder (std::string path);

    /** Delivers a message and runs everything that it queued, so the object is done when this returns; inside
        another object's replay that waits until the replay ends. Values are passed on as they are. */
    void send (const char* selector, const Values& values);

    /** The attributes that differ from the state right after creation. */
    [[nodiscard]] std::vector<NamedValues> changes() const;

    /** Returns to the state right after creation but for these attributes, in one transaction. */
    void restore (const std::vector<NamedValues>& changes);

private:
    struct Inside;
    friend struct Host;
    explicit Box (std::unique_ptr<Inside> inside);
    std::unique_ptr<Inside> inside;
};

/** Handles pending events of windows and timers. */
void serveWindows();

/** Frees the objects whose threads would not survive the end of the process. */
void shutDown();

}
