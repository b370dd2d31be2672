#pragma once
#include <string>
#include <windows.h>

namespace patchbench
{

/** Redraws the window and writes its screen contents to a PNG; what its frame clips is black. False if the file cannot
    be written. */
bool writePictureOf (HWND window, const std::string& file);

}
