#pragma once
#include "max/ObjectCall.h"
#include "max/OrvanemaxSymbols.h"

namespace orvanemax
{

/** The last act of whatever changes an object's state: tells those who keep it, such as pattr. An object that was freed
    by what spoke before has nobody to tell. Main thread. */
inline void notifyModified (void* object)
{
    if (! objectIsGone())
        object_notify (object, modified(), nullptr);
}

}
