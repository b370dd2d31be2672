#pragma once
#include "gui/plane/objects/Scene.h"

namespace lumo::Plane
{

/** The rules of the selection: any number of sources, or one speaker, or the listener. Keeps nothing itself: the flags
    are the sources' `selected`, the scene's `selectedSpeaker` and the options' `listenerSelected`. Tells nobody. */
class Selection
{
public:
    /** What is under the pointer. */
    struct Hit
    {
        int source = Scene::none;
        bool listener = false;
        int speaker = Scene::none;
    };

    /** Both must outlive this object. */
    Selection (Scene& sceneToSelectIn, bool& listenerSelectedFlag)
        : scene (sceneToSelectIn), listener (listenerSelectedFlag)
    {}

    [[nodiscard]] bool Any() const;

    /** A click. A speaker takes precedence over the listener, the listener over sources. A source that is selected keeps
        the others selected; with toggle it changes alone. Nothing under the pointer selects nothing. */
    void Press (const Hit& hit, bool toggle);

    void Clear();
    void ClearSources();
    // One object and nothing else.
    void TakeSource (std::size_t index);
    void TakeSpeaker (std::size_t index);
    void TakeListener();

    /** Every editable source, besides those that are selected. False, and nothing changes, if no source is editable. */
    bool TakeAllSources();
    /** With one source selected the next one takes over, or none if that is not editable; with none, the first. False,
        and nothing changes, if several are selected or no source is editable. */
    bool TakeNextSource();
    /** As many as both have. */
    void SetSources (const std::vector<bool>& flags);

private:
    void ClearSpeakerAndListener();

    Scene& scene;
    bool& listener;
};

}
