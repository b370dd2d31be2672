#include <juce_events/juce_events.cpp>
