#pragma once
#include "geometry/OrvaneDspCoordinatesSnapshot.h"
#include "gui/plane/PlaneBase.h"
#include "gui/plane/interaction/Pointer.h"
#include "gui/plane/objects/AreaMonitor.h"
#include "gui/plane/objects/Selection.h"
#include "gui/plane/view/ChangedParts.h"

namespace lumo
{

/** The scene editor: sources, speakers, a listener, areas and anchors in the top or front view. Message thread.

    Indices start at 0; invalid indices and non-finite numbers are ignored. Angles in degrees, positions in metres. With
    notify, setters notify the PlaneListeners.
    Data is in objects/, drawing in painting/, mouse, keys and menu in interaction/. */
class PlaneComponent : public PlaneBase
{
public:
    /** A square of the given side, 100 to 1600 pixels; sources are in a ring, speakers in the default layout. */
    PlaneComponent (std::size_t numSources, std::size_t numSpeakers, int size);
    ~PlaneComponent() override;

    // ---- Sources. At most 256.
    void SetNumSources (std::size_t number, bool notify);
    [[nodiscard]] std::size_t GetNumSources() const override { return scene.sources.size(); }
    [[nodiscard]] const qel::Point3& GetSourcePosition (std::size_t index) const override;
    void SetSourcePosition (std::size_t index, const qel::Point3& position, bool notify);
    void SetSourceDistance (std::size_t index, float metres, bool notify);
    void SetSourceAzimuth (std::size_t index, float degrees, bool notify);
    void SetSourceElevation (std::size_t index, float degrees, bool notify);
    /** About the listener's position. */
    void RotateSource (std::size_t index, float yaw, float pitch, float roll, bool notify);
    void RotateAllSources (float yaw, float pitch, float roll, bool notify);

    void SetSourceYaw (std::size_t index, float degrees, bool notify);
    void SetSourceYawMode (std::size_t index, const qel::String& name);
    void SetSourceYawMode (std::size_t index, Plane::Orientation::Mode mode);
    void SetSourceLookAt (std::size_t index, const qel::Point3& target, bool notify);
    /** 10 to 180. */
    void SetSourceAperture (std::size_t index, float degrees, bool notify);
    void SetSourceApertureVisible (std::size_t index, bool visible);
    void SetSourceApertureColour (std::size_t index, juce::Colour colour);
    void SetApertureVisible (bool visible);

    void SetSourceLabel (std::size_t index, const qel::String& label, bool notify);
    void SetAllSourcesLabel (const qel::String& label, bool notify);
    void SetSourceLabelVisible (std::size_t index, bool visible);
    void SetAllSourceLabelsVisible (bool visible);
    void SetSourceLabelColour (std::size_t index, juce::Colour colour);
    void SetSourceCoordinatesVisible (std::size_t index, bool visible);
    void SetSourceColour (std::size_t index, float red, float green, float blue, float alpha, bool notify);
    void SetSourceVisible (std::size_t index, bool visible, bool notify);
    void SetAllSourcesVisible (bool visible, bool notify);
    void SetSourceEditable (std::size_t index, bool editable, bool notify);
    void SetSourcesEditable (bool editable, bool notify);
    /** 0.001 to 1 of the width. */
    void SetSourceProportion (std::size_t index, float proportion);
    void SetAllSourcesProportion (float proportion);
    void SetSourceRadius (std::size_t index, float metres, bool notify);
    void SetAllSourcesRadius (float metres);
    void SetRadiusVisible (bool visible);
    /** -60 to 6 dB. */
    void SetSourceLevel (std::size_t index, float decibels);
    void SetSourcesLevels (const qel::Vector<float>& decibels);

    // ---- Speakers. At most 256.
    void SetNumSpeakers (std::size_t number, bool notify);
    [[nodiscard]] std::size_t GetNumSpeakers() const override { return scene.speakers.size(); }
    [[nodiscard]] const qel::Point3& GetSpeakerPosition (std::size_t index) const override;
    void SetSpeakerPosition (std::size_t index, const qel::Point3& position, bool notify);
    /** As many as there are speakers. */
    void SetSpeakersPositions (const qel::Point3Array& positions, bool notify);

