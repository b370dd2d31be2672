#include "host/bench/patchbench/Win32WindowDriver.h"
#include "host/bench/patchbench/Win32Picture.h"
#include <iterator>
#include <utility>

namespace patchbench
{

namespace
{
Win32WindowDriver* current = nullptr; // a hook has no context pointer

struct PlaceOfTab
{
    float x;
    float y;
};

const char* const noWindow = "it has no window";
const char* const notOpen = "it is not on the screen";

// The middle of each tab, in client pixels. An external draws its tabs itself and does not expose them; they are at the
// same place on every screen.
constexpr PlaceOfTab tabs[] = { { 55, 22 }, { 156, 22 }, { 210, 22 } };

bool isFrame (HWND window)
{
    wchar_t name[16] = {};
    GetClassNameW (window, name, 16);
    return std::wstring (name) == L"#32770" && (GetWindowLongW (window, GWL_STYLE) & WS_CHILD) == 0;
}

std::string titleOf (HWND window)
{
    wchar_t title[512] = {};
    GetWindowTextW (window, title, 512);
    char text[2048] = {};
    WideCharToMultiByte (CP_UTF8, 0, title, -1, text, sizeof (text), nullptr, nullptr);
    return text;
}

/** Whether the change only raises a window to the top. */
bool isRaised (const WINDOWPOS& change)
{
    constexpr UINT decisive = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_SHOWWINDOW | SWP_HIDEWINDOW;
    return (change.flags & decisive) == (SWP_NOMOVE | SWP_NOSIZE) && change.hwndInsertAfter == HWND_TOP;
}
}

Win32WindowDriver::Win32WindowDriver()
{
    current = this;
    hook = SetWindowsHookExW (WH_CALLWNDPROCRET, seeMessage, nullptr, GetCurrentThreadId());
}

Win32WindowDriver::~Win32WindowDriver()
{
    UnhookWindowsHookEx (hook);
    current = nullptr;
}

LRESULT CALLBACK Win32WindowDriver::seeMessage (int code, WPARAM wParam, LPARAM lParam)
{
    if (code == HC_ACTION && current != nullptr)
        current->see (*reinterpret_cast<const CWPRETSTRUCT*> (lParam));
    return CallNextHookEx (nullptr, code, wParam, lParam);
}

void Win32WindowDriver::see (const CWPRETSTRUCT& message)
{
    if (message.message == WM_CREATE)
        return seeCreation (message.hwnd, *reinterpret_cast<const CREATESTRUCTW*> (message.lParam));
    if (owners.find (message.hwnd) == owners.end())
        return;
    switch (message.message) {
    case WM_SHOWWINDOW:
        if (message.lParam == 0)
            report (message.hwnd, message.wParam != 0 ? "shown" : "hidden");
        break;
    case WM_WINDOWPOSCHANGING:
        // A click also raises a window, but then the user does, not the object.
        if (isRaised (*reinterpret_cast<const WINDOWPOS*> (message.lParam)) && bench::objectAtWork() != nullptr &&
            ! std::exchange (frontTold, true))
            report (message.hwnd, "front");
        break;
    case WM_SETTEXT:
        report (message.hwnd, "title " + titleOf (message.hwnd));
        break;
    case WM_DESTROY:
        report (message.hwnd, "destroyed");
        owners.erase (message.hwnd);
        break;
    default:
        break;
    }
}

void Win32WindowDriver::seeCreation (HWND frame, const CREATESTRUCTW& creation)
{
    auto* const object = bench::objectAtWork();
    if (object == nullptr || ! isFrame (frame))
        return;
    owners[frame] = object;
    std::string what = "created";
    for (const auto number : { creation.x, creation.y, creation.cx, creation.cy })
        what += " " + std::to_string (number);
    report (frame, what + " " + titleOf (frame));
}

void Win32WindowDriver::report (HWND frame, const std::string& what) const
{
    if (tell)
        tell (owners.at (frame), what);
}

bool Win32WindowDriver::pump()
{
    frontTold = false;
    return pumpMessages();
}

HWND Win32WindowDriver::contentOf (void* object, std::string& complaint) const
{
    for (const auto& [frame, owner] : owners) {
        if (owner != object)
            continue;
        auto* const content = GetWindow (frame, GW_CHILD);
        if (content != nullptr && IsWindowVisible (content))
            return content;
        complaint = notOpen;
        return nullptr;
    }
    complaint = noWindow;
    return nullptr;
}

std::string Win32WindowDriver::turnPage (void* object, int page)
{
    std::string complaint;
    auto* const content = contentOf (object, complaint);
    if (content == nullptr)
        return complaint;
    if (page < 0 || page >= static_cast<int> (std::size (tabs)))
        return "it has no page " + std::to_string (page);

    bench::PointerEvent event;
    event.x = tabs[page].x;
    event.y = tabs[page].y;
    for (const auto action : { bench::PointerEvent::Action::down, bench::PointerEvent::Action::up }) {
        event.action = action;
        input.pointer (content, event);
    }
    return complaint;
}

std::string Win32WindowDriver::pointer (void* object, const bench::PointerEvent& event)
{
    std::string complaint;
    if (auto* const content = contentOf (object, complaint))
        input.pointer (content, event);
    return complaint;
}

std::string Win32WindowDriver::key (void* object, const std::string& description)
{
    std::string complaint;
    if (auto* const content = contentOf (object, complaint))
        if (! input.key (content, description))
            complaint = "there is no key " + description;
    return complaint;
}

std::string Win32WindowDriver::writePicture (void* object, const std::string& file)
{
    std::string complaint;
    if (auto* const content = contentOf (object, complaint))
        if (! writePictureOf (content, file))
            complaint = "cannot write " + file;
    return complaint;
}

}
