# Sourced by the scripts in scripts/ after builds.sh and packages.sh: GoogleTest for a compiler, a
# standard library or a machine that the one in the Debian package is not for.

# build_googletest FOLDER [CMAKE_OPTION...]: builds it in FOLDER and installs it in FOLDER/installed.
build_googletest() {
  need_packages googletest
  quietly "$1/build.log" configure_and_install_googletest "$@"
}

configure_and_install_googletest() {
  cmake -S /usr/src/googletest -B "$1" -G Ninja "${@:2}" \
    -DCMAKE_INSTALL_PREFIX="$PWD/$1/installed" &&
    cmake --build "$1" --target install
}
