#include <juce_gui_basics/juce_gui_basics.cpp>
