#pragma once
#include "external/HalcyraControl.h"

namespace halcyra
{

/** Copies the plane's options into the attributes' mirrors, and touches the attributes that changed. Main thread. */
void mirrorViewerOptions (t_halcyra_control* x);

}
