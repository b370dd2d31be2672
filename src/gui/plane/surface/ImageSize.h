#pragma once
#include <juce_core/juce_core.h>

#include <cstdint>
#include <optional>

namespace lumo::Plane
{

struct ImageSize
{
    std::int64_t width = 0, height = 0;
};

/** The size that a PNG or JPEG file declares in its header, read without decoding it: a few bytes may ask for
    gigabytes. Nothing for any other file. The stream is left anywhere. */
std::optional<ImageSize> DeclaredImageSize (juce::InputStream& stream);

}
