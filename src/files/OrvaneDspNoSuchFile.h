#pragma once
#include "common/OrvaneDspException.h"
#include "files/OrvaneDspFile.h"

namespace qel::exceptions
{

/** The file to read does not exist. */
class NoSuchFile : public Exception
{
public:
    NoSuchFile (const File& file, const SourceLocation& where)
        : Exception ("Could not find file \"" + file.path() + "\"", where)
    {}
};

}
