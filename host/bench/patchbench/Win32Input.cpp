#include "host/bench/patchbench/Win32Input.h"
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <utility>
#include <vector>

namespace patchbench
{

namespace
{
constexpr DWORD betweenMoves = 20;     // ms; a GUI may skip moves that come faster than frames
constexpr DWORD betweenClicks = 600;   // ms; presses further apart never form a double click,
constexpr int besideClicks = 20;       // nor do presses this many pixels apart
constexpr float unitsOfWheel = 512.0F; // per wheel step of 1

struct KeyRow
{
    const char* name;
    WORD code;
};

constexpr KeyRow modifierKeys[] = { { "ctrl", VK_CONTROL }, { "shift", VK_SHIFT }, { "alt", VK_MENU } };

constexpr KeyRow namedKeys[] = {
    { "spacebar", VK_SPACE },   { "return", VK_RETURN },      { "escape", VK_ESCAPE }, { "backspace", VK_BACK },
    { "cursor left", VK_LEFT }, { "cursor right", VK_RIGHT }, { "cursor up", VK_UP },  { "cursor down", VK_DOWN },
    { "page up", VK_PRIOR },    { "page down", VK_NEXT },     { "home", VK_HOME },     { "end", VK_END },
    { "delete", VK_DELETE },    { "insert", VK_INSERT },      { "tab", VK_TAB },
};

void sendKeyboard (WORD code, WORD scan, DWORD flags)
{
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = code;
    input.ki.wScan = scan; // a GUI may identify keys by scan code
    input.ki.dwFlags = flags;
    SendInput (1, &input, sizeof (input));
    pumpMessages();
}

void sendKey (WORD code, bool down)
{
    const auto scan = static_cast<WORD> (MapVirtualKeyW (code, MAPVK_VK_TO_VSC));
    sendKeyboard (code, scan, down ? 0 : KEYEVENTF_KEYUP);
}

/** Sends a character that has no key on this keyboard, as an input method does. */
void sendCharacter (WORD character)
{
    sendKeyboard (0, character, KEYEVENTF_UNICODE);
    sendKeyboard (0, character, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP);
}

void sendMouse (DWORD flags, int wheel = 0)
{
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    input.mi.mouseData = static_cast<DWORD> (wheel);
    SendInput (1, &input, sizeof (input));
    pumpMessages();
}

/** Holds modifier keys down for its lifetime. */
class HeldKeys
{
public:
    explicit HeldKeys (std::vector<WORD> keys) : held (std::move (keys))
    {
        for (const auto code : held)
            sendKey (code, true);
    }

    ~HeldKeys()
    {
        for (const auto code : held) {
            // Pressing and releasing Alt alone would open the window's menu and block in it.
            if (code == VK_MENU) {
                sendKey (VK_CONTROL, true);
                sendKey (VK_CONTROL, false);
            }
            sendKey (code, false);
        }
    }

