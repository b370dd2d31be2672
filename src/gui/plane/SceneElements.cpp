#include "gui/plane/SceneElements.h"

namespace lumo
{

namespace
{

/** What there is to say of one object now. */
struct Description
{
    juce::String name;
    qel::Point3 position;
    bool isVisible, isSelected;
};

juce::String named (const char* kind, std::size_t index, const juce::String& label)
{
    const juce::String number (static_cast<int> (index) + 1);
    const auto name = juce::String (kind) + " " + number;
    return label.isEmpty() || label == number ? name : name + ", " + label;
}

Description describeSource (const PlaneComponent& plane, std::size_t index)
{
    const auto& source = plane.GetScene().sources[index];
    return { named ("Source", index, source.label.Text()), source.position, source.visible, source.selected };
}

Description describeSpeaker (const PlaneComponent& plane, std::size_t index)
{
    const auto& speaker = plane.GetScene().speakers[index];
    return { named ("Speaker", index, speaker.name.Text()), speaker.position,
             speaker.visible && plane.GetSurface().options.speakersVisible,
             plane.GetSelectedSpeaker() == static_cast<int> (index) };
}

Description describeListener (const PlaneComponent& plane, std::size_t)
{
    const auto& listener = plane.GetListener();
    return { "Listener", listener.position, listener.visible, plane.GetSurface().options.listenerSelected };
}

void selectSource (PlaneComponent& plane, std::size_t index) { plane.SelectSourceAlone (index); }
void selectSpeaker (PlaneComponent& plane, std::size_t index) { plane.SelectSpeakerAlone (index); }
void selectListener (PlaneComponent& plane, std::size_t) { plane.SelectListenerAlone(); }

/** One kind of object. */
struct Kind
{
    std::size_t (*count) (const PlaneComponent&);
    Description (*describe) (const PlaneComponent&, std::size_t);
    void (*select) (PlaneComponent&, std::size_t);
};

constexpr Kind kinds[] = {
    { [] (const PlaneComponent& plane) { return plane.GetNumSources(); }, describeSource, selectSource },
    { [] (const PlaneComponent& plane) { return plane.GetNumSpeakers(); }, describeSpeaker, selectSpeaker },
    { [] (const PlaneComponent&) { return std::size_t{ 1 }; }, describeListener, selectListener },
};

}

class SceneElements::Element : public juce::Component
{
public:
    Element (PlaneComponent& planeToDescribe, const Kind& kindOfObject, std::size_t indexOfObject)
        : plane (planeToDescribe), kind (kindOfObject), index (indexOfObject)
    {
        setInterceptsMouseClicks (false, false);
        plane.addAndMakeVisible (*this);
    }

private:
    class Position : public juce::AccessibilityTextValueInterface
    {
    public:
        explicit Position (const Element& elementToRead) : element (elementToRead) {}
        bool isReadOnly() const override { return true; }
        juce::String getCurrentValueAsString() const override
        {
            const auto p = element.describe().position;
            return "x " + juce::String (p.x, 2) + " m, y " + juce::String (p.y, 2) + " m, z " + juce::String (p.z, 2) +
                   " m";
        }
        void setValueAsString (const juce::String&) override {}

    private:
        const Element& element;
    };

    class Handler : public juce::AccessibilityHandler
    {
    public:
        explicit Handler (Element& elementToSpeakFor)
            : AccessibilityHandler (
                  elementToSpeakFor, juce::AccessibilityRole::listItem,
                  juce::AccessibilityActions()
                      .addAction (juce::AccessibilityActionType::press, [&] { elementToSpeakFor.select(); })
                      .addAction (juce::AccessibilityActionType::toggle, [&] { elementToSpeakFor.select(); }),
                  Interfaces{ std::make_unique<Position> (elementToSpeakFor) }),
              element (elementToSpeakFor)
        {}
        juce::String getTitle() const override { return element.describe().name; }
        juce::AccessibleState getCurrentState() const override
        {
            const auto described = element.describe();
            // What has no size counts as out of sight, and is left out unless it says so.
            const auto state = AccessibilityHandler::getCurrentState().withSelectable().withAccessibleOffscreen();
            if (! described.isVisible)
                return state.withIgnored();
            return described.isSelected ? state.withSelected() : state;
        }

    private:
        const Element& element;
    };

    [[nodiscard]] Description describe() const
    {
        return index < kind.count (plane) ? kind.describe (plane, index) : Description{ {}, {}, false, false };
    }
    void select() { kind.select (plane, index); }
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override
    {
        return std::make_unique<Handler> (*this);
    }

    PlaneComponent& plane;
    const Kind& kind;
    const std::size_t index;
};

SceneElements::SceneElements (PlaneComponent& plane)
{
    for (const auto& kind : kinds)
        for (std::size_t i = 0; i < kind.count (plane); ++i)
            elements.push_back (std::make_unique<Element> (plane, kind, i));
}

SceneElements::~SceneElements() = default;

}
