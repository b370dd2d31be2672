#pragma once
#include "external/HalcyraControl.h"
#include "max/AttributeRow.h"
#include "max/OrvanemaxSymbols.h"

#include <array>

namespace halcyra
{

/** The host's side of one reverb parameter. */
struct ReverbMirror
{
    HalcyraReverbParameter number;
    float t_halcyra_control::*value;
    std::int32_t t_halcyra_control::*flag; // for a switch; value is then null
    const char* complaint;
    orvanemax::AttributeRow attribute; // also the name of its own message
};

using Words = t_orvanemax_symbols;
using Control = t_halcyra_control;

/** An attribute with the parameter's default, and no limits. */
constexpr orvanemax::AttributeRow unlimited (orvanemax::AttributeField field, HalcyraReverbParameter parameter,
                                             const char* label)
{
    return orvanemax::number (field, parameterRow (parameter)->defaultText, label);
}

/** An attribute with the parameter's default and limits. */
constexpr orvanemax::AttributeRow limited (orvanemax::AttributeField field, HalcyraReverbParameter parameter,
                                           const char* label)
{
    const auto& range = parameterRow (parameter)->range;
    return unlimited (field, parameter, label).within (range.lowest, range.highest);
}

constexpr orvanemax::AttributeRow switched (orvanemax::AttributeField field, HalcyraReverbParameter parameter,
                                            const char* label)
{
    return orvanemax::onOff (field, parameterRow (parameter)->defaultText, label);
}

constexpr double lowest (HalcyraReverbParameter number) { return parameterRow (number)->range.lowest; }
constexpr double highest (HalcyraReverbParameter number) { return parameterRow (number)->range.highest; }

// clang-format off
/** All parameters, in the order of their numbers and of registration. Some attributes' limits differ from the
    parameter's. */
inline constexpr std::array<ReverbMirror, parameter::count> reverbMirrors { {
    { parameter::gain, &Control::gain, nullptr, "invalid message : gain",
      limited (HALCYRA_FIELD (gain), parameter::gain, "late reverberation gain (dB)").ordered (20) },
    { parameter::tr0, &Control::tr0, nullptr, "invalid message : tr0",
      limited (HALCYRA_FIELD (tr0), parameter::tr0, "decay time (s)").ordered (21) },
    { parameter::trl, &Control::trl, nullptr, "invalid message : trl",
      limited (HALCYRA_FIELD (trl), parameter::trl, "relative decay time at low freq").ordered (22) },
    { parameter::trm, &Control::trm, nullptr, "invalid message : trm",
      limited (HALCYRA_FIELD (trm), parameter::trm, "relative decay time at med freq").ordered (23) },
    { parameter::trh, &Control::trh, nullptr, "invalid message : trh",
      limited (HALCYRA_FIELD (trh), parameter::trh, "relative decay time at high freq").ordered (24) },
    { parameter::fl, &Control::fl, nullptr, "invalid message : fl",
      limited (HALCYRA_FIELD (fl), parameter::fl, "low/med crossover frequency") },
    { parameter::fh, &Control::fh, nullptr, "invalid message : fh",
      limited (HALCYRA_FIELD (fh), parameter::fh, "med/high crossover frequency") },
    { parameter::earlyStart, &Control::early_start, nullptr, "invalid message : earlystart",
      limited (HALCYRA_FIELD (early_start), parameter::earlyStart, "early start").ordered (7) },
    { parameter::earlyEnd, &Control::early_end, nullptr, "invalid message : earlyend",
      unlimited (HALCYRA_FIELD (early_end), parameter::earlyEnd, "early end").within (0, highest (parameter::earlyEnd)).ordered (8) },
    { parameter::earlyDistr, &Control::early_distr, nullptr, "invalid message : earlydistr",
      limited (HALCYRA_FIELD (early_distr), parameter::earlyDistr, "early distr").ordered (9) },
    { parameter::earlyShape, &Control::early_shape, nullptr, "invalid message : earlyshape",
      limited (HALCYRA_FIELD (early_shape), parameter::earlyShape, "early shape").ordered (10) },
    { parameter::earlyWidth, &Control::early_width, nullptr, "invalid message : earlywidth",
      limited (HALCYRA_FIELD (early_width), parameter::earlyWidth, "early width").ordered (11) },
    { parameter::clusterStart, &Control::cluster_start, nullptr, "invalid message : clusterstart",
      unlimited (HALCYRA_FIELD (cluster_start), parameter::clusterStart, "cluster start").atMost (highest (parameter::clusterStart)).ordered (12) },
    { parameter::clusterEnd, &Control::cluster_end, nullptr, "invalid message : clusterend",
      unlimited (HALCYRA_FIELD (cluster_end), parameter::clusterEnd, "cluster end").atMost (highest (parameter::clusterEnd)).ordered (13) },
    { parameter::clusterDistr, &Control::cluster_distr, nullptr, "invalid message : clusterdistr",
      limited (HALCYRA_FIELD (cluster_distr), parameter::clusterDistr, "cluster distr").ordered (14) },
    { parameter::reverbStart, &Control::reverb_start, nullptr, "invalid message : reverbstart",
      unlimited (HALCYRA_FIELD (reverb_start), parameter::reverbStart, "reverb start").clipped (lowest (parameter::reverbStart), highest (parameter::reverbStart)).ordered (15) },
    { parameter::modalDensity, &Control::modaldensity, nullptr, "invalid message : modaldensity",
      limited (HALCYRA_FIELD (modaldensity), parameter::modalDensity, "reverb modal density").ordered (16) },
    { parameter::air, nullptr, &Control::roomairabsorption, "invalid message : roomairabsorption",
      switched (HALCYRA_FIELD (roomairabsorption), parameter::air, "room air absorption").ordered (17) },
    { parameter::infinite, nullptr, &Control::infinite, "invalid message : infinite",
      switched (HALCYRA_FIELD (infinite), parameter::infinite, "infinite reverb").ordered (18) },
    { parameter::airFrequency, &Control::roomairrolloff, nullptr, "invalid message : roomairabsorptionfrequency",
      limited (HALCYRA_FIELD (roomairrolloff), parameter::airFrequency, "room air absorption rolloff").ordered (19) },
} };
// clang-format on

/** The words of a parameter: the name of its message and attribute, and its grouped message, `reverb gain`. */
struct ReverbWords
{
    t_symbol *attribute, *selector, *key;
};

/** For numbers 0 to 19. */
[[nodiscard]] const ReverbWords& reverbWords (HalcyraReverbParameter number);
/** The parameter whose attribute has this name, or null. */
[[nodiscard]] const ReverbMirror* parameterNamed (t_symbol* attribute);

/** Where the object mirrors one filter. */
struct FilterMirror
{
    SymbolField selector; // message and attribute
    float (t_halcyra_control::*values)[6];
    bool tellsOfMessages; // whether setting it by a message notifies
    const char* complaint;
};

inline constexpr std::array<FilterMirror, 4> filterMirrors{ {
    { &Words::direct, &Control::direct, true, "invalid message : direct" },
    { &Words::room, &Control::room, true, "invalid message : room" },
    { &Words::early, &Control::early, false, "invalid message : early" },
    { &Words::cluster, &Control::cluster, false, "invalid message : cluster" },
} };

/** The filter with this name, or null. */
[[nodiscard]] const FilterMirror* filterNamed (t_symbol* selector) noexcept;

}
