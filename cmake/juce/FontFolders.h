#pragma once
#include <string>
#include <vector>

/** The folders below the given roots that contain one of our fonts, joined by ";": the faces that the look names and
    those that JUCE uses as its sans-serif. Goes by file names and opens no file. Empty if there is none. Any thread. */
std::string foldersOfOurFonts (const std::vector<std::string>& roots);

/** Replaces getenv for JUCE's list of font folders: returns the user's setting, otherwise the folders of our fonts,
    otherwise null, and JUCE reads every font file of the machine, which takes 50 ms or more. */
const char* fontFoldersFor (const char* variable);
