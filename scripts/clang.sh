# Shared by the scripts, after env.sh: finds (and on Debian or Ubuntu installs) the newest clang
# the system offers with its libc++, and exports QUILLFORGE_CLANGXX, plus QUILLFORGE_LIBCXX_FLAGS
# where a libc++ separate from the system's standard library is there to compile against.
if [ "$(uname -s)" = Darwin ]; then
    # Apple's clang, whose standard library already is libc++.
    export QUILLFORGE_CLANGXX=clang++
    export QUILLFORGE_LIBCXX_FLAGS=
elif command -v apt-get >/dev/null 2>&1; then
    clang_version=""
    for candidate in 20 19 18 17 16 15 14; do
        if apt-cache show "clang-$candidate" >/dev/null 2>&1 && apt-cache show "libc++-$candidate-dev" >/dev/null 2>&1; then
            clang_version=$candidate
            break
        fi
    done
    if [ -z "$clang_version" ]; then
        echo "No clang package with libc++ is offered here; install clang and libc++ and run this again." >&2
        exit 1
    fi
    ensure_debian_packages "clang-$clang_version" "libc++-$clang_version-dev" "libc++abi-$clang_version-dev" \
        "libclang-rt-$clang_version-dev" python3-minimal
    export QUILLFORGE_CLANGXX="clang++-$clang_version"
    export QUILLFORGE_LIBCXX_FLAGS="-stdlib=libc++"
else
    export QUILLFORGE_CLANGXX=clang++
    export QUILLFORGE_LIBCXX_FLAGS="-stdlib=libc++"
fi
