#include "gui/plane/view/StaticCache.h"

namespace lumo::Plane
{

void StaticCache::Resize (int newWidth, int newHeight)
{
    width = newWidth;
    height = newHeight;
    image = {};
    dirty = true;
}

void StaticCache::Prepare (bool opaque)
{
    const auto format = opaque ? juce::Image::RGB : juce::Image::ARGB;
    if (image.isNull() || image.getFormat() != format)
        image = juce::Image (format, width, height, true, juce::SoftwareImageType());
    else if (! opaque)
        image.clear (image.getBounds());
}

}
