#pragma once
#include "gui/plane/PlaneComponent.h"

#include <memory>

/** The foreground of a plane drawn by cairo, over a picture of the static layer: a peer to measure against. The same
    shapes: a fan, a shaded ball with its rim and a label for each source. */
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
