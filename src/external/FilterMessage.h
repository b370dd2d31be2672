#pragma once
#include "max/Atoms.h"
#include "reverb/HalcyraParameters.h"

namespace halcyra
{

/** Parses a filter message in one of these forms, with each value clipped to the filter's limits:

    hlshelf G0 Gl Gm Gh fl fh    params ...    (the same without a key)
    gains G0 Gl Gm Gh            freqs fl fh
    KEY value                    G0 Gl Gm Gh in dB, g0 gl gm gh linear, fl fh in Hz

    Extra values are ignored, but four or two numbers are always read as the list they form, whatever the key. Fields
    that the form does not name keep their values. Returns false and leaves the record unchanged for anything else. Any
    thread. */
bool parseFilter (HLShelfParameters& filter, orvanemax::Atoms atoms);

/** Copies the fields in the order of messages and attributes. */
void copyFilter (const HLShelfParameters& filter, float (&values)[6]) noexcept;

}