    HeldKeys (const HeldKeys&) = delete;
    HeldKeys& operator= (const HeldKeys&) = delete;

private:
    std::vector<WORD> held;
};

std::vector<WORD> keysOf (const bench::PointerEvent& event)
{
    std::vector<WORD> keys;
    for (const auto& [isHeld, code] :
         { std::pair<bool, WORD> (event.ctrl, VK_CONTROL), std::pair<bool, WORD> (event.shift, VK_SHIFT),
           std::pair<bool, WORD> (event.alt, VK_MENU) })
        if (isHeld)
            keys.push_back (code);
    return keys;
}

/** The parts of a description between its plus signs. */
std::vector<std::string> partsOf (const std::string& description)
{
    const std::string separator = " + ";
    std::vector<std::string> parts;
    std::size_t start = 0;
    for (auto end = description.find (separator); end != std::string::npos; end = description.find (separator, start)) {
        parts.push_back (description.substr (start, end - start));
        start = end + separator.size();
    }
    parts.push_back (description.substr (start));
    return parts;
}

template <std::size_t count>
WORD codeIn (const KeyRow (&rows)[count], const std::string& name)
{
    for (const auto& row : rows)
        if (name == row.name)
            return row.code;
    return 0;
}

/** The code of the key that types this name without modifiers; 0 if there is none. */
WORD codeOf (const std::string& name)
{
    if (const auto code = codeIn (namedKeys, name))
        return code;
    const auto number = name.size() > 1 && name[0] == 'F' ? std::atoi (name.c_str() + 1) : 0;
    if (number >= 1 && number <= 24)
        return static_cast<WORD> (VK_F1 + number - 1);
    if (name.size() != 1)
        return 0;
    const auto lowered = std::tolower (static_cast<unsigned char> (name[0]));
    const auto scanned = VkKeyScanW (static_cast<WCHAR> (lowered));
    return (scanned & 0xff00) != 0 ? WORD{ 0 } : static_cast<WORD> (scanned);
}

void pumpFor (DWORD milliseconds)
{
    const auto start = GetTickCount();
    do {
        pumpMessages();
        Sleep (1);
    } while (GetTickCount() - start < milliseconds);
}

/** Returns once the window system has reported the new position too. */
void movePointer (POINT place)
{
    SetCursorPos (place.x, place.y);
    pumpFor (betweenMoves);
}

void bringIntoView (HWND window, POINT place)
{
    auto* const frame = GetAncestor (window, GA_ROOT);
    auto* const there = WindowFromPoint (place);
    DWORD process = 0;
    if (there != nullptr)
        GetWindowThreadProcessId (there, &process);
    if (process != GetCurrentProcessId()) // one of our own menus may cover it
        SetForegroundWindow (frame);
}

void giveFocus (HWND window)
{
    if (GetFocus() == window)
        return;
    SetForegroundWindow (GetAncestor (window, GA_ROOT));
    SetFocus (window);
    pumpMessages();
}
}

bool pumpMessages()
{
    bool worked = false;
    MSG message;
    while (PeekMessageW (&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage (&message);
        DispatchMessageW (&message);
        worked = true;
    }
    return worked;
}

void Win32Input::press (POINT place, DWORD flag)
{
    const bool elsewhere =
        std::abs (place.x - lastPlace.x) > besideClicks || std::abs (place.y - lastPlace.y) > besideClicks;
    while (! elsewhere && GetTickCount() - lastPress < betweenClicks)
        pumpFor (10);
    sendMouse (flag);
    lastPress = GetTickCount();
    lastPlace = place;
}

void Win32Input::click (DWORD downFlag, DWORD upFlag)
{
    sendMouse (downFlag);
    lastPress = GetTickCount();
    sendMouse (upFlag);
}

void Win32Input::pointer (HWND window, const bench::PointerEvent& event)
{
    using Action = bench::PointerEvent::Action;
    POINT place{ static_cast<int> (std::lround (event.x)), static_cast<int> (std::lround (event.y)) };
    ClientToScreen (window, &place);
    // When the pointer enters a window, it queries the real key state: press our keys after that.
    if (release == 0) {
        bringIntoView (window, place);
        movePointer (place);
    }
    const HeldKeys keys (keysOf (event));
    if (release != 0)
        movePointer (place);

    const DWORD downFlag = event.right ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_LEFTDOWN;
    const DWORD upFlag = event.right ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_LEFTUP;
    switch (event.action) {
    case Action::down:
        press (place, downFlag);
        release = upFlag;
        break;
    case Action::up:
        if (release != 0)
            sendMouse (std::exchange (release, 0));
        break;
    case Action::doubleClick:
        press (place, downFlag);
        sendMouse (upFlag);
        click (downFlag, upFlag);
        break;
    case Action::wheel:
        giveFocus (window);
        sendMouse (MOUSEEVENTF_WHEEL, static_cast<int> (std::lround (event.wheelDelta * unitsOfWheel)));
        break;
    case Action::move:
    case Action::drag:
        break;
    }
}

bool Win32Input::key (HWND window, const std::string& description)
{
    auto parts = partsOf (description);
    const auto name = parts.back();
    const auto code = codeOf (name);
    parts.pop_back();
    std::vector<WORD> modifiers;
    modifiers.reserve (parts.size());
    for (const auto& part : parts)
        modifiers.push_back (codeIn (modifierKeys, part));
    for (const auto modifier : modifiers)
        if (modifier == 0)
            return false;
    if (code == 0 && name.size() != 1)
        return false;

    giveFocus (window);
    const HeldKeys keys (modifiers);
    if (code == 0) {
        sendCharacter (static_cast<unsigned char> (name[0]));
    } else {
        sendKey (code, true);
        sendKey (code, false);
    }
    return true;
}

}
