# Sourced by the commands at the root: installs packages, configures and builds. Progress goes to standard error.
# Expects $root, the project's folder.

# need_packages run test ...: installs what is missing from these groups, or lists it and exits.
need_packages()
{
    local groups missing
    groups=$(IFS='|'; echo "$*")
    missing=$(sed -nE "s/^($groups)[[:space:]]+//p" "$root/cmake/packages" | while read -r package; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || echo "$package"
    done)
    [ -z "$missing" ] && return
    # shellcheck disable=SC2086 # one word per package
    set -- $missing
    if [ "$(id -u)" = 0 ]; then
        install_packages "$@"
    elif command -v sudo >/dev/null 2>&1 && sudo -n true 2>/dev/null || { [ -t 0 ] && command -v sudo >/dev/null 2>&1; }; then
        install_packages_by sudo "$@"
    else
        echo "These packages are missing: $*" >&2
        echo "Install them with: apt-get install $*" >&2
        exit 1
    fi
}

install_packages() { install_packages_by env "$@"; }

install_packages_by()
{
    local by=$1
    shift
    echo "Installing: $*" >&2
    { "$by" apt-get update -q && "$by" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "$@"; } \
        >"${TMPDIR:-/tmp}/halcyra-install.log" 2>&1 ||
        { tail -n 20 "${TMPDIR:-/tmp}/halcyra-install.log" >&2; echo "The packages could not be installed." >&2; exit 1; }
}

# configured PRESET [OPTION ...]: configures the preset's build tree with these options, unless already done.
configured()
{
    local preset=$1 tree=$root/build/$1
    shift
    [ -f "$tree/build.ninja" ] && holds_options "$tree/CMakeCache.txt" "$@" && return
    echo "Configuring $preset" >&2
    (cd "$root" && cmake --preset "$preset" "$@") >&2 || exit 1
}

# holds_options CACHE [-DNAME=VALUE ...]
holds_options()
{
    local cache=$1 option
    shift
    for option; do
        option=${option#-D}
        grep -q "^${option%%=*}:[A-Z]*=${option#*=}\$" "$cache" || return 1
    done
}

# build PRESET [TARGET ...]: builds the targets of a configured tree; all of them by default.
build()
{
    local tree=$root/build/$1
    shift
    cmake --build "$tree" ${1:+--target "$@"} >&2 || exit 1
}
