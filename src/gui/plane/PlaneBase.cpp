#include "gui/plane/PlaneBase.h"

#include "gui/plane/Colours.h"
#include "gui/plane/Text.h"
#include "gui/scene/Finite.h"
#include "gui/scene/Limits.h"

#include <utility>

namespace lumo
{

using namespace Plane;

namespace
{

const qel::Point3 origin;

}

PlaneBase::PlaneBase (const juce::String& name) : ComponentWithOscInterface (name)
{
    setOpaque (surface.background.colour.isOpaque());
    surface.viewTransform.Update (getWidth(), getHeight());
}

const qel::Point3& PlaneBase::GetSourcePosition (std::size_t) const { return origin; }
const qel::Point3& PlaneBase::GetSpeakerPosition (std::size_t) const { return origin; }

void PlaneBase::GetOptions (PlaneOptions& copy) const
{
    const bool listenerSelected = copy.listenerSelected;
    copy = surface.options;
    copy.listenerSelected = listenerSelected;
    copy.listenerEditable = surface.listener.editable;
    copy.listenerVisible = surface.listener.visible;
    copy.headphonesVisible = surface.listener.headphonesVisible;
    copy.backgroundImageVisible = surface.backgroundImage.visible;
    copy.shoeboxVisible = surface.shoebox.visible;
    copy.anchorsVisible = surface.anchors.anchorsVisible;
    copy.anchorsLabelVisible = surface.anchors.anchorsLabelVisible;
    copy.legendVisible = surface.legend.visible;
    copy.topView = surface.viewTransform.topView;
    copy.frontView = ! copy.topView;
    copy.zoom = surface.viewTransform.zoom;
    copy.angularDivisionsVisible = surface.grid.angularDivisionsVisible;
    copy.gridMode = surface.grid.mode;
    copy.gridSpacing = surface.grid.spacing;
    copy.gridNumLines = surface.grid.numLines;
    copy.gridNumAngularDivisions = surface.grid.numAngularDivisions;
    copy.gridColour = surface.grid.colour;
    copy.gridDashed = surface.grid.dashed;
}

// ---- Listeners, and what setters have in common

void PlaneBase::AddListener (PlaneListener* listener) { listeners.add (listener); }
void PlaneBase::RemoveListener (PlaneListener* listener) { listeners.remove (listener); }

void PlaneBase::NotifyOptionsChanged()
{
    Notify ([this] (PlaneListener& listener) { listener.OptionsChanged (*this); });
}

void PlaneBase::SettingChanged()
{
    MarkStaticLayerDirty();
    NotifyOptionsChanged();
    repaint();
}

void PlaneBase::BeginFrame (const juce::Graphics& g)
{
    surface.pixels = PixelGrid::Of (*this, g);
    if (! surface.icons) {
        surface.icons.emplace();
        surface.lines.emplace();
    }
}

void PlaneBase::SetNumber (float& stored, float value)
{
    if (AreFinite (value))
        SetOption (stored, value);
}

// ---- The view

void PlaneBase::resized()
{
    UpdateTransform();
    staticCache.Resize (getWidth(), getHeight());
}

void PlaneBase::parentHierarchyChanged()
{
    ComponentWithOscInterface::parentHierarchyChanged();
    if (getPeer() != nullptr)
        return;
    staticCache.Release();
    surface.icons.reset();
    surface.lines.reset();
}

void PlaneBase::UpdateTransform()
{
    surface.viewTransform.Update (getWidth(), getHeight());
    UpdateScreenPositions();
    MarkStaticLayerDirty();
}

void PlaneBase::UpdateScreenPositions()
{
    const auto& view = surface.viewTransform;
    surface.listener.screenPosition = OnScreen (view, surface.listener.position);
    for (auto& anchor : surface.anchors.items)
        anchor.screenPosition = OnScreen (view, anchor.position);
}

void PlaneBase::SetViewerVisible (bool visible)
{
    surface.viewerVisible = visible;
    repaint();
}

void PlaneBase::SetTopView (bool on)
{
    if (surface.viewTransform.topView == on)
        return;
    surface.viewTransform.topView = on;
    UpdateScreenPositions();
    SettingChanged();
}

void PlaneBase::SetFrontView (bool on) { SetTopView (! on); }
void PlaneBase::SetViewpoint (const qel::String& name) { SetTopView (name != "front"); }

bool PlaneBase::StoreZoom (float factor)
{
    if (! zoom.Store (factor))
        return false;
    UpdateTransform();
    return true;
}

void PlaneBase::SetZoom (float factor, bool repaintNow)
{
    if (! StoreZoom (factor))
        return;
    if (repaintNow)
        repaint();
    NotifyOptionsChanged();
}

void PlaneBase::SetOffset (float& stored, float pixels)
{
    if (! AreFinite (pixels) || std::exchange (stored, pixels) == pixels) // replaces 0 by -0 too, and back
        return;
    UpdateScreenPositions();
    MarkStaticLayerDirty();
    repaint();
}

void PlaneBase::SetXOffset (float pixels) { SetOffset (surface.viewTransform.xOffset, pixels); }
void PlaneBase::SetYOffset (float pixels) { SetOffset (surface.viewTransform.yOffset, pixels); }
void PlaneBase::SetZOffset (float pixels) { SetOffset (surface.viewTransform.zOffset, pixels); }

void PlaneBase::ShiftView (float right, float up)
{
    auto& view = surface.viewTransform;
    SetXOffset (view.xOffset + right);
    if (view.topView)
        SetYOffset (view.yOffset + up);
    else
        SetZOffset (view.zOffset + up);
    NotifyOptionsChanged();
}

void PlaneBase::SetMarkerProportion (float proportion)
{
    if (! AreFinite (proportion))
        return;
    surface.viewTransform.markerProportion = ClampProportion (proportion);
    UpdateTransform();
    repaint();
}

// ---- The background

void PlaneBase::SetBackgroundColour (float red, float green, float blue, float alpha)
{
    if (const auto colour = ColourFrom (red, green, blue, alpha))
        SetBackgroundColour (*colour);
}

void PlaneBase::SetBackgroundColour (juce::Colour colour)
{
    setOpaque (colour.isOpaque());
    SetOption (surface.background.colour, colour);
}

void PlaneBase::SetBackgroundImageFile (const juce::File& file)
{
    surface.backgroundImage.Load (file);
    SettingChanged();
}

void PlaneBase::ClearBackgroundImage()
{
    surface.backgroundImage.image = {};
    SettingChanged();
}

void PlaneBase::SetBackgroundImageOpacity (float opacity)
{
    SetNumber (surface.backgroundImage.opacity, juce::jlimit (0.0f, 1.0f, opacity));
}

void PlaneBase::SetBackgroundImageScale (float percent)
{
    if (! AreFinite (percent))
        return;
    surface.backgroundImage.SetScale (percent * 0.01f);
    SettingChanged();
}

void PlaneBase::SetBackgroundImageXOffset (float offset) { SetNumber (surface.backgroundImage.xOffset, offset); }
void PlaneBase::SetBackgroundImageYOffset (float offset) { SetNumber (surface.backgroundImage.yOffset, offset); }
void PlaneBase::SetBackgroundImageAngle (float radians) { SetNumber (surface.backgroundImage.angle, radians); }
void PlaneBase::SetBackgroundImageQuality (int quality)
{
    SetOption (surface.backgroundImage.quality, juce::jlimit (0, 2, quality));
}
void PlaneBase::SetBackgroundImageQuality (const qel::String& name)
{
    SetBackgroundImageQuality (BackgroundImage::QualityNamed (name));
}
void PlaneBase::SetBackgroundImageVisible (bool visible) { SetOption (surface.backgroundImage.visible, visible); }

// ---- The grid and the legend

void PlaneBase::SetGridMode (const qel::String& name) { SetGridMode (Grid::ModeNamed (name)); }
void PlaneBase::SetGridMode (std::int32_t mode)
{
    SetOption<std::int32_t> (surface.grid.mode, mode >= 0 && mode < Grid::numModes ? mode : Grid::circular);
}
void PlaneBase::SetGridSpacing (float metres) { SetNumber (surface.grid.spacing, juce::jlimit (0.1f, 20.0f, metres)); }
void PlaneBase::SetGridNumLines (std::uint32_t lines) { SetOption (surface.grid.numLines, std::min (lines, 100u)); }
void PlaneBase::SetGridNumAngularDivisions (std::uint32_t divisions)
{
    SetOption (surface.grid.numAngularDivisions, std::min (divisions, 360u));
}
void PlaneBase::SetAngularDivisionsVisible (bool visible) { SetOption (surface.grid.angularDivisionsVisible, visible); }
void PlaneBase::SetGridDashed (bool dashed) { SetOption (surface.grid.dashed, dashed); }

void PlaneBase::SetGridColour (float red, float green, float blue, float alpha, bool notify)
{
    if (const auto colour = ColourFrom (red, green, blue, alpha))
        SetGridColour (*colour, notify);
}

void PlaneBase::SetGridColour (juce::Colour colour, bool notify)
{
    surface.grid.colour = colour;
    MarkStaticLayerDirty();
    if (notify)
        Notify ([c = ToCore (colour)] (PlaneListener& listener) {
            listener.GridColourChanged (c.red, c.green, c.blue, c.alpha);
        });
    repaint();
}

void PlaneBase::SetLegendVisible (bool visible) { SetOption (surface.legend.visible, visible); }
void PlaneBase::SetSpeakersLevelsVisible (bool visible) { SetOption (surface.options.speakersLevelsVisible, visible); }
void PlaneBase::SetSourcesLevelsVisible (bool visible) { SetOption (surface.options.sourcesLevelsVisible, visible); }

// ---- Anchors and the shoebox

void PlaneBase::SetNumAnchors (std::size_t number)
{
    surface.anchors.items.resize (std::min (number, Anchors::largestCount));
    UpdateScreenPositions();
    SettingChanged();
}

void PlaneBase::SetAnchorPosition (std::size_t index, const qel::Point3& position)
{
    if (index >= surface.anchors.items.size() || ! qel::isFinite (position))
        return;
    auto& anchor = surface.anchors.items[index];
    anchor.position = position;
    anchor.screenPosition = OnScreen (surface.viewTransform, position);
    MarkStaticLayerDirty();
    repaint();
}

void PlaneBase::SetAnchorName (std::size_t index, const qel::String& name)
{
    if (index >= surface.anchors.items.size())
        return;
    surface.anchors.items[index].name = FromCore (name);
    MarkStaticLayerDirty();
    repaint();
}

void PlaneBase::SetAnchorsVisible (bool visible) { SetOption (surface.anchors.anchorsVisible, visible); }
void PlaneBase::SetAnchorsLabelVisible (bool visible) { SetOption (surface.anchors.anchorsLabelVisible, visible); }

void PlaneBase::SetShoebox (const qel::Point3& corner1, const qel::Point3& corner2)
{
    if (! qel::isFinite (corner1) || ! qel::isFinite (corner2))
        return;
    surface.shoebox.corners = qel::Point3Array::rectangle (corner1, corner2);
    SettingChanged();
}

void PlaneBase::SetShoeboxVisible (bool visible) { SetOption (surface.shoebox.visible, visible); }

}
