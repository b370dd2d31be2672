#pragma once
#include "gui/plane/PlaneComponent.h"

#include <memory>

/** Draws a plane's foreground with cairo over an image of the static layer, for comparison. The same shapes: a fan, a
    shaded ball with its rim and a label per source. */
class CairoScene
{
public:
    explicit CairoScene (int side);
    ~CairoScene();

    CairoScene (const CairoScene&) = delete;
    CairoScene& operator= (const CairoScene&) = delete;

    void DrawFrame (const lumo::PlaneComponent& plane);

private:
    struct Surfaces;
    std::unique_ptr<Surfaces> surfaces;
};
