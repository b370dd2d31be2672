#pragma once
#include "reverb/HalcyraParameters.h"

/** Magnitude response of one three-band filter: a low and a high shelf in one second-order section.
    Arithmetic only. Frequencies in Hz, gains in dB. Not shared between threads. */
class HLShelfResponse
{
public:
    static constexpr double sampleRate = 44100;

    /** The section's coefficients; initially the identity. */
    struct Section
    {
        double b0 = 1, b1 = 0, b2 = 0, a0 = 1, a1 = 0, a2 = 0;
    };

    /** Clips the parameters to the limits of a filter and computes the section. */
    void design (const HLShelfParameters& wish) noexcept;

    /** Gain in dB at a frequency in Hz; finite everywhere. */
    [[nodiscard]] double decibelsAt (double hz) const noexcept;

    [[nodiscard]] const Section& section() const noexcept { return coefficients; }
    /** The parameters of the last design, after clipping. */
    [[nodiscard]] const HLShelfParameters& parameters() const noexcept { return used; }

private:
    /** The squared magnitude of the numerator or denominator, as a polynomial in q = 4 sin^2 (w / 2). */
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
