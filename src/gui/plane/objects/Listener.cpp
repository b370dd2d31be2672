#include "gui/plane/objects/Listener.h"

#include "gui/plane/icons/Icons.h"

namespace lumo::Plane
{

Listener::Listener()
{
    for (std::size_t kind = 0; kind < icons.size(); ++kind)
        icons[kind] = MakeDrawable (HeadIcon (static_cast<HeadKind> (kind)));
}

const juce::Drawable& Listener::Icon (bool topView) const noexcept
{
    return *icons[(topView ? 2u : 0u) + (headphonesVisible ? 1u : 0u)];
}

}
