#pragma once
#include "common/OrvaneDspListeners.h"
#include "gui/plane/ComponentWithOscInterface.h"
#include "gui/plane/PlaneListener.h"
#include "gui/plane/surface/Surface.h"
#include "gui/plane/view/StaticCache.h"
#include "gui/scene/Zoom.h"

namespace lumo
{

/** The scene editor's surface: view, zoom, grid, axes, legend, background, anchors and shoebox. Setters clamp, ignore
    non-finite values, and repaint; most notify OptionsChanged. Message thread. */
class PlaneBase : public ComponentWithOscInterface
{
public:
    explicit PlaneBase (const juce::String& name);

    /** For the layers. */
    [[nodiscard]] const Plane::Surface& GetSurface() const noexcept { return surface; }
    /** Copies the view's flags, except the listener's selection. */
    void GetOptions (PlaneOptions& copy) const;

    /** Listeners are not owned, and are called in the order added. Null and duplicates are ignored. */
    void AddListener (PlaneListener* listener);
    void RemoveListener (PlaneListener* listener);

    /** The scene as the surface sees it: by default everything is at the origin. */
    [[nodiscard]] virtual const qel::Point3& GetSourcePosition (std::size_t index) const;
    [[nodiscard]] virtual const qel::Point3& GetSpeakerPosition (std::size_t index) const;
    [[nodiscard]] virtual std::size_t GetNumSources() const { return 0; }
    [[nodiscard]] virtual std::size_t GetNumSpeakers() const { return 0; }
    [[nodiscard]] const Plane::Listener& GetListener() const noexcept { return surface.listener; }
    [[nodiscard]] const qel::Point3& GetListenerPosition() const noexcept { return surface.listener.position; }

    // The view. Offsets in pixels, positive right and up.
    void SetViewerVisible (bool visible);
    void SetTopView (bool on);
    void SetFrontView (bool on);
    /** "front" selects the front view, any other text the top view. */
    void SetViewpoint (const qel::String& name);
    void SetZoom (float factor, bool repaintNow);
    void SetZoomLock (bool locked) { surface.options.zoomLocked = locked; }
    void SetRightClickLock (bool locked) { surface.options.rightClickLocked = locked; }
    void SetXOffset (float pixels);
    void SetYOffset (float pixels);
    void SetZOffset (float pixels);
    /** Adds pixels to the offsets of the current view, and notifies OptionsChanged. */
    void ShiftView (float right, float up);
    /** 0.001 to 1 of the width: the scene's margin, and the size of anchors and label boxes. */
    void SetMarkerProportion (float proportion);

    // The background. Angle in radians, offsets as proportions of the scaled image.
    void SetBackgroundColour (float red, float green, float blue, float alpha);
    void SetBackgroundColour (juce::Colour colour);
    void SetBackgroundImageFile (const juce::File& file);
    void ClearBackgroundImage();
    void SetBackgroundImageOpacity (float opacity);
    void SetBackgroundImageScale (float percent);
    void SetBackgroundImageXOffset (float offset);
    void SetBackgroundImageYOffset (float offset);
    void SetBackgroundImageAngle (float radians);
    void SetBackgroundImageQuality (int quality);
    void SetBackgroundImageQuality (const qel::String& name);
    void SetBackgroundImageVisible (bool visible);
    [[nodiscard]] bool GetBackgroundImageVisible() const noexcept { return surface.backgroundImage.visible; }

    // The grid. Up to 100 lines, up to 360 divisions, spacing 0.1 to 20 metres.
    void SetGridMode (const qel::String& name);
    void SetGridMode (const char* name) { SetGridMode (qel::String (name)); }
    void SetGridMode (std::int32_t mode);
    void SetGridSpacing (float metres);
    void SetGridNumLines (std::uint32_t lines);
    void SetGridNumAngularDivisions (std::uint32_t divisions);
    void SetAngularDivisionsVisible (bool visible);
    void SetGridDashed (bool dashed);
    /** Notifies GridColourChanged instead of OptionsChanged. */
    void SetGridColour (float red, float green, float blue, float alpha, bool notify);
    void SetGridColour (juce::Colour colour, bool notify);

    void SetLegendVisible (bool visible);
    [[nodiscard]] bool GetLegendVisible() const noexcept { return surface.legend.visible; }
    void SetSpeakersLevelsVisible (bool visible);
    void SetSourcesLevelsVisible (bool visible);

    void SetNumAnchors (std::size_t number);
    void SetAnchorPosition (std::size_t index, const qel::Point3& position);
    void SetAnchorName (std::size_t index, const qel::String& name);
    void SetAnchorsVisible (bool visible);
    void SetAnchorsLabelVisible (bool visible);
    [[nodiscard]] std::size_t GetNumAnchors() const noexcept { return surface.anchors.items.size(); }
    [[nodiscard]] bool GetAnchorsVisible() const noexcept { return surface.anchors.anchorsVisible; }
    [[nodiscard]] bool GetAnchorsLabelVisible() const noexcept { return surface.anchors.anchorsLabelVisible; }

    void SetShoebox (const qel::Point3& corner1, const qel::Point3& corner2);
    void SetShoeboxVisible (bool visible);
    [[nodiscard]] bool GetShoeboxVisible() const noexcept { return surface.shoebox.visible; }

    /** In mode 0 every setter repaints; in any other the caller repaints after moving objects. */
    void SetRepaintMode (std::int32_t mode) noexcept { repaintMode = mode; }
    void SetImmediateRepaint (bool on) noexcept { repaintMode = on ? 0 : 1; }

    bool processOscMessage (const qel::OSCMessage& message) override;
    qel::OSCBundle getOscState() override;

    void resized() override;
    /** Frees cached images when removed from a window. */
    void parentHierarchyChanged() override;

protected:
    /** Recomputes cached screen positions of objects. */
    virtual void UpdateScreenPositions();

    template <typename Call>
    void Notify (Call&& call)
    {
        listeners.call (call);
    }
    void NotifyOptionsChanged();
    /** Common end of most setters. */
    void SettingChanged();
    /** Compares and stores; always notifies, but repaints only on a change. */
    template <typename Value>
    void SetOption (Value& stored, const Value& value);
    [[nodiscard]] bool SettersRepaint() const noexcept { return repaintMode == 0; }
    void MarkStaticLayerDirty() noexcept { staticCache.MarkDirty(); }
    /** Call at the start of a frame. */
    void BeginFrame (const juce::Graphics& g);
    /** Returns what Zoom::Store does, and updates the view. */
    bool StoreZoom (float factor);

    Plane::Surface surface;
    Plane::Zoom zoom{ surface.viewTransform, surface.options.zoomLocked };
    Plane::StaticCache staticCache;

private:
    void UpdateTransform();
    /** For external numbers: ignores non-finite ones. */
    void SetNumber (float& stored, float value);
    void SetOffset (float& stored, float pixels);

    qel::ListenersInOrder<PlaneListener> listeners;
    std::int32_t repaintMode = 0;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (PlaneBase)
};

template <typename Value>
void PlaneBase::SetOption (Value& stored, const Value& value)
{
    if (stored == value)
        return NotifyOptionsChanged();
    stored = value;
    SettingChanged();
}

}
