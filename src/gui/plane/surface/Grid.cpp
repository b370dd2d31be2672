#include "gui/plane/surface/Grid.h"

namespace lumo::Plane
{

namespace
{

struct Name
{
    const char* name;
    std::int32_t mode;
};

constexpr Name namesWritten[] = {
    { "none", Grid::none }, { "circular", Grid::circular }, { "square", Grid::square }, { "box", Grid::square }
};

}

std::int32_t Grid::ModeNamed (const qel::String& name)
{
    for (const auto& row : namesWritten)
        if (name == row.name)
            return row.mode;
    return circular;
}

qel::String Grid::NameOf (std::int32_t mode)
{
    return mode == none ? "none" : mode == square ? "cartesian" : "circular";
}

}
