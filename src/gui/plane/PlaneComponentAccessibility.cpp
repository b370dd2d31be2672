#include "gui/plane/PlaneComponent.h"
#include "gui/plane/painting/Drawing.h"
#include "gui/plane/painting/Extents.h"

namespace lumo
{

using namespace Plane;

namespace
{

/** An object's present description. */
struct Description
{
    juce::String name;
    qel::Point3 position;
    juce::Rectangle<int> icon;
    bool isVisible, isSelected;
};

template <typename Object>
juce::Rectangle<int> iconOf (const PlaneComponent& plane, const Object& object)
{
    return SquareAt (object.screenPosition, SizeOf (object, plane.GetSurface().viewTransform))
        .getSmallestIntegerContainer();
}

juce::String named (const char* kind, std::size_t index, const juce::String& label)
{
    const juce::String number (static_cast<int> (index) + 1);
    const auto name = juce::String (kind) + " " + number;
    return label.isEmpty() || label == number ? name : name + ", " + label;
}

Description describeSource (const PlaneComponent& plane, std::size_t index)
{
    const auto& source = plane.GetScene().sources[index];
    return { named ("Source", index, source.label.Text()), source.position, iconOf (plane, source), source.visible,
             source.selected };
}

Description describeSpeaker (const PlaneComponent& plane, std::size_t index)
{
    const auto& speaker = plane.GetScene().speakers[index];
    return { named ("Speaker", index, speaker.name.Text()), speaker.position, iconOf (plane, speaker),
             speaker.visible && plane.GetSurface().options.speakersVisible,
             plane.GetSelectedSpeaker() == static_cast<int> (index) };
}

Description describeListener (const PlaneComponent& plane, std::size_t)
{
    const auto& listener = plane.GetListener();
    return { "Listener", listener.position, iconOf (plane, listener), listener.visible,
             plane.GetSurface().options.listenerSelected };
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

/** One object. Never visible: draws nothing and ignores the mouse. */
class Element : public juce::Component
{
public:
    Element (PlaneComponent& planeToDescribe, const Kind& kindOfObject, std::size_t indexOfObject)
        : plane (planeToDescribe), kind (kindOfObject), index (indexOfObject)
    {
        plane.addChildComponent (*this);
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
        /** Queried first, so this also updates the element's bounds. */
        juce::AccessibleState getCurrentState() const override
        {
            const auto described = element.describe();
            element.setBounds (described.icon);
            // Off-screen elements are skipped unless they declare it.
            const auto state = AccessibilityHandler::getCurrentState().withSelectable().withAccessibleOffscreen();
            if (! described.isVisible)
                return state.withIgnored();
            return described.isSelected ? state.withSelected() : state;
        }

    private:
        Element& element;
    };

    [[nodiscard]] Description describe() const { return kind.describe (plane, index); }
    void select() { kind.select (plane, index); }
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override
    {
        return std::make_unique<Handler> (*this);
    }

    PlaneComponent& plane;
    const Kind& kind;
    const std::size_t index;
};

/** The whole scene. Only a screen reader queries its name, which then creates the objects' elements too. */
class SceneHandler : public juce::AccessibilityHandler
{
public:
    SceneHandler (PlaneComponent& plane, std::function<void()> onAsked)
        : AccessibilityHandler (plane, juce::AccessibilityRole::list), asked (std::move (onAsked))
    {}
    juce::String getTitle() const override
    {
        asked();
        return AccessibilityHandler::getTitle();
    }

private:
    std::function<void()> asked;
};

/** Traverses the elements in order. */
class ElementTraverser : public juce::FocusTraverser
{
public:
    using Elements = juce::OwnedArray<juce::Component>;
    explicit ElementTraverser (const Elements& elementsToFind) : elements (elementsToFind) {}
    juce::Component* getDefaultComponent (juce::Component*) override { return elements.getFirst(); }
    std::vector<juce::Component*> getAllComponents (juce::Component*) override
    {
        return { elements.begin(), elements.end() };
    }

private:
    const Elements& elements;
};

}

std::unique_ptr<juce::AccessibilityHandler> PlaneComponent::createAccessibilityHandler()
{
    return std::make_unique<SceneHandler> (*this, [this] { MakeElements(); });
}

std::unique_ptr<juce::ComponentTraverser> PlaneComponent::createFocusTraverser()
{
    MakeElements();
    return std::make_unique<ElementTraverser> (elements);
}

void PlaneComponent::MakeElements()
{
    if (elements.isEmpty())
        for (const auto& kind : kinds)
            for (std::size_t i = 0; i < kind.count (*this); ++i)
                elements.add (new Element (*this, kind, i));
}

/** Moves a screen reader that has used the elements to the first selected one, so that it announces its position. */
void PlaneComponent::SpeakSelection()
{
    if (elements.isEmpty() || ! hasKeyboardFocus (false))
        return;
    auto* spoken = getAccessibilityHandler();
    for (auto* element : elements)
        if (auto* handler = element->getAccessibilityHandler();
            handler != nullptr && handler->getCurrentState().isSelected()) {
            spoken = handler;
            break;
        }
    if (spoken == nullptr)
        return;
    spoken->grabFocus();
    spoken->notifyAccessibilityEvent (juce::AccessibilityEvent::valueChanged);
}

}
