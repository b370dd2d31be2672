#pragma once
#include "max/Atoms.h"
#include "reverb/HalcyraParameters.h"

namespace halcyra
{

/** Reads a filter out of a message, in one of its forms, each value clipped to the filter's limits:

        hlshelf G0 Gl Gm Gh fl fh    params ...    (the same without a key)
        gains G0 Gl Gm Gh            freqs fl fh
        KEY value                    G0 Gl Gm Gh in dB, g0 gl gm gh linear, fl fh in Hz

    What stands behind the values is passed over, but four or two numbers are read as the list they make, whatever the
    key. Fields that the form does not name stay. False, and the record untouched, for anything else. Any thread. */
bool parseFilter (HLShelfParameters& filter, orvanemax::Atoms atoms);

/** Into the order of messages and attributes. */
void copyFilter (const HLShelfParameters& filter, float (&values)[6]) noexcept;

}
