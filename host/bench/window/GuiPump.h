#pragma once

/** Runs JUCE's messages until its queue is empty, messages posted meanwhile included. Message thread. */
void pumpGui();
