#include <juce_graphics/juce_graphics.cpp>
