#pragma once
#include <string>
#include <vector>

/** The folders below some roots that hold a font in which our text is drawn, joined by ";": the faces that the look
    names and those that JUCE takes for its sans-serif one. Goes by the names of files and opens none. Empty if there is
    no such font. Any thread. */
std::string foldersOfOurFonts (const std::vector<std::string>& roots);

/** Answers JUCE's question for the environment's list of font folders: what the user has set, else the folders of our
    fonts, else null, and JUCE reads every font file of the machine, which takes 50 ms or more. */
const char* fontFoldersFor (const char* variable);
