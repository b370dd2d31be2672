#pragma once
#include "gui/scene/ViewTransform.h"

namespace lumo::Plane
{

/** The rules for the zoom of a view: its limits, its lock, and the zoom that fits a point. Stores nothing: the factor
    is the view's, the lock is the caller's. Does not notify. */
class Zoom
{
public:
    /** Both must outlive this object. */
    Zoom (ViewTransform& viewToZoom, const bool& lockedFlag) : view (viewToZoom), locked (lockedFlag) {}

    /** Clamps and stores; false if the request is not finite, equals the present zoom, or the zoom is locked. True even
        if clamping restores the present zoom, because the requester must be notified of it. */
    bool Store (float factor);

    /** The zoom at which a point in metres is just inside the component, searched from the present zoom in steps of a
        hundredth. */
    [[nodiscard]] float Fitting (const qel::Point3& point) const;

private:
    ViewTransform& view;
    const bool& locked;
};

}
