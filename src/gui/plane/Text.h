#pragma once
#include "text/OrvaneDspString.h"

#include <juce_core/juce_core.h>

namespace lumo::Plane
{

[[nodiscard]] inline juce::String FromCore (const qel::String& text) { return juce::String::fromUTF8 (text.c_str()); }
[[nodiscard]] inline qel::String ToCore (const juce::String& text) { return { text.toRawUTF8() }; }

}
