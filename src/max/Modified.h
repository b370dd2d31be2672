#pragma once
#include "max/ObjectCall.h"
#include "max/OrvanemaxSymbols.h"

namespace orvanemax
{

/** Call last after changing an object's state: notifies clients that store it, such as pattr. Does nothing if earlier
    output has freed the object. Main thread. */
inline void notifyModified (void* object)
{
    if (! objectIsGone())
        object_notify (object, modified(), nullptr);
}

}
