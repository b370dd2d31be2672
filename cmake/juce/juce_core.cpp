#include <juce_core/juce_core.cpp>
