#include "gui/plane/objects/Listener.h"

namespace lumo::Plane
{

Plane::Icon Listener::Icon (bool topView) const noexcept
{
    const auto bare = topView ? HeadKind::top : HeadKind::front;
    const auto withHeadphones = topView ? HeadKind::topWithHeadphones : HeadKind::frontWithHeadphones;
    return { Plane::Icon::Kind::head, {}, headphonesVisible ? withHeadphones : bare };
}

}
