#include "host/bench/patchbench/Display.h"
#include "host/bench/patchbench/Windows.h"
#include "host/bench/window/JuceWindowDriver.h"

namespace patchbench
{

std::unique_ptr<bench::WindowDriver> makeWindows (patchbench::WindowPlace place)
{
    using patchbench::WindowPlace;
    const bool onDisplay = place == WindowPlace::native || (place == WindowPlace::automatic && canOpenDisplay());
    return std::make_unique<bench::JuceWindowDriver> (onDisplay ? bench::JuceWindowDriver::Place::display
                                                                : bench::JuceWindowDriver::Place::memory);
}

}
