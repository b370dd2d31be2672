#include "text/OrvaneDspUnitText.h"

#include <cmath>

namespace qel
{

namespace
{

/** Larger numbers are not written as integers. */
constexpr double largestWhole = 1e15;

bool isWhole (double value) noexcept { return std::abs (value) < largestWhole && std::trunc (value) == value; }

String wholePart (double value)
{
    return std::abs (value) < largestWhole ? String (static_cast<long long> (value)) : String (value, 0);
}

String frequency (double hertz, const char*& unit)
{
    constexpr double compactDiscRate = 44100, kilo = 1e3, mega = 1e6, giga = 1e9;

    unit = " kHz";
    if (hertz == compactDiscRate)
        return "44.1";
    if (hertz >= giga) {
        unit = " GHz";
        return String::formatted ("%.2f", hertz / giga);
    }
    if (hertz >= mega) {
        unit = " MHz";
        return String::formatted ("%.2f", hertz / mega);
    }
    if (hertz >= kilo && isWhole (hertz / kilo))
        return wholePart (hertz / kilo);
    unit = " Hz";
    return wholePart (hertz);
}

}

String gainText (double decibels, bool withUnit)
{
    const double magnitude = std::abs (decibels);
    String text = decibels > 0 ? "+" : decibels < 0 ? "-" : "";
    text += isWhole (magnitude) ? wholePart (magnitude) : String (magnitude, 1);
    return withUnit ? text + " dB" : text;
}

String frequencyText (double hertz, bool withUnit)
{
    const char* unit = "";
    const String number = frequency (hertz, unit);
    return withUnit ? number + unit : number;
}

}
