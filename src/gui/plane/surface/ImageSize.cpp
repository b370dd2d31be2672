#include "gui/plane/surface/ImageSize.h"

namespace lumo::Plane
{

namespace
{

int Word (juce::InputStream& stream) { return static_cast<std::uint16_t> (stream.readShortBigEndian()); }

std::optional<ImageSize> PngSize (juce::InputStream& stream)
{
    stream.setPosition (16); // the signature, then length and name of the header chunk
    const auto width = static_cast<std::uint32_t> (stream.readIntBigEndian());
    const auto height = static_cast<std::uint32_t> (stream.readIntBigEndian());
    return ImageSize{ width, height };
}

bool IsFrameHeader (int marker)
{
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

bool HasNoLength (int marker) { return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8); }

/** The next marker behind any bytes that are none; -1 at the end. */
int NextMarker (juce::InputStream& stream)
{
    while (! stream.isExhausted())
        if (static_cast<std::uint8_t> (stream.readByte()) == 0xFF) {
            int marker = 0xFF;
            while (marker == 0xFF && ! stream.isExhausted())
                marker = static_cast<std::uint8_t> (stream.readByte());
            if (marker != 0)
                return marker;
        }
    return -1;
}

std::optional<ImageSize> JpegSize (juce::InputStream& stream)
{
    stream.setPosition (2);
    for (int marker = NextMarker (stream); marker >= 0; marker = NextMarker (stream)) {
        if (HasNoLength (marker))
            continue;
        const int length = Word (stream);
        if (IsFrameHeader (marker)) {
            stream.readByte(); // bits of a sample
            const int height = Word (stream);
            return ImageSize{ Word (stream), height };
        }
        if (length < 2)
            return {};
        stream.skipNextBytes (length - 2);
    }
    return {};
}

}

std::optional<ImageSize> DeclaredImageSize (juce::InputStream& stream)
{
    stream.setPosition (0);
    const int start = Word (stream);
    if (start == 0x8950)
        return PngSize (stream);
    if (start == 0xFFD8)
        return JpegSize (stream);
    return {};
}

}
