#include "reverb/HLShelfScale.h"

#include <cmath>

namespace halcyra
{

namespace
{

const double lowestLog = std::log10 (HLShelfScale::lowestFrequency);
const double logSpan = std::log10 (HLShelfScale::highestFrequency) - lowestLog;
constexpr double gainSpan = HLShelfScale::highestGain - HLShelfScale::lowestGain;

}

double HLShelfScale::x (double hz) const noexcept { return width * (std::log10 (hz) - lowestLog) / logSpan; }
double HLShelfScale::y (double dB) const noexcept { return height - height * (dB - lowestGain) / gainSpan; }
double HLShelfScale::frequency (double x) const noexcept { return std::pow (10.0, lowestLog + logSpan * x / width); }
double HLShelfScale::gain (double y) const noexcept { return (y - height) / -height * gainSpan + lowestGain; }

}
