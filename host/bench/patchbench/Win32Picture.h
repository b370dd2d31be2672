#pragma once
#include <string>
#include <windows.h>

namespace patchbench
{

/** Has the window drawn anew and writes what stands on the screen of it to a PNG; what its frame cuts off comes out
    black. False if the file cannot be written. */
bool writePictureOf (HWND window, const std::string& file);

}
