#include "gui/plane/objects/Speaker.h"

#include "gui/plane/icons/Icons.h"

namespace lumo::Plane
{

Speaker::Speaker (int number) : name (number), image (MakeDrawable (SpeakerIcon (colour))) {}

void Speaker::SetColour (juce::Colour newColour)
{
    if (newColour == colour)
        return;
    colour = newColour;
    image = MakeDrawable (SpeakerIcon (colour));
}

}
