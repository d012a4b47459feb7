# Shared by the scripts: where CMake finds the dependencies on this machine.
if [ "$(uname -s)" = Darwin ] && command -v brew >/dev/null 2>&1; then
    export CMAKE_PREFIX_PATH="$(brew --prefix qt):$(brew --prefix)${HOME:+:$HOME/.local/share/quillforge-deps}${CMAKE_PREFIX_PATH:+:$CMAKE_PREFIX_PATH}"
fi
cpu_count() { getconf _NPROCESSORS_ONLN 2>/dev/null || sysctl -n hw.ncpu 2>/dev/null || echo 2; }
