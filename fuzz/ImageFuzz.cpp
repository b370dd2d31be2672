#include "ControlFuzz.h"

#include "gui/plane/surface/ImageReader.h"

#include <fstream>

namespace
{

/** Overwrites width and height in a PNG header with a size that decodes quickly. */
std::string withSmallSize (std::string bytes)
{
    constexpr std::size_t width = 16, height = 20;
    if (bytes.size() > height + 4 && bytes.compare (1, 3, "PNG") == 0)
        for (const auto field : { width, height })
            bytes.replace (field, 2, 2, '\0');
    return bytes;
}

}

/** Reads arbitrary bytes as a picture file: accepted as a whole or rejected, with every pixel accessible. */
extern "C" int LLVMFuzzerTestOneInput (const std::uint8_t* data, std::size_t size)
{
    const ScratchFolder folder;
    const auto path = std::filesystem::current_path() / "picture";
    const auto bytes = withSmallSize ({ reinterpret_cast<const char*> (data), size });
    std::ofstream (path, std::ios::binary) << bytes;
    const auto image = lumo::Plane::ReadImage (juce::File (path.string()));
    if (image.isNull())
        return 0;
    const juce::Image::BitmapData pixels (image, juce::Image::BitmapData::readOnly);
    unsigned sum = 0;
    for (int y = 0; y < pixels.height; ++y)
        for (int x = 0; x < pixels.width; ++x)
            sum += pixels.getPixelColour (x, y).getARGB();
    volatile const auto seen = sum; // keeps the reads
    juce::ignoreUnused (seen);
    return 0;
}
