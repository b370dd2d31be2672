#pragma once
#include "external/HalcyraControl.h"
#include "support/bench/BenchTest.h"

/** A test with `halcyra~.control` on the bench, deferred calls queued or run at once. */
class ControlTest : public BenchTestInBothModes
{
protected:
    ControlTest() { patch.load (ext_main); }

    /** A new object whose initial output has been discarded. */
    TestBox settled (const std::string& words = "")
    {
        auto box = make ("halcyra~.control " + words);
        settle();
        transcript();
        return box;
    }

    /** The object's output for a message. */
    Messages saying (TestBox& box, const std::string& message)
    {
        box.send (message);
        settle();
        return box.console();
    }

    /** The state as pattr stores it. */
    static std::string stateOf (TestBox& box)
    {
        return bench::textOf (bench::stateOf (*box).value_or (bench::Atoms()));
    }
};

#define CONTROL_TESTS(name)                                                                                            \
    class name : public ControlTest                                                                                    \
    {};                                                                                                                \
    INSTANTIATE_TEST_SUITE_P (DeferMedium, name, bothDeferModes, deferModeName)
