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

/** Call inside a catch block: throws the library's own exception instead. std::bad_alloc becomes
    "out of memory", other standard exceptions keep their text, anything else becomes exceptions::Unknown. */
[[noreturn]] void raiseGuarded (const SourcePlace& where, GuardText text);

/** Runs an operation that may allocate, and translates what it throws into the library's own exceptions.
    Costs nothing on success. */
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
