#pragma once
#include "host/api/MaxApi.h"
#include <vector>

struct MaxOperation
{
    const char* name;
    void (*function)();
};

/** Every operation declared in host/api; generated from the declarations. */
const std::vector<MaxOperation>& declaredMaxOperations();
