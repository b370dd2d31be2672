#pragma once
#include "gui/plane/PlaneComponent.h"

namespace lumo
{

/** The sources, the speakers and the listener of a plane as a screen reader meets them: each with its name, its position
    in metres and whether it is selected. They have no size and draw nothing. Gone before the plane is. Message thread. */
class SceneElements
{
public:
    explicit SceneElements (PlaneComponent& plane);
    ~SceneElements();

private:
    class Element;
    std::vector<std::unique_ptr<Element>> elements;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (SceneElements)
};

}
