#pragma once
#include "external/HalcyraControl.h"
#include "max/Atoms.h"
#include "max/AttributeRow.h"
#include "max/Rows.h"

#include <string_view>

/** The properties of the scene that a patch can change. Messages, attributes, updates and mirrors all derive from the
    rows of SceneProperties.cpp.

    To add a source property: a field in the struct for its attribute, a row in SceneProperties.cpp, a position in the
    order of ViewerAttributes.cpp, and its drawing. */
namespace halcyra::scene
{

/** Applies values that fit the row's pattern to the mirrors and the plane. Indices start at 0. Main thread, in a call
    from the host. */
using Effect = void (*) (t_halcyra_control* x, lumo::PlaneComponent& plane, std::size_t index, orvanemax::Atoms values,
                         bool notify);

/** Stores a requested value at once, so that the next relative move starts from it, queued or not. */
using Wish = void (*) (t_halcyra_control* x, std::size_t index, orvanemax::Atoms values);

/** Built from what every property has, plus optional parts. */
struct Property
{
    const char* key;    // its word in messages, after the index; null if it has none
    const char* values; // letters for Atoms::fit(); null for any count of numbers
    Effect effect;
    Wish wish = nullptr;
    bool isSaved = false;                            // with the patcher
    bool isQueued = true;                            // queued by the rule for all updates, otherwise applied at once
    bool (*isGood) (const t_symbol* word) = nullptr; // validates the value beyond its letter
    orvanemax::AttributeRow attribute{};             // no name if there is none; lists have one value per source

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
/** For the listener only: the index is 0. */
[[nodiscard]] Properties listenerProperties() noexcept;

/** The row with this attribute, which must exist. */
[[nodiscard]] const Property& withAttribute (Properties properties, std::string_view attribute) noexcept;

// Properties without a word in messages. Positions are x y z in metres; for speakers, all of them.
[[nodiscard]] const Property& sourcePosition() noexcept;
[[nodiscard]] const Property& speakersPositions() noexcept;
[[nodiscard]] const Property& listenerPosition() noexcept;
/** Whether moves keep a source's distance. Queued, so that it does not affect earlier moves. */
[[nodiscard]] const Property& radiusConstraint() noexcept;
/** Notifies that saved state has changed, behind the updates so far. */
[[nodiscard]] const Property& modified() noexcept;

inline constexpr float newSourceColour[4] = { 0.49019608f, 1, 0, 1 }; // red green blue alpha

}
