#include "geometry/OrvaneDspSpeakerAlignment.h"
#include "geometry/OrvaneDspSpherical.h"
#include "math/OrvaneDspVectorImplementation.h"

#include <cmath>

namespace qel
{

namespace
{

constexpr float metresPerSecond = 343.2f, millisecondsPerSecond = 1000;

/** The delay in milliseconds for a speaker moved by this distance. */
float delayFor (float metres) noexcept { return metres * millisecondsPerSecond / metresPerSecond; }

}

bool intersectLineAndSphere (const Point3& p0, const Point3& p1, const Point3& centre, float radius, Point3& first,
                             Point3& second) noexcept
{
    const Point3 d = p1 - p0;
    const float a = dot (d, d);
    const float b = 2 * dot (p0 - centre, d);
    const float c = dot (centre, centre) + dot (p0, p0) - 2 * dot (centre, p0) - radius * radius;
    const float discriminant = b * b - 4 * a * c;
    if (! (a > 0) || ! (discriminant >= 0))
        return false;

    const float root = std::sqrt (discriminant);
    const float t1 = discriminant == 0 ? b / (-2 * a) : (root - b) / (2 * a);
    const float t2 = discriminant == 0 ? t1 : (-b - root) / (2 * a);
    const Point3 firstFound = p0 + d * t1, secondFound = p0 + d * t2;
    if (! isFinite (firstFound) || ! isFinite (secondFound))
        return false;
    first = firstFound;
    second = secondFound;
    return true;
}

SpeakerAlignment alignSpeakers (const Point3Array& speakers)
{
    SpeakerAlignment alignment{ maximumRadius (speakers), speakers, Vector<float> (speakers.size()) };
    ippsZero_32f (alignment.delays.data(), alignment.delays.size());

    for (std::size_t i = 0; i < speakers.size(); ++i) {
        Point3 first, second;
        if (! intersectLineAndSphere ({}, speakers[i], {}, alignment.radius, first, second))
            continue;
        const float toFirst = distance (speakers[i] - first), toSecond = distance (speakers[i] - second);
        alignment.points[i] = toSecond >= toFirst ? first : second;
        alignment.delays[i] = delayFor (std::min (toFirst, toSecond));
    }
    return alignment;
}

}
