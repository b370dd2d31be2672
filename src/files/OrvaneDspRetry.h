#pragma once
#include "common/OrvaneDspClock.h"

namespace qel
{

/** Whether one of some attempts succeeded. Another program, a virus scanner say, may hold a file for a moment. */
template <typename Attempt>
[[nodiscard]] bool retried (int tries, int pauseInMilliseconds, Attempt&& attempt)
{
    for (int i = 1;; ++i) {
        if (attempt())
            return true;
        if (i == tries)
            return false;
        sleepMilliseconds (pauseInMilliseconds);
    }
}

}
