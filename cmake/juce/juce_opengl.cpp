#include <juce_opengl/juce_opengl.cpp>
