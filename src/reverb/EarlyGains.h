#pragma once
#include "math/OrvaneDspVector.h"

namespace halcyra
{

/** Fills out with the signed gains of as many early taps as it holds, at most 64, of mean magnitude 1. A shape of 0 lets
    them fall from first to last, 0.5 makes them equal, 1 lets them rise. Above eight taps they vary at random by 5 %,
    and the inner ones fade where the spread, in ms, is small. */
void earlyGains (qel::Vector<float>& out, float shape, float spread, bool normalize);

}
