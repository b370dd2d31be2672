#include <windows.h>

#include <cstdio>
#include <oleauto.h>

/** Does what a screen reader does first, from another process: gets the window's element through UI Automation, and
    prints its name; then closes the window. Exits with 0 if there was a name. Calls the functions beneath the client's
    COM objects, which Wine lacks. */
namespace
{

using Node = void*;
constexpr int nameProperty = 30005;
constexpr int patience = 60; // seconds allowed for the window to appear on a busy machine

/** A function of UI Automation. MinGW has no import library for the client side. */
template <typename Function>
Function clientFunction (const char* name)
{
    static const auto library = LoadLibraryW (L"uiautomationcore.dll");
    return reinterpret_cast<Function> (reinterpret_cast<void (*)()> (GetProcAddress (library, name)));
}

/** The content of the frame with this title, once it is on the screen. */
HWND contentOf (const wchar_t* title)
{
    for (int tenth = 0; tenth < 10 * patience; ++tenth) {
        if (auto* const frame = FindWindowW (nullptr, title))
            if (auto* const content = GetWindow (frame, GW_CHILD); content != nullptr && IsWindowVisible (content))
                return content;
        Sleep (100);
    }
    return nullptr;
}

int failed (const char* step, HRESULT result)
{
    std::fprintf (stderr, "%s: 0x%08lx\n", step, static_cast<unsigned long> (result));
    return 1;
}

}

int main()
{
    auto* const window = contentOf (L"Halcyra");
    if (window == nullptr)
        return failed ("no window", E_FAIL);
    CoInitializeEx (nullptr, COINIT_MULTITHREADED);

    const auto nodeFromHandle = clientFunction<HRESULT (WINAPI*) (HWND, Node*)> ("UiaNodeFromHandle");
    const auto getPropertyValue = clientFunction<HRESULT (WINAPI*) (Node, int, VARIANT*)> ("UiaGetPropertyValue");
    if (nodeFromHandle == nullptr || getPropertyValue == nullptr)
        return failed ("no UI Automation", E_NOTIMPL);
    Node node = nullptr;
    auto result = nodeFromHandle (window, &node);
    if (FAILED (result) || node == nullptr)
        return failed ("no element", result);
    VARIANT name{};
    result = getPropertyValue (node, nameProperty, &name);
    if (FAILED (result) || name.vt != VT_BSTR)
        return failed ("no name", result);
    std::printf ("%ls\n", name.bstrVal);
    PostMessageW (GetParent (window), WM_CLOSE, 0, 0);
    return 0;
}
