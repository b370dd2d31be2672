#pragma once

/** Runs JUCE's messages until its queue is empty, messages posted meanwhile included; true if there was any.
    JUCE has been started on this thread. */
bool pumpGui();