    void SetSpeakerName (std::size_t index, const qel::String& name, bool notify);
    void SetAllSpeakersName (const qel::String& name, bool notify);
    void SetSpeakerNameVisible (std::size_t index, bool visible);
    void SetAllSpeakerNamesVisible (bool visible);
    void SetSpeakerColour (std::size_t index, float red, float green, float blue, float alpha, bool notify);
    void SetSpeakerVisible (std::size_t index, bool visible, bool notify);
    void SetAllSpeakersVisible (bool visible, bool notify);
    /** Ignored while the headphones are visible. */
    void SetSpeakersVisible (bool visible);
    void SetSpeakerEditable (std::size_t index, bool editable, bool notify);
    void SetSpeakersEditable (bool editable, bool notify);
    void SetSpeakerProportion (std::size_t index, float proportion);
    void SetAllSpeakersProportion (float proportion);
    void SetSpeakerLevel (std::size_t index, float decibels);
    void SetSpeakersLevels (const qel::Vector<float>& decibels);
    void SetHullVisible (bool visible);
    void SetTriangulationVisible (bool visible);
    void SetSpeakersRadiusVisible (bool visible);
    void SetSpeakersProjectionVisible (bool visible);

    // ---- The listener. While disabled, its setters do nothing.
    void SetListenerEnabled (bool enabled) noexcept { listenerEnabled = enabled; }
    void SetListenerPosition (const qel::Point3& position, bool notify);
    void SetListenerYaw (float degrees, bool notify);
    void SetListenerPitch (float degrees, bool notify);
    void SetListenerRoll (float degrees, bool notify);
    void SetListenerOrientation (float yaw, float pitch, float roll, bool notify);
    void SetListenerEditable (bool editable);
    void SetListenerVisible (bool visible);
    void SetHeadphonesVisible (bool visible);
    void SetListenerProportion (float proportion);
    [[nodiscard]] bool GetListenerEditable() const noexcept { return surface.listener.editable; }
    [[nodiscard]] bool GetListenerVisible() const noexcept { return surface.listener.visible; }
    [[nodiscard]] bool GetHeadphonesVisible() const noexcept { return surface.listener.headphonesVisible; }

    // ---- Areas.
    void SetNumAreas (std::size_t number);
    void SetAreaPoints (std::size_t index, const qel::Point3Array& points);
    void SetAreaLabel (std::size_t index, const qel::String& label);
    void SetAreaColour (std::size_t index, juce::Colour colour);
    void SetAreaVisible (std::size_t index, bool visible);
    void ClearArea (std::size_t index);
    void ClearAllAreas();
    void SetAreasVisible (bool visible);
    /** Reports which areas contain the listener, each speaker and each source, now and after every move. */
    void SetAreasMonitoring (bool on);

    // ---- Selection, constraints and the automatic zoom.
    void SetSourceSelected (std::size_t index, bool selected, bool notify);
    void SetSelection (const PlaneListener::Flags& flags, bool notify);
    void GetSelection (PlaneListener::Flags& flags) const;
    [[nodiscard]] bool IsSourceSelected (std::size_t index) const;
    /** -1 if none. */
    [[nodiscard]] int GetSelectedSpeaker() const noexcept { return scene.selectedSpeaker; }
    /** Drags rotate about the origin. */
    void SetCircularConstraint (bool on, bool repaintNow = true);
    /** Moves keep a source's distance. */
    void SetRadiusConstraint (bool on);
    /** While on, every frame first zooms to fit the sources. */
    void RequestAutoZoom (bool on);
    void AutoZoom (bool repaintNow);

    void UpdateScreenPositions() override;
    qel::OSCBundle getOscState() override;

    void paint (juce::Graphics& g) override;
    void parentHierarchyChanged() override;
    void mouseDown (const juce::MouseEvent& event) override;
    void mouseDrag (const juce::MouseEvent& event) override;
    void mouseUp (const juce::MouseEvent& event) override;
    void mouseDoubleClick (const juce::MouseEvent& event) override;
    void mouseWheelMove (const juce::MouseEvent& event, const juce::MouseWheelDetails& wheel) override;
    bool keyPressed (const juce::KeyPress& key) override;

    // ==== Names of our own from here on; programs of the family use those above.

    /** For the layers. */
    [[nodiscard]] const Plane::Scene& GetScene() const noexcept { return scene; }
    /** As many as both have. */
    void SetSourcesPositions (qel::Point3Array positions, bool notify);
    /** The snapshots of the sources' positions. */
    [[nodiscard]] qel::CoordinatesSnapshotStore& GetSnapshots() noexcept { return snapshots; }

    // ---- The keyboard and the menu.
    void SelectAllSources();
    void SelectNextSource();
    // Selects a single object, as a click does; objects that are not clickable are ignored.
    void SelectSourceAlone (std::size_t index);
    void SelectSpeakerAlone (std::size_t index);
    void SelectListenerAlone();
    /** Moves the selection by a step as a drag does; under the circular constraint it rotates. */
    void MoveSelection (const qel::Point3& step);
    /** Selects the next clickable one; none after the last. */
    void SelectNextSpeaker();
    void SendKeyCommand (int number);
    /** Handles a menu item. Not all known ids are on the menu; 0 and unknown ids are ignored. */
    void MenuItemChosen (int id);

