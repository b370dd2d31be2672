#ifdef __linux__
#include "FontFolders.h"
#include <cstdlib>
// The only place where JUCE reads the environment before it opens every font file of the machine.
#define getenv(variable) fontFoldersFor (variable)
#endif
#include <juce_graphics/juce_graphics.cpp>
