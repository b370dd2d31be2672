#pragma once

/** JUCE's message loop inside a foreign one: the host watches JUCE's descriptors and calls dispatch() when one is
    readable. Everything but atExit() on Pd's thread. */
namespace MessageLoop
{

/** What the host provides. */
struct Watch
{
    void (*add) (int descriptor);
    void (*remove) (int descriptor);
    void (*soon)(); // requests one call of dispatch() when the host is next idle
};

/** Runs a function when the process ends, before the libraries that are loaded by now are torn down. */
void atExit (void (*function) (void*));

/** Call before start(). */
void setWatch (const Watch& watch);

void start();

/** Makes the calling thread the message thread. */
void useThisThread();

/** Serves all descriptors. */
void dispatch();

/** With a window on the desktop, requests a call of dispatch(): X11 requests wait in a buffer until they are sent, and
    events may have been read but not handled while the descriptor is silent. */
void serveSoon();

[[nodiscard]] bool hasDisplay();

}
