#include "host/bench/patchbench/Windows.h"

#include <windows.h>

namespace
{

/** Serves the messages of this thread, which are the external's as well: it brings a GUI of its own. What its windows
    do is not watched, and nobody works them. */
class MessagePump : public bench::WindowDriver
{
public:
    void setSink (Sink) override {}

    bool pump() override
    {
        bool any = false;
        for (MSG message; PeekMessageW (&message, nullptr, 0, 0, PM_REMOVE) != 0; any = true) {
            TranslateMessage (&message);
            DispatchMessageW (&message);
        }
        return any;
    }

    std::string turnPage (void*, int) override { return outOfReach(); }
    std::string pointer (void*, const bench::PointerEvent&) override { return outOfReach(); }
    std::string key (void*, const std::string&) override { return outOfReach(); }
    std::string writePicture (void*, const std::string&) override { return outOfReach(); }

private:
    static std::string outOfReach() { return "the windows of an external are out of reach on this platform"; }
};

}

std::unique_ptr<bench::WindowDriver> makeWindows (patchbench::WindowPlace) { return std::make_unique<MessagePump>(); }
