# Shared by the scripts: where CMake finds the dependencies on this machine.
if [ "$(uname -s)" = Darwin ] && command -v brew >/dev/null 2>&1; then
    export CMAKE_PREFIX_PATH="$(brew --prefix qt):$(brew --prefix)${HOME:+:$HOME/.local/share/quillforge-deps}${CMAKE_PREFIX_PATH:+:$CMAKE_PREFIX_PATH}"
fi
cpu_count() { getconf _NPROCESSORS_ONLN 2>/dev/null || sysctl -n hw.ncpu 2>/dev/null || echo 2; }

# The project's version, as the top-level CMakeLists.txt sets it.
project_version() { sed -n 's/^ *VERSION \([0-9][0-9.]*\)$/\1/p' "$(dirname "${BASH_SOURCE[0]}")/../CMakeLists.txt" | head -n 1; }

# Installs those of the given Debian packages that are missing, as root or through sudo.
ensure_debian_packages() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" || missing+=("$package")
    done
    if [ ${#missing[@]} -eq 0 ]; then
        return 0
    fi
    echo "Installing: ${missing[*]}"
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then as_root=(sudo); fi
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

# Installs what the build needs (scripts/setup), once per run of .ci/run: the scripts it calls
# find it done.
run_setup() {
    if [ "${QUILLFORGE_SETUP_DONE:-}" != 1 ]; then
        bash "$(dirname "${BASH_SOURCE[0]}")/setup"
    fi
}

# Configures a preset with the given compiler. A build folder configured with another compiler
# is made afresh: CMake would otherwise drop the preset's settings along with its cache.
configure_with_compiler() {
    local preset=$1 compiler=$2 cache
    shift 2
    cache="$(dirname "${BASH_SOURCE[0]}")/../build/$preset/CMakeCache.txt"
    if [ -f "$cache" ] && ! grep -qx "CMAKE_CXX_COMPILER:[A-Z]*=$(command -v "$compiler")" "$cache"; then
        rm -rf "$(dirname "$cache")"
    fi
    cmake --preset "$preset" -DCMAKE_CXX_COMPILER="$compiler" "$@" >/dev/null
}
