#pragma once
#include "external/HalcyraControl.h"
#include "max/Atoms.h"
#include "max/AttributeRow.h"
#include "max/Rows.h"

#include <string_view>

/** What a patch can change in the scene. A row of SceneProperties.cpp is all that messages, attributes, updates and
    mirrors know of a property.

    To add a property of a source: a field of the record for its attribute, a row in SceneProperties.cpp, a place in the
    order of ViewerAttributes.cpp, and its drawing. */
namespace halcyra::scene
{

/** Brings the mirrors and the plane to values that fit the row's pattern. Indices count from 0. Main thread, in a call
    of the host. */
using Effect = void (*) (t_halcyra_control* x, lumo::PlaneComponent& plane, std::size_t index, orvanemax::Atoms values,
                         bool notify);

/** Stores a wish at once, so that the next relative move starts from it, queued or not. */
using Wish = void (*) (t_halcyra_control* x, std::size_t index, orvanemax::Atoms values);

/** Built from what every property has, and what one needs beside. */
struct Property
{
    const char* key;    // its word in messages, behind the index; null for what no word names
    const char* values; // as letters of Atoms::fit(); null for as many numbers as there are
    Effect effect;
    Wish wish = nullptr;
    bool isSaved = false;                            // with the patcher
    bool isQueued = true;                            // by the rule of all updates, or else made at once
    bool (*isGood) (const t_symbol* word) = nullptr; // a test of the value beyond its letter
    orvanemax::AttributeRow attribute{}; // without a name if there is none; a list has a value for each source

    [[nodiscard]] constexpr Property saved() const
    {
        auto row = *this;
        row.isSaved = true;
        return row;
    }
    [[nodiscard]] constexpr Property direct() const
    {
        auto row = *this;
        row.isQueued = false;
        return row;
    }
    [[nodiscard]] constexpr Property stored (Wish atOnce) const
    {
        auto row = *this;
        row.wish = atOnce;
        return row;
    }
    [[nodiscard]] constexpr Property tested (bool (*test) (const t_symbol*)) const
    {
        auto row = *this;
        row.isGood = test;
        return row;
    }
    [[nodiscard]] constexpr Property with (const orvanemax::AttributeRow& declaration) const
    {
        auto row = *this;
        row.attribute = declaration;
        return row;
    }
};

using Properties = orvanemax::Rows<Property>;

[[nodiscard]] Properties sourceProperties() noexcept;
[[nodiscard]] Properties speakerProperties() noexcept;
[[nodiscard]] Properties areaProperties() noexcept;
[[nodiscard]] Properties anchorProperties() noexcept;
/** Of the listener alone: the index is 0. */
[[nodiscard]] Properties listenerProperties() noexcept;

/** The row with this attribute; there must be one. */
[[nodiscard]] const Property& withAttribute (Properties properties, std::string_view attribute) noexcept;

// What no word of a message names. Positions are x y z in metres; of the speakers, all.
[[nodiscard]] const Property& sourcePosition() noexcept;
[[nodiscard]] const Property& speakersPositions() noexcept;
[[nodiscard]] const Property& listenerPosition() noexcept;
/** Whether a move keeps a source's distance: in its turn, so that it bends no move that came before it. */
[[nodiscard]] const Property& radiusConstraint() noexcept;
/** The notification that saved state has changed, behind the updates that were made so far. */
[[nodiscard]] const Property& modified() noexcept;

inline constexpr float newSourceColour[4] = { 0.49019608f, 1, 0, 1 }; // red green blue alpha
inline constexpr float silence = -60;                                 // dB, of a meter that heard nothing

}
