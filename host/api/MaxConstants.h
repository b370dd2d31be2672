#pragma once

/** Constants of Max's C interface. */

constexpr long long OB_MAGIC = 1758379419;

enum e_max_atomtypes : short
{
    A_NOTHING = 0,
    A_LONG,
    A_FLOAT,
    A_SYM,
    A_OBJ,
    A_DEFLONG,
    A_DEFFLOAT,
    A_DEFSYM,
    A_GIMME,
    A_CANT,
    A_SEMI,
    A_COMMA,
    A_DOLLAR,
    A_DOLLSYM,
    A_GIMMEBACK,
    A_DEFER = 0x41,
    A_USURP,
    A_DEFER_LOW,
    A_USURP_LOW
};

/** The maximum number of typed arguments of a method. */
constexpr int MAX_TYPED_ARGUMENTS = 7;

enum e_max_errorcodes : long long
{
    MAX_ERR_NONE = 0,
    MAX_ERR_GENERIC = -1,
    MAX_ERR_INVALID_PTR = -2,
    MAX_ERR_DUPLICATE = -3,
    MAX_ERR_OUT_OF_MEM = -4
};

enum e_max_attrflags : int
{
    ATTR_FLAGS_NONE = 0,
    ATTR_GET_OPAQUE = 0x1, // not from messages or C
    ATTR_SET_OPAQUE = 0x2,
    ATTR_GET_OPAQUE_USER = 0x100, // from C, but not from messages
    ATTR_SET_OPAQUE_USER = 0x200,
    ATTR_GET_DEFER = 0x10000,
    ATTR_GET_USURP = 0x20000,
    ATTR_GET_DEFER_LOW = 0x40000,
    ATTR_GET_USURP_LOW = 0x80000,
    ATTR_SET_DEFER = 0x1000000,
    ATTR_SET_USURP = 0x2000000,
    ATTR_SET_DEFER_LOW = 0x4000000,
    ATTR_SET_USURP_LOW = 0x8000000,
    ATTR_IS_JBOXATTR = 0x10000000,
    ATTR_DIRTY = 0x20000000
};

enum e_max_class_flags : int
{
    CLASS_FLAG_BOX = 0x1,
    CLASS_FLAG_POLYGLOT = 0x2,
    CLASS_FLAG_NEWDICTIONARY = 0x4, // `new` receives the attribute dictionary
    CLASS_FLAG_REGISTERED = 0x8,
    CLASS_FLAG_UIOBJECT = 0x10,
    CLASS_FLAG_ALIAS = 0x20,
    CLASS_FLAG_MULTITOUCH = 0x40,
    CLASS_FLAG_DO_NOT_PARSE_ATTR_ARGS = 0x80,
    CLASS_FLAG_DO_NOT_ZERO = 0x100,
    CLASS_FLAG_NOATTRIBUTES = 0x10000,
    CLASS_FLAG_OWNATTRIBUTES = 0x20000,
    CLASS_FLAG_PARAMETER = 0x40000,
    CLASS_FLAG_RETYPEABLE = 0x80000,
    CLASS_FLAG_OBJECT_METHOD = 0x100000,
    CLASS_FLAG_VISUALIZER = 0x200000,
    CLASS_FLAG_USES_PROXIES = 0x400000,
    CLASS_FLAG_OWN_DATA = 0x800000,
    CLASS_FLAG_DYNAMICCOLOR = 0x1000000
};

enum e_max_assist : int
{
    ASSIST_INLET = 1,
    ASSIST_OUTLET = 2
};

enum e_max_console_rows : int
{
    JMAX_POST = 0,
    JMAX_ERROR = 1,
    JMAX_WARNING = 2,
    JMAX_BUG = 3
};

enum e_max_path_styles : int
{
    PATH_STYLE_MAX = 0,
    PATH_STYLE_NATIVE = 1,
    PATH_STYLE_COLON = 2,
    PATH_STYLE_SLASH = 3,
    PATH_STYLE_NATIVE_WIN = 4
};

enum e_max_path_types : int
{
    PATH_TYPE_IGNORE = 0,
    PATH_TYPE_ABSOLUTE = 1,
    PATH_TYPE_RELATIVE = 2
};

/** Buffer sizes in bytes, including the terminating null. */
constexpr int MAX_PATH_CHARS = 2048;
constexpr int MAX_FILENAME_CHARS = 512;
constexpr int MAX_ASSIST_CHARS = 500;
