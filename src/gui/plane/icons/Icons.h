#pragma once
#include <juce_gui_basics/juce_gui_basics.h>

#include <cstdint>
#include <memory>

/** The pictures of the objects, as SVG documents: crisp at any size. Each has an invisible square field, so that it
    keeps its place in the square that it is drawn into. */
namespace lumo::Plane
{

/** A ball of that colour; faded if the source cannot be edited. */
[[nodiscard]] juce::XmlElement SourceIcon (juce::Colour colour, bool editable);
/** A box of that colour with its cones. */
[[nodiscard]] juce::XmlElement SpeakerIcon (juce::Colour colour);

enum class HeadKind
{
    front,
    frontWithHeadphones,
    top,
    topWithHeadphones
};

/** The listener's head; from above it looks up. */
[[nodiscard]] juce::XmlElement HeadIcon (HeadKind kind);

/** What a picture depends on: objects with equal ones look alike. */
struct Icon
{
    enum class Kind : std::uint8_t
    {
        source,
        fixedSource, // one that cannot be edited
        speaker,
        head
    };

    Kind kind = Kind::source;
    juce::Colour colour;               // of a source or a speaker
    HeadKind headKind = HeadKind::top; // of a head

    /** A number of its own for each picture. */
    [[nodiscard]] std::uint64_t Key() const noexcept;
};

[[nodiscard]] juce::XmlElement DocumentOf (const Icon& icon);

/** By way of the document's text, as any SVG reader would see it. Never null. */
[[nodiscard]] std::unique_ptr<juce::Drawable> MakeDrawable (const juce::XmlElement& document);
/** The document's text. */
[[nodiscard]] juce::String SvgText (const juce::XmlElement& document);

}
