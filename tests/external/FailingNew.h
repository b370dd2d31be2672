#pragma once

/** Lets one allocation of this thread by operator new, malloc or realloc fail: of those that the product's own functions ask for after the
    call, the one with this number, from 0. What the host and JUCE ask for does not count. A negative number lets none
    fail. Linking this replaces operator new in the whole program, and asks for the linker's --wrap for the others. */
void failAllocation (int number) noexcept;

/** True if it has failed since the last failAllocation(). */
[[nodiscard]] bool allocationHasFailed() noexcept;
