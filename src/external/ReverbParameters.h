#pragma once
#include "external/HalcyraControl.h"
#include "max/OrvanemaxSymbols.h"

#include <array>

namespace halcyra
{

/** Where the object mirrors one reverb parameter, in the order of their numbers. Its words in grouped messages are in
    parameterTable. */
struct ReverbMirror
{
    HalcyraReverbParameter number;
    SymbolField attribute; // its own message and attribute
    float t_halcyra_control::*value;
    std::int32_t t_halcyra_control::*flag; // for a switch; value is then null
    const char* complaint;
};

using Words = t_orvanemax_symbols;
using Control = t_halcyra_control;

// clang-format off
inline constexpr std::array<ReverbMirror, parameter::count> reverbMirrors { {
    { parameter::gain,         &Words::gain,              &Control::gain,           nullptr, "invalid message : gain" },
    { parameter::tr0,          &Words::tr0,               &Control::tr0,            nullptr, "invalid message : tr0" },
    { parameter::trl,          &Words::trl,               &Control::trl,            nullptr, "invalid message : trl" },
    { parameter::trm,          &Words::trm,               &Control::trm,            nullptr, "invalid message : trm" },
    { parameter::trh,          &Words::trh,               &Control::trh,            nullptr, "invalid message : trh" },
    { parameter::fl,           &Words::fl,                &Control::fl,             nullptr, "invalid message : fl" },
    { parameter::fh,           &Words::fh,                &Control::fh,             nullptr, "invalid message : fh" },
    { parameter::earlyStart,   &Words::early_start,       &Control::early_start,    nullptr, "invalid message : earlystart" },
    { parameter::earlyEnd,     &Words::early_end,         &Control::early_end,      nullptr, "invalid message : earlyend" },
    { parameter::earlyDistr,   &Words::early_distr,       &Control::early_distr,    nullptr, "invalid message : earlydistr" },
    { parameter::earlyShape,   &Words::early_shape,       &Control::early_shape,    nullptr, "invalid message : earlyshape" },
    { parameter::earlyWidth,   &Words::early_width,       &Control::early_width,    nullptr, "invalid message : earlywidth" },
    { parameter::clusterStart, &Words::cluster_start,     &Control::cluster_start,  nullptr, "invalid message : clusterstart" },
    { parameter::clusterEnd,   &Words::cluster_end,       &Control::cluster_end,    nullptr, "invalid message : clusterend" },
    { parameter::clusterDistr, &Words::cluster_distr,     &Control::cluster_distr,  nullptr, "invalid message : clusterdistr" },
    { parameter::reverbStart,  &Words::reverb_start,      &Control::reverb_start,   nullptr, "invalid message : reverbstart" },
    { parameter::modalDensity, &Words::modaldensity,      &Control::modaldensity,   nullptr, "invalid message : modaldensity" },
    { parameter::air,          &Words::roomairabsorption, nullptr, &Control::roomairabsorption, "invalid message : roomairabsorption" },
    { parameter::infinite,     &Words::infinite,          nullptr, &Control::infinite,          "invalid message : infinite" },
    { parameter::airFrequency, &Words::roomairrolloff,    &Control::roomairrolloff, nullptr, "invalid message : roomairabsorptionfrequency" },
} };
// clang-format on

/** The words of a parameter's grouped message: `reverb gain`. */
struct ReverbWords
{
    t_symbol *selector, *key;
};

/** For numbers 0 to 19; needs the symbol table. */
[[nodiscard]] const ReverbWords& reverbWords (HalcyraReverbParameter number);

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

}
