#pragma once
#include "math/OrvaneDspVector.h"

namespace halcyra
{

/** Fills out, at most 64 taps, with signed early-tap gains of mean magnitude 1. A shape of 0 makes them fall, 0.5 makes
    them equal, 1 makes them rise. Above eight taps they vary at random by 5 %, and the inner ones fade if the spread
    (ms) is small. */
void earlyGains (qel::Vector<float>& out, float shape, float spread, bool normalize);

}
