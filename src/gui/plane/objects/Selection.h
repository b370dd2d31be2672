#pragma once
#include "gui/plane/objects/Scene.h"

namespace lumo::Plane
{

/** The rules of the selection: any number of sources, or one speaker, or the listener. Stores nothing: the flags are
    the sources' `selected`, the scene's `selectedSpeaker` and the options' `listenerSelected`. Does not notify. */
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

    /** A click. Speakers take precedence over the listener, the listener over sources. Clicking a selected source keeps
        the others selected; with toggle it toggles only that one. Clicking nothing deselects all. */
    void Press (const Hit& hit, bool toggle);

    void Clear();
    void ClearSources();
    // Selects a single object.
    void TakeSource (std::size_t index);
    void TakeSpeaker (std::size_t index);
    void TakeListener();

    /** Adds every editable source to the selection. Returns false and changes nothing if no source is editable. */
    bool TakeAllSources();
    /** Moves a single source's selection to the next one, or deselects if that is not editable; with none selected,
        selects the first. Returns false and changes nothing if several are selected or no source is editable. */
    bool TakeNextSource();
    /** As many as both have. */
    void SetSources (const std::vector<bool>& flags);

private:
    void ClearSpeakerAndListener();

    Scene& scene;
    bool& listener;
};

}
