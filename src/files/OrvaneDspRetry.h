#pragma once
#include "common/OrvaneDspClock.h"

namespace qel
{

/** Returns whether one of several attempts succeeded. Another program, such as a virus scanner, may lock a file
    briefly. */
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
