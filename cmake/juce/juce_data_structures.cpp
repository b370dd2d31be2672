#include <juce_data_structures/juce_data_structures.cpp>
