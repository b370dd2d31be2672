#pragma once
#include "host/api/MaxConstants.h"
#include "host/api/MaxLinkage.h"
#include "host/api/MaxTypes.h"

/** Dialogs and paths. A folder is identified by a short number, a file by folder and name. Names are UTF-8 in buffers
    of MAX_FILENAME_CHARS, full paths in buffers of MAX_PATH_CHARS. Main thread. */
extern "C"
{

    // 0: chosen; anything else: cancelled. Null and 0 for the types allow all.
    MAX_API std::int16_t open_dialog (char* name, std::int16_t* path, t_fourcc* outtype, t_fourcc* types,
                                      std::int16_t ntypes);
    MAX_API std::int16_t saveasdialog_extended (char* name, std::int16_t* path, t_fourcc* outtype, t_fourcc* types,
                                                std::int16_t ntypes); // `name` is the default on entry

    /** Searches for a file by name; writes into `name`, so never pass a symbol's text. 0: found. */
    MAX_API std::int16_t locatefile_extended (char* name, std::int16_t* path, t_fourcc* outtype, const t_fourcc* types,
                                              std::int16_t ntypes);

    /** Full path, in Max's style ("C:/folder/file"), of an existing file. 0: success. */
    MAX_API std::int16_t path_topathname (std::int16_t path, const char* file, char* name);

    /** The same for a file that may not exist; with `check` the folder must. 0: success. */
    MAX_API std::int16_t path_topotentialname (std::int16_t path, const char* file, char* name, std::int16_t check);

    /** Splits a full path into folder and file name. 0: success. */
    MAX_API std::int16_t path_frompathname (const char* name, std::int16_t* path, char* filename);

    /** Converts a path to a style (PATH_STYLE_...) and to absolute or relative (PATH_TYPE_...). 0: success. */
    MAX_API std::int16_t path_nameconform (const char* source, char* destination, t_clong style, t_clong type);

    MAX_API std::int16_t path_getdefault (void);
}
