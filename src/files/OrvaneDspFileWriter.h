#pragma once
#include "files/OrvaneDspFile.h"
#include "files/OrvaneDspFileHandle.h"
#include "memory/OrvaneDspMemoryOutput.h"

#include <cstdint>

namespace qel
{

/** Writes at the end of a file, which it makes if need be, with its folder. Others may read the file meanwhile. */
class FileWriter
{
public:
    /** Raises "Couldnt create or write in folder " and the quoted folder. A file that can't be opened shows itself
        when it is written to. */
    explicit FileWriter (const File& file);

    /** Whether all bytes went out. */
    bool write (const MemoryOutput& bytes);
    /** Closes the file, with all of it on the disk; false if that failed. Without it the destructor closes. */
    bool finish();

    [[nodiscard]] const File& file() const noexcept { return target; }
    /** Where the next byte goes, counted from the file's start. */
    [[nodiscard]] std::uint64_t position() const noexcept { return writePosition; }

private:
    File target;
    std::uint64_t writePosition = 0;
    FileHandle handle;
};

}
