#pragma once
#include "common/OrvaneDspException.h"
#include "files/OrvaneDspFile.h"

namespace qel::exceptions
{

/** A file that was to be read is not there. */
class NoSuchFile : public Exception
{
public:
    NoSuchFile (const File& file, const SourceLocation& where)
        : Exception ("Could not find file \"" + file.path() + "\"", where)
    {}
};

}
