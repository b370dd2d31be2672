#pragma once
#include "host/bench/WindowDriver.h"
#include <windows.h>

namespace patchbench
{

/** Delivers the messages that wait for this thread; true if there were any. */
bool pumpMessages();

/** The pointer and the keyboard of this machine. Whatever is done has been delivered when an operation returns.
    Main thread, which owns the windows. */
class Win32Input
{
public:
    /** At a pixel of the window, which is brought into view there if another one covers it. */
    void pointer (HWND window, const bench::PointerEvent& event);

    /** Types a key into the window, described as in "ctrl + w" or "cursor left"; false if there is no such key. */
    bool key (HWND window, const std::string& description);

private:
    void click (DWORD downFlag, DWORD upFlag);
    void press (POINT place, DWORD flag);

    DWORD lastPress = 0; // tick count
    POINT lastPlace{};   // of that press, on the screen
    DWORD release = 0;   // the flag that lets go of the held button
};

}
