#include "MaxOperations.h"
#include <gmock/gmock.h>
#include <set>

TEST (MaxOperations, AreAllThereAndNoneStandsForAnother)
{
    std::set<void (*)()> functions;
    for (const auto& operation : declaredMaxOperations())
        EXPECT_TRUE (functions.insert (operation.function).second) << operation.name;
    EXPECT_GT (functions.size(), 100u);
}
