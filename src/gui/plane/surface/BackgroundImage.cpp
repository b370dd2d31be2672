#include "gui/plane/surface/BackgroundImage.h"

#include "gui/plane/surface/ImageReader.h"

namespace lumo::Plane
{

namespace
{

constexpr const char* qualities[] = { "low", "medium", "high" };

}

int BackgroundImage::QualityNamed (const qel::String& name)
{
    return name == qualities[0] ? 0 : name == qualities[2] ? 2 : 1;
}

qel::String BackgroundImage::NameOf (int quality) { return qualities[juce::jlimit (0, 2, quality)]; }

void BackgroundImage::Load (const juce::File& path)
{
    file = path.getFullPathName();
    image = ReadImage (path);
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
