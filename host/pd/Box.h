#pragma once
#include "host/pd/Value.h"
#include <memory>
#include <string>
#include <vector>

/** The Max side of an object in Pd. Everything runs on Pd's thread. */
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

    /** The user changed the object's state in the window; messages do not count. */
    virtual void editedByHand() = 0;
};

class Box
{
public:
    /** Creates an object from the words after the class name; returns null, and logs to the listener, on failure. */
    static std::unique_ptr<Box> make (Listener& listener, const Values& words);

    /** Silences the object and frees it: at once, or after its last call in progress. */
    ~Box();
    Box (const Box&) = delete;
    Box& operator= (const Box&) = delete;

    [[nodiscard]] int numberOfOutlets() const;

    /** Sets the base folder for relative file names. */
    void setFolder (std::string path);

    /** Delivers a message and runs everything it queued before returning; inside another object's replay, after the
        replay ends. Values are passed on unchanged. */
    void send (const char* selector, const Values& values);

    /** The attributes that differ from the state right after creation. */
    [[nodiscard]] std::vector<NamedValues> changes() const;

    /** Restores the state right after creation, except for these attributes, in one transaction. */
    void restore (const std::vector<NamedValues>& changes);

private:
    struct Inside;
    friend struct Host;
    explicit Box (std::unique_ptr<Inside> inside);
    std::unique_ptr<Inside> inside;
};

/** Handles pending window and timer events. */
void serveWindows();

/** Frees the objects whose threads would not survive the end of the process. */
void shutDown();

}
