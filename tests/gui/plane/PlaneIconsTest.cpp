#include "gui/plane/icons/Icons.h"

#include <gmock/gmock.h>

using namespace lumo::Plane;

namespace
{

juce::Image Render (const juce::XmlElement& document, int size)
{
    juce::Image image (juce::Image::ARGB, size, size, true, juce::SoftwareImageType());
    juce::Graphics g (image);
    MakeDrawable (document)->drawWithin (g, image.getBounds().toFloat(), juce::RectanglePlacement::centred, 1.0f);
    return image;
}

/** The covered fraction of a picture, 0 to 1. */
double Coverage (const juce::Image& image)
{
    double sum = 0;
    for (int y = 0; y < image.getHeight(); ++y)
        for (int x = 0; x < image.getWidth(); ++x)
            sum += image.getPixelAt (x, y).getAlpha() / 255.0;
    return sum / (image.getWidth() * image.getHeight());
}

std::vector<std::pair<std::string, juce::XmlElement>> AllIcons()
{
    std::vector<std::pair<std::string, juce::XmlElement>> icons;
    icons.emplace_back ("source", SourceIcon (juce::Colours::lime, true));
    icons.emplace_back ("fixed source", SourceIcon (juce::Colours::lime, false));
    icons.emplace_back ("speaker", SpeakerIcon (juce::Colours::black));
    for (int kind = 0; kind < 4; ++kind)
        icons.emplace_back ("head " + std::to_string (kind), HeadIcon (static_cast<HeadKind> (kind)));
    return icons;
}

}

TEST (PlaneIconDocuments, AreWellFormedWithSixDigitColours)
{
    for (const auto& [name, document] : AllIcons()) {
        const auto text = SvgText (document);
        const auto parsed = juce::parseXML (text);
        ASSERT_NE (parsed, nullptr) << name;
        EXPECT_TRUE (parsed->isEquivalentTo (&document, false)) << name;
        EXPECT_FALSE (text.matchesWildcard ("*#????????\"*", true) && text.contains ("#ff00ff00")) << name;
    }
}

TEST (PlaneIconDocuments, LookTheSameAtEverySize)
{
    for (const auto& [name, document] : AllIcons()) {
        const double large = Coverage (Render (document, 512));
        EXPECT_GT (large, 0.2) << name;
        for (const int size : { 16, 35, 100 })
            EXPECT_NEAR (Coverage (Render (document, size)), large, 0.03) << name << " at " << size;
    }
}

TEST (PlaneIconDocuments, ShowTheirColours)
{
    for (const auto colour : { juce::Colours::red, juce::Colours::blue, juce::Colour (0xFF7DFF00) }) {
        const auto shown = Render (SourceIcon (colour, true), 200).getPixelAt (110, 110);
        EXPECT_NEAR (shown.getHue(), colour.getHue(), 0.03f);
        EXPECT_EQ (Render (SpeakerIcon (colour), 200).getPixelAt (46, 180).withAlpha (1.0f), colour);
    }
    EXPECT_EQ (Render (SourceIcon (juce::Colours::red, true), 70).getPixelAt (35, 35).getAlpha(), 255);
    EXPECT_LT (Render (SourceIcon (juce::Colours::red, false), 70).getPixelAt (35, 35).getAlpha(), 120) << "faded";
    EXPECT_NEAR (Render (SourceIcon (juce::Colours::red.withAlpha (0.5f), true), 70).getPixelAt (35, 35).getAlpha(),
                 128, 2);
}

/** A stock renderer shows the same shapes. */
TEST (PlaneIconDocuments, AgreeWithAStockRenderer)
{
    for (const auto& [name, document] : AllIcons()) {
        const auto svg = juce::File::createTempFile ("svg"), png = svg.withFileExtension ("png");
        ASSERT_TRUE (svg.replaceWithText (SvgText (document)));
        juce::ChildProcess convert;
        ASSERT_TRUE (
            convert.start ("rsvg-convert -w 100 -h 100 -o " + png.getFullPathName() + " " + svg.getFullPathName()));
        ASSERT_TRUE (convert.waitForProcessToFinish (10000));
        const auto theirs = juce::ImageFileFormat::loadFrom (png);
        const auto ours = Render (document, 100);
        svg.deleteFile();
        png.deleteFile();
        ASSERT_TRUE (theirs.isValid()) << name;
        int different = 0;
        for (int y = 0; y < 100; ++y)
            for (int x = 0; x < 100; ++x) {
                const auto a = ours.getPixelAt (x, y), b = theirs.getPixelAt (x, y);
                different +=
                    std::abs (a.getAlpha() - b.getAlpha()) > 80 ||
                    std::abs (a.getBrightness() * a.getFloatAlpha() - b.getBrightness() * b.getFloatAlpha()) > 0.3f;
            }
        EXPECT_LT (different, 200) << name << ": " << different << " of 10000 pixels differ";
    }
}
