#include "gui/plane/surface/BackgroundImage.h"

#include "gui/plane/surface/ImageSize.h"

namespace lumo::Plane
{

namespace
{

constexpr const char* qualities[] = { "low", "medium", "high" };
constexpr std::int64_t mostPixels = 64 * 1024 * 1024; // 256 MB decoded

juce::Image LoadWithinReason (const juce::File& path)
{
    juce::FileInputStream file (path);
    if (! file.openedOk())
        return {};
    juce::BufferedInputStream stream (file, 8192);
    const auto size = DeclaredImageSize (stream);
    if (! size || size->width < 1 || size->height < 1 || size->width * size->height > mostPixels)
        return {};
    stream.setPosition (0);
    return juce::ImageFileFormat::loadFrom (stream);
}

}

int BackgroundImage::QualityNamed (const qel::String& name)
{
    return name == qualities[0] ? 0 : name == qualities[2] ? 2 : 1;
}

qel::String BackgroundImage::NameOf (int quality) { return qualities[juce::jlimit (0, 2, quality)]; }

void BackgroundImage::Load (const juce::File& path)
{
    file = path.getFullPathName();
    image = LoadWithinReason (path);
    imageWidth = image.getWidth();
    imageHeight = image.getHeight();
    SetScale (scale);
}

void BackgroundImage::SetScale (float fraction)
{
    constexpr float most = 1.0e9f;
    scale = fraction;
    scaledWidth = static_cast<int> (juce::jlimit (-most, most, static_cast<float> (imageWidth) * scale));
    scaledHeight = static_cast<int> (juce::jlimit (-most, most, static_cast<float> (imageHeight) * scale));
}

}
