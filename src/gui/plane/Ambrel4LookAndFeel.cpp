#include "gui/plane/Ambrel4LookAndFeel.h"

namespace Ambrel4
{

namespace
{

struct ColourRow
{
    int id;
    juce::uint32 colour;
};

constexpr ColourRow colours[] = {
    { juce::TooltipWindow::backgroundColourId, 0xFFBDBDBD }, { juce::TextButton::buttonColourId, 0xFF909090 },
    { juce::TextButton::buttonOnColourId, 0xFFBDBDBD },      { juce::TextEditor::focusedOutlineColourId, 0xFF545454 },
    { juce::ComboBox::backgroundColourId, 0xFFDBDBDB },      { juce::ComboBox::buttonColourId, 0xFFAAAAAA },
    { juce::ComboBox::arrowColourId, 0xFF545454 },           { juce::ComboBox::outlineColourId, 0xFF000000 },
};

const juce::Colour disabledColour{ 0x80808080 };

bool isHot (juce::Slider& slider) { return slider.isEnabled() && slider.isMouseOverOrDragging(); }

/** One corner of a rounded path: an arc within the corner's square, or a sharp corner. */
void addCorner (juce::Path& path, juce::Point<float> corner, juce::Point<float> inward, float size, bool round,
                float startAngle)
{
    if (! round || size <= 0) // an empty arc would add no point
        return path.lineTo (corner);
    const auto centre = corner + inward * size;
    path.addCentredArc (centre.x, centre.y, size, size, 0, startAngle, startAngle + juce::MathConstants<float>::halfPi);
}

/** A ring segment with a needle at the current angle, for large sliders. */
void drawLargeRotary (juce::Graphics& g, juce::Point<float> centre, float radius, float startAngle, float endAngle,
                      float angle, juce::Slider& slider)
{
    constexpr float innerProportion = 0.7f;
    const bool enabled = slider.isEnabled();
    const auto ring = juce::Rectangle<float> (2 * radius, 2 * radius).withCentre (centre);

    g.setColour (
        enabled ? slider.findColour (juce::Slider::rotarySliderFillColourId).withAlpha (isHot (slider) ? 1.0f : 0.6f)
                : disabledColour);
    juce::Path filled;
    filled.addPieSegment (ring, startAngle, angle, innerProportion);
    g.fillPath (filled);

    juce::Path needle;
    needle.startNewSubPath (0, 0);
    needle.lineTo (0, -radius);
    needle.closeSubPath();
    g.strokePath (needle, juce::PathStrokeType (enabled ? 2.2f : 1.3f),
                  juce::AffineTransform::rotation (angle).translated (centre));

    g.setColour (enabled ? slider.findColour (juce::Slider::rotarySliderOutlineColourId) : disabledColour);
    juce::Path outline;
    outline.addPieSegment (ring, startAngle, endAngle, innerProportion);
    g.strokePath (outline, juce::PathStrokeType (enabled ? 1.2f : 0.3f));
}

/** A ring with a thick needle, for small sliders. */
void drawSmallRotary (juce::Graphics& g, juce::Point<float> centre, float radius, float angle, juce::Slider& slider)
{
    const float w = 2 * radius;
    g.setColour (
        slider.isEnabled()
            ? slider.findColour (juce::Slider::rotarySliderFillColourId).withAlpha (isHot (slider) ? 1.0f : 0.7f)
            : disabledColour);
    juce::Path ellipse, ring;
    ellipse.addEllipse (-0.4f * w, -0.4f * w, 0.8f * w, 0.8f * w);
    juce::PathStrokeType (0.1f * w).createStrokedPath (ring, ellipse);
    ring.addLineSegment ({ 0, 0, 0, -radius }, 0.2f * w);
    g.fillPath (ring, juce::AffineTransform::rotation (angle).translated (centre));
}

}

void setColours (juce::LookAndFeel& look)
{
    for (const auto& row : colours)
        look.setColour (row.id, juce::Colour (row.colour));
}

juce::Label* createSliderTextBox (juce::Slider& slider)
{
    const bool isBar = slider.getSliderStyle() == juce::Slider::LinearBar;
    const auto text = slider.findColour (juce::Slider::textBoxTextColourId);
    const auto background = slider.findColour (juce::Slider::textBoxBackgroundColourId);
    const auto outline = slider.findColour (juce::Slider::textBoxOutlineColourId);

    auto label = std::make_unique<juce::Label>();
    label->setFont (juce::Font (textHeight));
    label->setJustificationType (juce::Justification::centred);
    label->setColour (juce::Label::textColourId, text);
    label->setColour (juce::Label::backgroundColourId, isBar ? juce::Colours::transparentBlack : background);
    label->setColour (juce::Label::outlineColourId, outline);
    label->setColour (juce::TextEditor::textColourId, text);
    label->setColour (juce::TextEditor::backgroundColourId, background.withAlpha (isBar ? 0.7f : 1.0f));
    label->setColour (juce::TextEditor::outlineColourId, outline);
    return label.release();
}

juce::Path roundedPath (juce::Rectangle<float> area, float cornerSize, Corners round)
{
    constexpr float quarter = juce::MathConstants<float>::halfPi;
    const float size = juce::jlimit (0.0f, 0.5f * juce::jmin (area.getWidth(), area.getHeight()), cornerSize);
    juce::Path path;
    path.startNewSubPath (area.getX(), area.getY() + (round.topLeft ? size : 0.0f));
    addCorner (path, area.getTopLeft(), { 1, 1 }, size, round.topLeft, 3 * quarter);
    addCorner (path, area.getTopRight(), { -1, 1 }, size, round.topRight, 0);
    addCorner (path, area.getBottomRight(), { -1, -1 }, size, round.bottomRight, quarter);
    addCorner (path, area.getBottomLeft(), { 1, -1 }, size, round.bottomLeft, 2 * quarter);
    path.closeSubPath();
    return path;
}

void drawShadedShape (juce::Graphics& g, const juce::Path& shape, juce::Colour base, float strength)
{
    const auto bounds = shape.getBounds();
    if (bounds.isEmpty())
        return;
    juce::ColourGradient shading = juce::ColourGradient::vertical (base.brighter (0.35f * strength), bounds.getY(),
                                                                   base.darker (0.25f * strength), bounds.getBottom());
    shading.addColour (0.5, base);
    g.setGradientFill (shading);
    g.fillPath (shape);
    g.setColour (juce::Colours::black.withAlpha (0.6f * strength * base.getFloatAlpha()));
    g.strokePath (shape, juce::PathStrokeType (1.0f));
}

void drawBarSlider (juce::Graphics& g, juce::Rectangle<float> area, float position, bool vertical, juce::Slider& slider)
{
    const bool enabled = slider.isEnabled();
    auto base = slider.findColour (juce::Slider::thumbColourId).withMultipliedSaturation (enabled ? 1.0f : 0.5f);
    if (isHot (slider))
        base = base.brighter (slider.isMouseButtonDown() ? 0.2f : 0.1f);
    g.setColour (juce::Colours::black.withAlpha (0.25f)); // so that an empty bar is visible too
    g.drawRect (area, 1);
    const auto bar = vertical ? area.withTop (position) : area.withRight (position);
    if (! bar.isEmpty())
        drawShadedShape (g, roundedPath (bar.reduced (0.5f), 0), base, enabled ? 0.9f : 0.3f);
}

void drawRotarySlider (juce::Graphics& g, juce::Rectangle<int> area, float proportion, float startAngle, float endAngle,
                       juce::Slider& slider)
{
    const auto bounds = area.toFloat();
    const float radius = juce::jmin (0.5f * bounds.getWidth(), 0.5f * bounds.getHeight()) - 2.0f;
    if (radius <= 0)
        return;
    const float angle = startAngle + proportion * (endAngle - startAngle);
    if (radius > 12.0f)
        drawLargeRotary (g, bounds.getCentre(), radius, startAngle, endAngle, angle, slider);
    else
        drawSmallRotary (g, bounds.getCentre(), radius, angle, slider);
}

void drawThumb (juce::Graphics& g, juce::Point<float> centre, float radius, juce::Slider& slider)
{
    auto base = slider.findColour (juce::Slider::thumbColourId).withMultipliedAlpha (slider.isEnabled() ? 1.0f : 0.5f);
    if (isHot (slider))
        base = base.brighter (slider.isMouseButtonDown() ? 0.3f : 0.15f);
    const auto area = juce::Rectangle<float> (2 * radius, 2 * radius).withCentre (centre);
    drawShadedShape (g, roundedPath (area, radius), base, slider.isEnabled() ? 0.9f : 0.3f);
}

juce::Component* menuParent (const juce::PopupMenu::Options& options)
{
    const auto* const target = options.getTargetComponent();
    auto* const top = target != nullptr ? target->getTopLevelComponent() : nullptr;
    const auto* const peer = top != nullptr ? top->getPeer() : nullptr;
    return peer != nullptr && peer->getNativeHandle() == nullptr ? top : options.getParentComponent();
}

}
