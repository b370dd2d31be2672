#pragma once
#include "host/api/MaxApi.h"
#include <vector>

struct MaxOperation
{
    const char* name;
    void (*function)();
};

/** Every operation that host/api declares; the table is made from the declarations. */
const std::vector<MaxOperation>& declaredMaxOperations();
