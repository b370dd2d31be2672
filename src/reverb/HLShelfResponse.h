#pragma once
#include "reverb/HalcyraParameters.h"

/** The magnitude response of one three-band filter: a low and a high shelf in one second-order section.
    Arithmetic alone. Frequencies in Hz, gains in dB. Any thread, each object its own. */
class HLShelfResponse
{
public:
    static constexpr double sampleRate = 44100;

    /** The section's coefficients; the identity at first. */
    struct Section
    {
        double b0 = 1, b1 = 0, b2 = 0, a0 = 1, a1 = 0, a2 = 0;
    };

    /** Clips the wish to the limits of a filter and computes the section. */
    void design (const HLShelfParameters& wish) noexcept;

    /** Gain at a frequency; finite everywhere. */
    [[nodiscard]] double decibelsAt (double hz) const noexcept;

    [[nodiscard]] const Section& section() const noexcept { return coefficients; }
    /** What the last design used, after clipping. */
    [[nodiscard]] const HLShelfParameters& parameters() const noexcept { return used; }

private:
    /** The squared magnitude of one side of the section, as a polynomial in q = 4 sin^2 (w / 2). */
    struct Magnitude
    {
        double square = 0, linear = 0, constant = 1;

        static Magnitude of (double c0, double c1, double c2) noexcept;
        [[nodiscard]] double at (double q) const noexcept;
    };

    Section coefficients;
    Magnitude numerator, denominator;
    HLShelfParameters used;
};
