#include "gui/plane/icons/Icons.h"

#include "gui/plane/icons/Svg.h"

namespace lumo::Plane
{

namespace
{

constexpr juce::uint32 black = 0xFF000000, darkGrey = 0xFF4F4F4F, metal = 0xFFB2B2B2, grey = 0xFFB8B8B8;

struct Cone
{
    float y, radius;
};

void AddCone (Svg& svg, Cone cone)
{
    const juce::Point<float> centre (50, cone.y);
    const auto rim = svg.AddGradient (
        centre, cone.radius,
        { { 0.78f, juce::Colour (darkGrey) }, { 0.9f, juce::Colour (grey) }, { 1.0f, juce::Colour (darkGrey) } });
    const auto membrane = svg.AddGradient (centre, cone.radius * 0.8f,
                                           { { 0.0f, juce::Colour (darkGrey) }, { 1.0f, juce::Colour (black) } });
    svg.AddCircle (centre, cone.radius, rim);
    svg.AddCircle (centre, cone.radius * 0.8f, membrane);
}

/** The ear cushions and the headband, above the head. */
void AddHeadphonesFromAbove (Svg& svg)
{
    const Svg::Outline band{ juce::Colour (0xFF202020), 5 }, cushion{ juce::Colour (0xFF303030), 11 };
    svg.AddLine ({ 22, 50 }, { 78, 50 }, band);
    svg.AddLine ({ 15, 40 }, { 15, 60 }, cushion);
    svg.AddLine ({ 85, 40 }, { 85, 60 }, cushion);
}

void AddHeadphonesFromTheFront (Svg& svg)
{
    const Svg::Outline band{ juce::Colour (0xFF202020), 5 };
    svg.AddPath ("M 16 50 A 34 36 0 0 1 84 50", "none", 1, band);
    svg.AddPath ("M 10 43 h 9 a 3 3 0 0 1 3 3 v 18 a 3 3 0 0 1 -3 3 h -9 z", "#303030");
    svg.AddPath ("M 90 43 h -9 a 3 3 0 0 0 -3 3 v 18 a 3 3 0 0 0 3 3 h 9 z", "#303030");
}

}

juce::XmlElement SourceIcon (juce::Colour colour, bool editable)
{
    Svg svg (70);
    const auto fill = svg.AddGradient (
        { 28, 26 }, 44,
        { { 0.0f, colour.interpolatedWith (juce::Colours::white.withAlpha (colour.getAlpha()), 0.65f) },
          { 0.35f, colour },
          { 1.0f, colour.darker (0.7f) } });
    const float opacity = editable ? 1.0f : 0.35f;
    const auto rim = juce::Colours::black.withAlpha (colour.getFloatAlpha() * opacity * 0.7f);
    svg.AddCircle ({ 35, 35 }, 32, fill, opacity, { rim, 2 });
    return svg.Take();
}

juce::XmlElement SpeakerIcon (juce::Colour colour)
{
    Svg svg (100);
    svg.AddPath ("M 26 4 H 74 A 6 6 0 0 1 80 10 V 90 A 6 6 0 0 1 74 96 H 26 A 6 6 0 0 1 20 90 V 10 A 6 6 0 0 1 26 4 Z",
                 Svg::Hex (colour), colour.getFloatAlpha(), { juce::Colour (0xFF2A2A2A), 2 });
    AddCone (svg, { 25, 13 });
    AddCone (svg, { 66, 24 });
    const auto cap =
        svg.AddGradient ({ 48, 63 }, 9, { { 0.0f, juce::Colour (metal) }, { 1.0f, juce::Colour (darkGrey) } });
    svg.AddCircle ({ 50, 66 }, 8, cap);
    return svg.Take();
}

juce::XmlElement HeadIcon (HeadKind kind)
{
    const bool fromAbove = kind == HeadKind::top || kind == HeadKind::topWithHeadphones;
    const Svg::Outline skin{ juce::Colours::black, 2 };
    Svg svg (100);
    const auto fill =
        svg.AddGradient ({ 50, 45 }, 62, { { 0.0f, juce::Colours::white }, { 1.0f, juce::Colours::black } });
    svg.AddCircle ({ 18, 52 }, 8, fill, 1, skin);
    svg.AddCircle ({ 82, 52 }, 8, fill, 1, skin);
    if (fromAbove)
        svg.AddPath ("M 41 22 L 50 6 L 59 22 Z", fill, 1, skin);
    svg.AddCircle ({ 50, 52 }, 33, fill, 1, skin);
    if (! fromAbove) {
        svg.AddCircle ({ 38, 46 }, 4, "#000000");
        svg.AddCircle ({ 62, 46 }, 4, "#000000");
        svg.AddPath ("M 50 50 L 45 62 H 54", "none", 1, skin);
        svg.AddLine ({ 40, 72 }, { 60, 72 }, skin);
    }
    if (kind == HeadKind::frontWithHeadphones)
        AddHeadphonesFromTheFront (svg);
    if (kind == HeadKind::topWithHeadphones)
        AddHeadphonesFromAbove (svg);
    return svg.Take();
}

std::uint64_t Icon::Key() const noexcept
{
    const std::uint64_t look = kind == Kind::head ? static_cast<std::uint32_t> (headKind) : colour.getARGB();
    return static_cast<std::uint64_t> (kind) << 32 | look;
}

juce::XmlElement DocumentOf (const Icon& icon)
{
    switch (icon.kind) {
    case Icon::Kind::source:
    case Icon::Kind::fixedSource:
        return SourceIcon (icon.colour, icon.kind == Icon::Kind::source);
    case Icon::Kind::speaker:
        return SpeakerIcon (icon.colour);
    case Icon::Kind::head:
        break;
    }
    return HeadIcon (icon.headKind);
}

juce::String SvgText (const juce::XmlElement& document)
{
    juce::XmlElement::TextFormat format;
    format.customEncoding = "UTF-8";
    format.lineWrapLength = 200;
    return document.toString (format);
}

std::unique_ptr<juce::Drawable> MakeDrawable (const juce::XmlElement& document)
{
    if (const auto parsed = juce::parseXML (SvgText (document)))
        if (auto drawable = juce::Drawable::createFromSVG (*parsed))
            return drawable;
    return std::make_unique<juce::DrawableComposite>();
}

}
