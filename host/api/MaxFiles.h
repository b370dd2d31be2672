#pragma once
#include "host/api/MaxConstants.h"
#include "host/api/MaxLinkage.h"
#include "host/api/MaxTypes.h"

/** Dialogs and paths. A folder is known by a short number, a file by folder and name. Names are UTF-8 in buffers
    of MAX_FILENAME_CHARS, whole paths in buffers of MAX_PATH_CHARS. Main thread. */
extern "C"
{

    // 0: chosen; anything else: cancelled. Null and 0 for the types mean all.
    MAX_API std::int16_t open_dialog (char* name, std::int16_t* path, t_fourcc* outtype, t_fourcc* types,
                                      std::int16_t ntypes);
    MAX_API std::int16_t saveasdialog_extended (char* name, std::int16_t* path, t_fourcc* outtype, t_fourcc* types,
                                                std::int16_t ntypes); // `name` holds the default on entry

    /** Searches a file by name; writes into `name`, so never pass a symbol's text. 0: found. */
    MAX_API std::int16_t locatefile_extended (char* name, std::int16_t* path, t_fourcc* outtype, const t_fourcc* types,
                                              std::int16_t ntypes);

    /** Whole path, in Max's style ("C:/folder/file"), of something that exists. 0: good. */
    MAX_API std::int16_t path_topathname (std::int16_t path, const char* file, char* name);

    /** The same for something that need not exist; with `check` the folder must. 0: good. */
    MAX_API std::int16_t path_topotentialname (std::int16_t path, const char* file, char* name, std::int16_t check);

    /** Folder and file name of a whole path. 0: good. */
    MAX_API std::int16_t path_frompathname (const char* name, std::int16_t* path, char* filename);

    /** A path rewritten in a style (PATH_STYLE_...) and made absolute or relative (PATH_TYPE_...). 0: good. */
    MAX_API std::int16_t path_nameconform (const char* source, char* destination, t_clong style, t_clong type);

    MAX_API std::int16_t path_getdefault (void);
}
