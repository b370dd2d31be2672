#include "reverb/HLShelfResponse.h"
#include <utility>

#include <cstdio>

/** Prints sections and their responses to compare with an independent computation:
    a line of coefficients b0 b1 b2 a0 a1 a2, lines of frequency and gain, then an empty line. */
int main()
{
    for (const float global : { -20.0f, 0.0f, 10.0f })
        for (const float low : { -30.0f, 0.0f, 6.0f })
            for (const float mid : { -12.0f, 0.0f, 30.0f })
                for (const float high : { -30.0f, 3.5f, 30.0f })
                    for (const auto& [fl, fh] :
                         { std::pair{ 20.0f, 20000.0f }, { 250.0f, 4000.0f }, { 9000.0f, 300.0f } }) {
                        HLShelfResponse response;
                        response.design ({ global, low, mid, high, fl, fh });
                        const auto& s = response.section();
                        std::printf ("%.17g %.17g %.17g %.17g %.17g %.17g\n", s.b0, s.b1, s.b2, s.a0, s.a1, s.a2);
                        for (double hz = 20; hz <= 20000; hz *= 1.2)
                            std::printf ("%.17g %.17g\n", hz, response.decibelsAt (hz));
                        std::printf ("\n");
                    }
}
