#pragma once
#include "text/OrvaneDspString.h"

namespace qel
{

/** A gain in dB with its sign: "+3 dB", "-0.5 dB", "0 dB". Integers have no decimals, others one. */
[[nodiscard]] String gainText (double decibels, bool withUnit);

/** A frequency in Hz, scaled to a suitable unit: "250 Hz", "1500 Hz", "2 kHz", "44.1 kHz", "1.50 MHz". */
[[nodiscard]] String frequencyText (double hertz, bool withUnit);

}
