#pragma once
#include "external/ReverbParameters.h"
#include "host/bench/Words.h"

#include <cmath>
#include <random>

/** Random messages, valid and invalid, of every kind that a patch may send to an object of a given size. */
namespace walk
{

namespace parameter = halcyra::parameter;

struct Sizes
{
    int sources, speakers, internals;

    [[nodiscard]] std::string words() const
    {
        return "@numsources " + std::to_string (sources) + " @numspeakers " + std::to_string (speakers) +
               " @numinternals " + std::to_string (internals);
    }
};

inline constexpr Sizes walkSizes[] = { { 6, 6, 8 }, { 1, 1, 2 }, { 3, 2, 16 }, { 2, 9, 9 } };

class Dice
{
public:
    explicit Dice (unsigned seed) : random (seed) {}

    int below (int end) { return static_cast<int> (random() % static_cast<unsigned> (end)); }
    bool oneIn (int n) { return below (n) == 0; }
    int jitter (int most) { return below (2 * most + 1) - most; }
    double between (double low, double high) { return std::uniform_real_distribution<> (low, high) (random); }
    template <typename Row, std::size_t size>
    const Row& of (const Row (&rows)[size])
    {
        return rows[below (static_cast<int> (size))];
    }
    template <typename Rows>
    const auto& in (const Rows& rows)
    {
        return rows[static_cast<std::size_t> (below (static_cast<int> (rows.size())))];
    }

private:
    std::mt19937 random;
};

inline std::string text (double value) { return bench::textOf (static_cast<float> (value)); }

/** Mostly within a range and at its ends, sometimes beyond. */
inline std::string numberAbout (Dice& dice, double low, double high)
{
    switch (dice.below (10)) {
    case 0:
        return text (low);
    case 1:
        return text (high);
    case 2:
        return text (dice.between (low - 0.5 * (high - low), high + 0.5 * (high - low)));
    case 3:
        return std::to_string (static_cast<int> (dice.between (low, high)));
    default:
        return text (dice.between (low, high));
    }
}

inline constexpr const char* badMessages[] = {
    "gain foo",   "tr0",          "reverb tr0 foo",     "early start",         "early foo 3",         "cluster 3",
    "roomsize",   "roomsize 3",   "direct foo",         "direct 1 2 3",        "direct freqs 1",      "reverb air 0.5",
    "infinite x", "gridmode foo", "viewpoint diagonal", "orientationmode foo", "source 99 xyz 1 2 3", "zoom foo",
};

inline constexpr const char* switches[] = { "zoomlock",
                                            "showheadphones",
                                            "showspeakers",
                                            "radiusconstraint",
                                            "circularconstraint",
                                            "speakerseditable",
                                            "listenereditable",
                                            "sourceseditable",
                                            "showaperture",
                                            "display",
                                            "defer",
                                            "showlistener",
                                            "showradius",
                                            "windowmoveable",
                                            "autozoom",
                                            "showsources" };

inline std::string reverbMessage (Dice& dice)
{
    const auto& row = dice.in (halcyra::parameterTable);
    const bool isGrouped = dice.oneIn (2);
    const auto selector = isGrouped ? std::string (row.selector) + " " + row.key
                                    : std::string (halcyra::reverbWords (row.number).attribute->s_name);
    const auto value =
        row.isSwitch() ? std::to_string (dice.below (2)) : numberAbout (dice, row.range.lowest, row.range.highest);
    return selector + " " + value;
}

inline std::string filterMessage (Dice& dice)
{
    std::string message = dice.in (halcyra::filterNames);
    const auto value = [&] (std::size_t field) {
        const auto& row = halcyra::shelfTable[field];
        return " " + numberAbout (dice, static_cast<double> (row.lowest), static_cast<double> (row.highest));
    };
    const auto values = [&] (std::size_t first, std::size_t end) {
        for (auto field = first; field < end; ++field)
            message += value (field);
        return message;
    };
    switch (dice.below (4)) {
    case 0:
        return values (0, 6);
    case 1:
        message += " gains";
        return values (0, 4);
    case 2:
        message += " freqs";
        return values (4, 6);
    default: {
        const auto field = static_cast<std::size_t> (dice.below (6));
        return message + " " + halcyra::shelfTable[field].name + value (field);
    }
    }
}

inline std::string sceneMessage (Dice& dice, const Sizes& sizes)
{
    const auto source = "source " + std::to_string (1 + dice.below (sizes.sources)) + " ";
    const auto metres = [&] { return " " + text (dice.between (-4, 4)); };
    const auto degrees = [&] { return " " + text (dice.between (-400, 400)); };
    const auto each = [&] (const std::string& name, int count, auto&& value) {
        auto message = name;
        for (int i = 0; i < count; ++i)
            message += value();
        return message;
    };
    constexpr const char* modes[] = { "yawconstraint", "translation", "follow", "listenerconstraint", "none" };
    constexpr const char* grids[] = { "none", "circular", "square" };
    constexpr const char* formats[] = { "xyz", "aed", "xy", "ad" };
    switch (dice.below (24)) {
    case 0:
        return source + "xyz" + metres() + metres() + metres();
    case 1:
        return source + "aed" + degrees() + " " + text (dice.between (-90, 90)) + " " + text (dice.between (0, 5));
    case 2:
        return source + "yaw" + degrees();
    case 3:
        return source + "aperture " + text (dice.between (0, 200));
    case 4:
        return source + "lookat" + metres() + metres() + metres();
    case 5:
        return source + "orientationmode " + dice.of (modes);
    case 6:
        return source + "radius " + text (dice.between (0, 40));
    case 7:
        return source + "name word" + std::to_string (dice.below (9));
    case 8:
        return source + "color " + each ("", 4, [&] { return " " + text (dice.between (0, 1)); });
    case 9:
        return "listener xyz" + metres() + metres() + metres();
    case 10:
        return "listener rpy" + degrees() + degrees() + degrees();
    case 11:
        return "listener x++ 0.1";
    case 12:
        return "speaker " + std::to_string (1 + dice.below (sizes.speakers)) + " xyz" + metres() + metres() + metres();
    case 13:
        return "rotate " + std::to_string (dice.below (sizes.sources + 1)) + degrees() + " 0 0";
    case 14:
        return "zoom " + text (dice.between (0, 4));
    case 15:
        return std::string ("gridmode ") + dice.of (grids);
    case 16:
        return std::string ("format ") + dice.of (formats);
    case 17:
        return std::string ("viewpoint ") + (dice.oneIn (2) ? "top" : "front");
    case 18:
        return "listeneryaw" + degrees();
    case 19:
        return each ("yaw", sizes.sources, degrees);
    case 20:
        return each ("sourcespositions", 3 * sizes.sources, metres);
    case 21:
        return each ("sourceslevels", sizes.sources, [&] { return " " + text (dice.between (-70, 10)); });
    default:
        return std::string (dice.of (switches)) + " " + std::to_string (dice.below (2));
    }
}

inline std::string roomMessage (Dice& dice) { return "roomsize " + text (dice.between (-1000, 16000)); }

inline std::string randomMessage (Dice& dice, const Sizes& sizes)
{
    switch (dice.below (16)) {
    case 0:
        return roomMessage (dice);
    case 1:
        return dice.oneIn (3) ? "reset" : "bang";
    case 2:
        return dice.of (badMessages);
    case 3:
    case 4:
    case 5:
        return filterMessage (dice);
    case 6:
    case 7:
    case 8:
        return sceneMessage (dice, sizes);
    default:
        return reverbMessage (dice);
    }
}

/** Numbers that the bench's syntax cannot express. */
inline bench::Atoms badNumbers (Dice& dice)
{
    bench::Atoms atoms (static_cast<std::size_t> (1 + dice.below (6)));
    for (auto& atom : atoms)
        atom_setfloat (&atom, dice.oneIn (2) ? std::nan ("") : (dice.oneIn (2) ? HUGE_VAL : -HUGE_VAL));
    return atoms;
}

}
