#pragma once
#include "host/bench/WindowDriver.h"
#include <windows.h>

namespace patchbench
{

/** Delivers this thread's pending messages; returns whether there were any. */
bool pumpMessages();

/** The machine's pointer and keyboard. Each operation returns after its events have been delivered. Main thread, which
    owns the windows. */
class Win32Input
{
public:
    /** Acts at a pixel of the window; raises the window if another one covers it. */
    void pointer (HWND window, const bench::PointerEvent& event);

    /** Types a key into the window, for example "ctrl + w" or "cursor left"; false if there is no such key. */
    bool key (HWND window, const std::string& description);

private:
    void click (DWORD downFlag, DWORD upFlag);
    void press (POINT place, DWORD flag);

    DWORD lastPress = 0; // tick count
    POINT lastPlace{};   // of that press, on the screen
    DWORD release = 0;   // the flag that releases the held button
};

}
