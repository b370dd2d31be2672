#pragma once
#include "host/api/MaxApi.h"

namespace orvanemax
{

/** One attribute of a class. Registration, setters and tests read the same rows.
    Build one with number(), symbolic(), onOff() and the like, and chain what it needs:
    number (FIELD (gain), "0", "late reverberation gain (dB)").within (-30, 30).ordered (20) */
struct AttributeRow
{
    enum class Filter
    {
        none,
        both,
        lowOnly,
        highOnly
    };

    const char* name = nullptr;
    t_clong offset = 0;                // of its field in the object's struct
    const char* type = nullptr;        // the host's type name
    const char* defaultText = nullptr; // null for none
    const char* label = nullptr;
    const char* style = nullptr;
    t_clong capacity = 0;        // of an array; 0 for a single value
    t_clong countOffset = 0;     // of an array's count field; 0 for a fixed array
    bool defaultForEach = false; // the default text applies to every element
    Filter filter = Filter::none;
    bool hasBounds = false; // the filter's bounds are also properties
    double low = 0, high = 0;
    const char* units = nullptr;
    const char* choices = nullptr; // of an enumeration, separated by blanks
    const char* description = nullptr;
    int order = 0; // 0 for none
    bool canBeReset = true;

    /** Clips on both sides, and publishes minvalue and maxvalue. */
    [[nodiscard]] constexpr AttributeRow within (double lowest, double highest) const
    {
        auto row = clipped (lowest, highest);
        row.hasBounds = true;
        return row;
    }
    /** Clips without publishing the bounds. */
    [[nodiscard]] constexpr AttributeRow clipped (double lowest, double highest) const
    {
        auto row = *this;
        row.filter = Filter::both;
        row.low = lowest;
        row.high = highest;
        return row;
    }
    [[nodiscard]] constexpr AttributeRow atLeast (double lowest) const
    {
        auto row = *this;
        row.filter = Filter::lowOnly;
        row.low = lowest;
        return row;
    }
    [[nodiscard]] constexpr AttributeRow atMost (double highest) const
    {
        auto row = *this;
        row.filter = Filter::highOnly;
        row.high = highest;
        return row;
    }
    /** A fixed number of values. */
    [[nodiscard]] constexpr AttributeRow array (t_clong size) const
    {
        auto row = *this;
        row.capacity = size;
        return row;
    }
    /** As many values as a field of the struct says. */
    [[nodiscard]] constexpr AttributeRow list (t_clong size, t_clong offsetOfCount) const
    {
        auto row = array (size);
        row.countOffset = offsetOfCount;
        row.defaultForEach = true;
        return row;
    }
    [[nodiscard]] constexpr AttributeRow styled (const char* word) const
    {
        auto row = *this;
        row.style = word;
        return row;
    }
    [[nodiscard]] constexpr AttributeRow among (const char* words) const
    {
        auto row = styled ("enum");
        row.choices = words;
        return row;
    }
    [[nodiscard]] constexpr AttributeRow in (const char* unit) const
    {
        auto row = *this;
        row.units = unit;
        return row;
    }
    [[nodiscard]] constexpr AttributeRow described (const char* text) const
    {
        auto row = *this;
        row.description = text;
        return row;
    }
    [[nodiscard]] constexpr AttributeRow ordered (int place) const
    {
        auto row = *this;
        row.order = place;
        return row;
    }
    [[nodiscard]] constexpr AttributeRow notReset() const
    {
        auto row = *this;
        row.canBeReset = false;
        return row;
    }
};

/** Where an attribute is stored: its name, which is also the field's name, and the field's offset. */
struct AttributeField
{
    const char* name;
    t_clong offset;
};

[[nodiscard]] constexpr AttributeRow attributeRow (AttributeField field, const char* type, const char* defaultText,
                                                   const char* label)
{
    AttributeRow row;
    row.name = field.name;
    row.offset = field.offset;
    row.type = type;
    row.defaultText = defaultText;
    row.label = label;
    return row;
}

[[nodiscard]] constexpr AttributeRow number (AttributeField field, const char* defaultText, const char* label)
{
    return attributeRow (field, "float32", defaultText, label);
}

[[nodiscard]] constexpr AttributeRow number64 (AttributeField field, const char* defaultText, const char* label)
{
    return attributeRow (field, "float64", defaultText, label);
}

[[nodiscard]] constexpr AttributeRow integer (AttributeField field, const char* defaultText, const char* label)
{
    return attributeRow (field, "long", defaultText, label);
}

[[nodiscard]] constexpr AttributeRow symbolic (AttributeField field, const char* defaultText, const char* label)
{
    return attributeRow (field, "symbol", defaultText, label);
}

/** A switch of 0 or 1. */
[[nodiscard]] constexpr AttributeRow onOff (AttributeField field, const char* defaultText, const char* label)
{
    return integer (field, defaultText, label).within (0, 1).styled ("onoff");
}

}
