#include "max/window/Win32Window.h"

#include <windows.h>

namespace orvanemax
{

namespace
{

constexpr DWORD frameStyle = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_VISIBLE;
constexpr DWORD extendedStyle = WS_EX_ACCEPTFILES;
constexpr const wchar_t* dialogClass = L"#32770";

HWND windowOf (void* handle) { return static_cast<HWND> (handle); }

/** The module of this code: the external, not the program that loaded it. */
HINSTANCE thisModule()
{
    HMODULE module = nullptr;
    GetModuleHandleExA (GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                        reinterpret_cast<LPCSTR> (&thisModule), &module);
    return module;
}

struct Decoration
{
    int width = 0;
    int height = 0;
};

/** What the frame adds around its client area at a given DPI. */
Decoration decorationAt (UINT dpi)
{
    RECT frame{};
    AdjustWindowRectExForDpi (&frame, frameStyle, FALSE, extendedStyle, dpi);
    return { static_cast<int> (frame.right - frame.left), static_cast<int> (frame.bottom - frame.top) };
}

/** A frame is thicker at higher DPI while the component is not larger: grow the frame by the difference, so that the
    component is clipped no more than on other screens. */
void makeUpForThickFrame (HWND window, juce::Rectangle<int> frame)
{
    const auto usual = decorationAt (USER_DEFAULT_SCREEN_DPI);
    const auto here = decorationAt (GetDpiForWindow (window));
    if (here.width != usual.width || here.height != usual.height)
        SetWindowPos (window, nullptr, 0, 0, frame.getWidth() + here.width - usual.width,
                      frame.getHeight() + here.height - usual.height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

/** The frame's dialog procedure: without one a dialog would not receive its close button. */
INT_PTR CALLBACK answer (HWND frame, UINT message, WPARAM, LPARAM)
{
    if (message != WM_CLOSE)
        return FALSE;
    const auto* window = reinterpret_cast<const Win32Window*> (GetWindowLongPtrW (frame, GWLP_USERDATA));
    if (window != nullptr && window->onCloseButton)
        window->onCloseButton();
    return TRUE;
}

}

std::unique_ptr<NativeWindow> makePlatformWindow() { return std::make_unique<Win32Window>(); }

void startJuceInHost()
{
    // JUCE's message window, timers and hooks point into this module, so it stays loaded until the process ends.
    HMODULE module = nullptr;
    GetModuleHandleExA (GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
                        reinterpret_cast<LPCSTR> (&thisModule), &module);
    if (juce::MessageManager::getInstanceWithoutCreating() == nullptr)
        juce::MessageManager::getInstance();
    juce::Desktop::getInstance();
}

Win32Window::~Win32Window() { destroy(); }

bool Win32Window::create (const juce::String& title, juce::Rectangle<int> frame)
{
    destroy();
    auto* const created =
        CreateWindowExW (extendedStyle, dialogClass, title.toWideCharPointer(), frameStyle, frame.getX(), frame.getY(),
                         frame.getWidth(), frame.getHeight(), nullptr, nullptr, thisModule(), nullptr);
    if (created == nullptr)
        return false;

    handle = created;
    SetWindowLongPtrW (created, GWLP_USERDATA, reinterpret_cast<LONG_PTR> (this));
    SetWindowLongPtrW (created, DWLP_DLGPROC, reinterpret_cast<LONG_PTR> (&answer));
    makeUpForThickFrame (created, frame);
    return true;
}

void Win32Window::show()
{
    ShowWindow (windowOf (handle), IsIconic (windowOf (handle)) ? SW_RESTORE : SW_SHOW);
    BringWindowToTop (windowOf (handle));
}

void Win32Window::hide() { ShowWindow (windowOf (handle), SW_HIDE); }

void Win32Window::destroy()
{
    if (handle == nullptr)
        return;
    attach (nullptr); // a peer must be destroyed before its parent window
    DestroyWindow (windowOf (std::exchange (handle, nullptr)));
}

void Win32Window::setTitle (const juce::String& title)
{
    SetWindowTextW (windowOf (handle), title.toWideCharPointer());
}

void Win32Window::attach (juce::Component* component)
{
    if (component != nullptr)
        component->addToDesktop (0, handle);
    else if (content != nullptr)
        content->removeFromDesktop();
    content = component;
}

bool Win32Window::isOccupied() const { return content != nullptr && content->isOnDesktop(); }

}
