#include "files/OrvaneDspFileWriter.h"
#include "common/OrvaneDspException.h"

#include <algorithm>

namespace qel
{

namespace
{

filesystem::Handle openInItsFolder (const File& file)
{
    const auto folder = file.parent();
    if (! folder.createFolder())
        throw Exception ("Couldnt create or write in folder " + folder.path().quoted(), QEL_HERE);
    return filesystem::openForAppending (file.path());
}

}

FileWriter::FileWriter (const File& file) : target (file), handle (openInItsFolder (file))
{
    writePosition = static_cast<std::uint64_t> (std::max<std::int64_t> (handle.size(), 0));
}

bool FileWriter::write (const MemoryOutput& bytes)
{
    const auto written = handle.write (bytes.data(), bytes.size());
    writePosition += written;
    return handle.isOpen() && written == bytes.size();
}

bool FileWriter::finish() { return handle.finish(); }

}
