#pragma once

/** JUCE's message loop inside a foreign one: the host watches JUCE's descriptors and calls dispatch() when one is
    readable. Pd's thread, except atExit(). */
namespace MessageLoop
{

/** Functions provided by the host. */
struct Watch
{
    void (*add) (int descriptor);
    void (*remove) (int descriptor);
    void (*soon)(); // requests a dispatch() call when the host is next idle
};

/** Runs a function at process exit, before the libraries loaded so far are torn down. */
void atExit (void (*function) (void*));

/** Call before start(). */
void setWatch (const Watch& watch);

void start();

/** Makes the calling thread the message thread. */
void useThisThread();

/** Serves all descriptors. */
void dispatch();

/** With a window on the desktop, requests a dispatch() call: X11 requests are buffered until sent, and events may have
    been read but not handled while the descriptor is silent. */
void serveSoon();

[[nodiscard]] bool hasDisplay();

}
