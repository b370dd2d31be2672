#include "host/bench/patchbench/Win32Picture.h"
#include <filesystem>
#include <objidl.h>

#include <gdiplus.h>

namespace patchbench
{

namespace
{
/** Keeps GDI+ initialised for its lifetime. */
struct RunningGdiplus
{
    RunningGdiplus()
    {
        const Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup (&token, &input, nullptr);
    }
    ~RunningGdiplus() { Gdiplus::GdiplusShutdown (token); }

    RunningGdiplus (const RunningGdiplus&) = delete;
    RunningGdiplus& operator= (const RunningGdiplus&) = delete;

    ULONG_PTR token = 0;
};

constexpr CLSID pngEncoder = { 0x557cf406, 0x1a04, 0x11d3, { 0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e } };
}

bool writePictureOf (HWND window, const std::string& file)
{
    // The part under another window may not be available to copy.
    SetWindowPos (GetAncestor (window, GA_ROOT), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);

    // Without a display that reports vertical blanks, as under Wine, nothing redraws by itself.
    RedrawWindow (window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    GdiFlush();

    RECT area{};
    GetClientRect (window, &area);
    auto* const screen = GetDC (window);
    auto* const memory = CreateCompatibleDC (screen);
    auto* const pixels = CreateCompatibleBitmap (screen, area.right, area.bottom);
    auto* const before = SelectObject (memory, pixels);
    BitBlt (memory, 0, 0, area.right, area.bottom, screen, 0, 0, SRCCOPY);
    SelectObject (memory, before);

    const RunningGdiplus gdiplus;
    auto status = Gdiplus::GenericError;
    {
        Gdiplus::Bitmap picture (pixels, nullptr);
        picture.SetResolution (96, 96); // the same file on every screen
        status = picture.Save (std::filesystem::u8path (file).c_str(), &pngEncoder, nullptr);
    }
    DeleteObject (pixels);
    DeleteDC (memory);
    ReleaseDC (window, screen);
    return status == Gdiplus::Ok;
}

}
