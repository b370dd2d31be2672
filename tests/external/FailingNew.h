#pragma once

/** Makes one allocation of this thread by operator new, malloc or realloc fail: the one with this number, from 0, among
    those that the product's own functions make after the call. Allocations of the host and JUCE do not count. A
    negative number disables it. Linking this replaces operator new in the whole program, and requires the linker's
    --wrap for the others. */
void failAllocation (int number) noexcept;

/** Whether it has failed since the last failAllocation(). */
[[nodiscard]] bool allocationHasFailed() noexcept;
