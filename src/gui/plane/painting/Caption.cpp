#include "gui/plane/painting/Caption.h"

#include "gui/plane/LumoComponent.h"

namespace lumo::Plane
{

void Caption::Set (juce::String newText)
{
    text = std::move (newText);
    layout = nullptr;
}

const Caption::Layout& Caption::LaidOut (const Style& style) const
{
    if (layout != nullptr && layout->style == style)
        return *layout;
    auto made = std::make_unique<Layout>();
    made->style = style;
    made->font = style.bold ? juce::Font (style.height, juce::Font::bold) : lumo::Component::MakeFont (style.height);
    const float half = style.width * 0.5f;
    auto& glyphs = made->glyphs;
    glyphs.addCurtailedLineOfText (made->font, text, 0, 0, style.width, true);
    glyphs.justifyGlyphs (0, glyphs.getNumGlyphs(), -half, -half, style.width, style.width,
                          juce::Justification::centred);
    if (glyphs.getNumGlyphs() > 0)
        made->extent = glyphs.getBoundingBox (0, -1, true).expanded (style.height * 0.5f);
    layout = std::move (made);
    return *layout;
}

juce::Rectangle<float> Caption::Extent (juce::Point<float> centre, const Style& style) const
{
    return LaidOut (style).extent + centre;
}

void Caption::Draw (juce::Graphics& g, juce::Point<float> centre, const Style& style) const
{
    const auto& line = LaidOut (style);
    g.setFont (line.font);
    line.glyphs.draw (g, juce::AffineTransform::translation (centre));
}

}
