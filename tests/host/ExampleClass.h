#pragma once
#include "host/api/MaxApi.h"

/** A small external with every kind of message and attribute, written the way Max externals are. */
struct t_example
{
    t_object ob;
    void* dump;
    void* out;
    t_clong count;
    t_clong guard; // next to a "long" attribute: a write 8 bytes wide would change it
    float level;
    double fine;
    char flag;
    t_symbol* word;
    float pair[2];
    float series[4];
    t_clong seriesCount;
    t_clong seriesGuard;
    t_clong custom;    // set through an accessor of its own
    t_clong lastCount; // the count passed to the last accessor or message
    t_clong ranOnMain; // whether the last deferred call ran on the main thread
    void* queueElement;
};

/** Entry point: registers "bench.example". */
t_clong example_main (void*);

/** How many objects of the class have been freed. */
int exampleObjectsFreed();
