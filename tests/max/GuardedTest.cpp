#include "max/Guarded.h"

#include "common/OrvaneDspException.h"
#include "max/HostFunction.h"
#include "support/bench/BenchTest.h"

#include <stdexcept>

namespace
{

/** What an object's function throws, by row number. */
struct Thrown
{
    void (*fail)();
    const char* reported;
};

const Thrown failures[] = {
    { [] { throw qel::Exception ("it is broken", QEL_HERE); }, "error it is broken" },
    { [] { throw std::bad_alloc(); }, "error out of memory : std::bad_alloc" },
    { [] { throw std::runtime_error ("its words stay here"); }, "error unknown exception" },
    { [] { throw 1; }, "error unknown exception" },
};

const Thrown* next = failures;

t_max_err setter (void*, void*, t_clong, t_atom*)
{
    next->fail();
    return MAX_ERR_NONE;
}
void* makeNothing (t_symbol*, t_clong, t_atom*)
{
    next->fail();
    return &next;
}

class Guarded : public BenchTest
{};

TEST_F (Guarded, EveryKindOfExceptionIsReportedAndGoesNoFurther)
{
    for (const auto& failure : failures) {
        next = &failure;
        orvanemax::guarded (nullptr, [&] { failure.fail(); });
        EXPECT_EQ (console(), Messages{ failure.reported });
        EXPECT_EQ (orvanemax::HostEntry<setter>::call (nullptr, nullptr, 0, nullptr), MAX_ERR_GENERIC);
        EXPECT_EQ (console(), Messages{ failure.reported });
        EXPECT_EQ (orvanemax::HostConstructor<makeNothing>::call (nullptr, 0, nullptr), nullptr);
        EXPECT_EQ (console(), Messages{ failure.reported });
    }
}

}
