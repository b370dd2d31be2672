#pragma once
#include <juce_gui_basics/juce_gui_basics.h>

#include <cstdint>
#include <memory>

/** The objects' icons as SVG documents: sharp at any size. Each has an invisible square frame that fixes its position
    in the target square. */
namespace lumo::Plane
{

/** A ball of this colour; pale if the source is not editable. */
[[nodiscard]] juce::XmlElement SourceIcon (juce::Colour colour, bool editable);
/** A box of this colour with its cones. */
[[nodiscard]] juce::XmlElement SpeakerIcon (juce::Colour colour);

enum class HeadKind
{
    front,
    frontWithHeadphones,
    top,
    topWithHeadphones
};

/** The listener's head; seen from above it faces up. */
[[nodiscard]] juce::XmlElement HeadIcon (HeadKind kind);

/** What an icon's appearance depends on: equal ones look alike. */
struct Icon
{
    enum class Kind : std::uint8_t
    {
        source,
        fixedSource, // not editable
        speaker,
        head
    };

    Kind kind = Kind::source;
    juce::Colour colour;               // of a source or a speaker
    HeadKind headKind = HeadKind::top; // of a head

    /** Unique per appearance. */
    [[nodiscard]] std::uint64_t Key() const noexcept;
};

[[nodiscard]] juce::XmlElement DocumentOf (const Icon& icon);

/** Parses the document's text, like any SVG reader. Never null. */
[[nodiscard]] std::unique_ptr<juce::Drawable> MakeDrawable (const juce::XmlElement& document);
/** The document's text. */
[[nodiscard]] juce::String SvgText (const juce::XmlElement& document);

}
