#pragma once
#include "common/OrvaneDspException.h"

#include <utility>

namespace qel
{

/** How a guard words a standard exception that is not about memory. */
enum class GuardText
{
    whatOccurred, ///< "exception " + what() + " occurred"
    whatAlone     ///< what()
};

/** To be called while an exception is handled: raises the library's own in its place. std::bad_alloc becomes
    "out of memory", another standard exception keeps its text, anything else becomes exceptions::Unknown. */
[[noreturn]] void raiseGuarded (const SourcePlace& where, GuardText text);

/** Runs an operation that may grow storage, and turns what it raises into the library's own exceptions.
    Costs nothing when all goes well. */
template <typename Operation>
void guardedGrowth (const SourcePlace& where, GuardText text, Operation&& operation)
{
    try {
        std::forward<Operation> (operation)();
    } catch (...) {
        raiseGuarded (where, text);
    }
}

}
