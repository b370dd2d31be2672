#include "max/window/NativeWindow.h"

namespace orvanemax
{

namespace
{

NativeWindowFactory& installedFactory()
{
    static NativeWindowFactory factory;
    return factory;
}

}

std::unique_ptr<NativeWindow> makeNativeWindow (const void* owner, juce::Component* component)
{
    const auto& factory = installedFactory();
    return factory ? factory (owner, component) : makePlatformWindow();
}

void setNativeWindowFactory (NativeWindowFactory factory) { installedFactory() = std::move (factory); }

}
