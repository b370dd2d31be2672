#pragma once
#include "host/api/MaxApi.h"

/** A small external of every kind of message and attribute, written as Max externals are: the bench's guinea pig. */
struct t_example
{
    t_object ob;
    void* dump;
    void* out;
    t_clong count;
    t_clong guard; // next to a "long" attribute: an access 8 bytes wide would hit it
    float level;
    double fine;
    char flag;
    t_symbol* word;
    float pair[2];
    float series[4];
    t_clong seriesCount;
    t_clong seriesGuard;
    t_clong custom;    // set through an accessor of its own
    t_clong lastCount; // the count that the last accessor or message got
    t_clong ranOnMain; // whether the last deferred call ran there
    void* queueElement;
};

/** The entry point: registers "bench.example". */
t_clong example_main (void*);

/** How many objects of the class were freed so far. */
int exampleObjectsFreed();
