#ifdef __linux__
#include "FontFolders.h"
#include <cstdlib>
// JUCE asks the environment alone before it opens every font file of the machine, and only here.
#define getenv(variable) fontFoldersFor (variable)
#endif
#include <juce_graphics/juce_graphics.cpp>