    // ---- Undo of user edits: exact, bypassing constraints and wrapping, with notification. Angles in radians.
    struct SourcePose
    {
        qel::Point3 position;
        float yaw, yawOffset, aperture;
    };
    void RestoreSource (std::size_t index, const SourcePose& pose);
    void RestoreListener (const qel::Point3& position, float yaw, float pitch, float roll);

private:
    [[nodiscard]] Plane::Source* SourceAt (std::size_t index);
    template <typename Change>
    void ChangeSource (std::size_t index, Change&& change);
    void FinishSourceMove (std::size_t index, juce::Rectangle<int> before, bool notify);

    /** The area that an object is drawn in; empty if nothing needs it. */
    [[nodiscard]] juce::Rectangle<int> PartOf (const Plane::Source& source) const;
    [[nodiscard]] juce::Rectangle<int> PartOfSpeaker (std::size_t index) const;
    [[nodiscard]] juce::Rectangle<int> PartOfListener() const;
    /** Repaints what a change of one object touched, before and after. Many changes between two frames repaint
        everything. */
    void RepaintParts (juce::Rectangle<int> before, juce::Rectangle<int> after);
    /** Common end of the setters that move objects. */
    void RepaintMove (juce::Rectangle<int> before, juce::Rectangle<int> after);
    void MarkStaticParts (juce::Rectangle<int> before, juce::Rectangle<int> after);
    void FinishSourcesEditable (bool notify);
    void UpdateSourceYaw (std::size_t index, bool report);

    [[nodiscard]] Plane::Speaker* SpeakerAt (std::size_t index);
    template <typename Change>
    void ChangeSpeaker (std::size_t index, Change&& change);
    [[nodiscard]] bool StoreSpeakerPosition (std::size_t index, const qel::Point3& position);
    void FinishSpeakersMove (bool notify);
    void SpeakersMoved();
    /** Whether anything drawn depends on the positions of all speakers. */
    [[nodiscard]] bool ShowsSpeakerGeometry() const noexcept;

    void SetListenerAngle (float& stored, float degrees, bool notify, void (PlaneListener::*told) (float));
    template <typename Change>
    void ChangeListener (Change&& change);

    template <typename Change>
    void ChangeArea (std::size_t index, Change&& change);
    [[nodiscard]] Plane::AreaMonitor::Reports AreaReports();

    /** The present zoom for a scene without sources. */
    [[nodiscard]] float FittingZoom() const;
    void AutoZoomBeforePainting (const juce::Graphics& g);
    void UpdateGeometryBeforePainting();
    void DrawLayers (juce::Graphics& g);
    void DrawParts (juce::Graphics& g, const juce::RectangleList<int>& parts);
    template <typename Call>
    void TellFromPaint (Call&& call);
    void NotifySelectionChanged();

    /** For changes that may return false: nothing happened. */
    template <typename Change>
    void ChangeSelection (Change&& change);
    template <typename Take>
    void SelectAlone (Take&& take);
    [[nodiscard]] Plane::Selection::Hit HitUnder (juce::Point<float> pixels) const;
    [[nodiscard]] Plane::Speaker* SelectedSpeaker();
    /** Repaints and notifies if the selected speaker is another one. */
    void FinishSpeakerSelection (int before);
    void BeginLassoOrDrag();
    void DragLasso (juce::Point<float> pixels);
    void TurnDragged (const qel::Point3& from, const qel::Point3& to);
    void MoveDragged (const qel::Point3& step, const juce::ModifierKeys& mods);
    [[nodiscard]] bool TurnWheelOnSelection (float delta, const juce::ModifierKeys& mods);
    template <typename Act>
    void ForSelectedSources (Act&& act);
    template <typename Move>
    void MoveSelectedSources (Move&& move);

    // Accessibility: the scene, with one element per object.
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;
    std::unique_ptr<juce::ComponentTraverser> createFocusTraverser() override;
    void MakeElements();
    void SpeakSelection();

    Plane::Scene scene;
    Plane::Selection selection{ scene, surface.options.listenerSelected };
    Plane::AreaMonitor areaMonitor{ scene, surface.listener, surface.options.areasMonitoring, AreaReports() };
    Plane::Pointer pointer;
    qel::CoordinatesSnapshotStore snapshots;
    bool listenerEnabled = true;
    bool autoZoomRequested = false;
    Plane::ChangedParts changedParts;
    juce::OwnedArray<juce::Component> elements; // empty until a screen reader asks

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (PlaneComponent)
};

}
