#pragma once
#include "host/bench/Bench.h"
#include "host/bench/Inspect.h"

#include <filesystem>
#include <string>
#include <vector>

/** Makes an empty folder the current one for its lifetime, for the objects' files. */
class ScratchFolder
{
public:
    ScratchFolder();
    ~ScratchFolder();

    ScratchFolder (const ScratchFolder&) = delete;
    ScratchFolder& operator= (const ScratchFolder&) = delete;

private:
    const std::filesystem::path before;
};

/** The object on the bench, with windows in memory. Events are discarded. */
class ControlFuzz
{
public:
    explicit ControlFuzz (bench::DeferMedium deferMedium = bench::DeferMedium::queue);

    /** All words of the class: messages, attributes, symbols; except those that name paths. */
    static const std::vector<std::string>& words();
    /** The words that can be sent: messages and attributes. */
    static const std::vector<std::string>& selectors();
    static const std::vector<std::string>& attributes();

    /** Aborts if any number in the object's state is infinite or NaN. */
    static void requireFiniteState (const bench::Box& box);

    bench::Bench patch;
};

/** Aborts, as a sanitizer does, if the condition is false. */
void require (bool holds);
