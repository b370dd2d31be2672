#pragma once
#include "host/bench/Bench.h"
#include "host/bench/Inspect.h"

#include <filesystem>
#include <string>
#include <vector>

/** While it lives, an empty folder is the current one: what objects write, and read. */
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

/** The object on the bench, with windows in memory. Events are thrown away. */
class ControlFuzz
{
public:
    explicit ControlFuzz (bench::DeferMedium deferMedium = bench::DeferMedium::queue);

    /** All words that the class knows: messages, attributes, symbols. Without those that name paths. */
    static const std::vector<std::string>& words();
    /** Those that can be sent: messages and attributes. */
    static const std::vector<std::string>& selectors();
    static const std::vector<std::string>& attributes();

    /** Ends the process if one number of the object's state is infinite or none. */
    static void requireFiniteState (const bench::Box& box);

    bench::Bench patch;
};

/** Ends the process, as a sanitizer does, if something does not hold. */
void require (bool holds);
