# Shared by the scripts: packages, builds and one clear line where something goes wrong. To be sourced by bash from the
# top of the project.

# The folders of the program's source.
mapfile -t folders < <(sed -n 's/^add_subdirectory(\(.*\))$/\1/p' CMakeLists.txt)

# The system whose packages are meant, as "debian 12" or "ubuntu 24.04"; a Debian in the making has no number.
: "${os:=$(. /etc/os-release && echo "$ID${VERSION_ID:+ $VERSION_ID}")}"

# What makes the next run quicker and is never needed.
cache=${XDG_CACHE_HOME:-${HOME:-/nonexistent}/.cache}/kelvora
mkdir -p "$cache" 2>/dev/null || cache=$(mktemp -d)

# says SPANISH ENGLISH: what a script says. One that a user runs sets language=es before it reads this file.
says() {
    if [ "${language:-en}" = es ]; then printf '%s' "$1"; else printf '%s' "$2"; fi
}

# Version and day of the newest release.
read -r version day <<<"$(sed -n 's/^## \[\(.*\)\] - \(.*\)/\1 \2/p' CHANGELOG.md | head -n 1)"

fail() {
    printf 'kelvora: %s\n' "$*" >&2
    exit 1
}

# step TEXT: what a long script does now, with the time.
step() { printf '[%s] %s\n' "$(date +%T)" "$*"; }

is_installed() {
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# need PACKAGE...: installs what is missing of Debian's packages. Scripts beside each other do so one after another.
need() {
    command -v dpkg-query >/dev/null || fail "$(says "este programa instala sus dependencias solo en Debian 12 o posterior" "packages are installed on Debian 12 or later only")"
    local missing=() package log lock
    exec {lock}</var/lib/dpkg && flock "$lock" || fail "$(says "no se puede leer" "cannot read") /var/lib/dpkg"
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    if [ ${#missing[@]} -gt 0 ]; then
        [ "$(id -u)" -eq 0 ] || command -v sudo >/dev/null ||
            fail "$(says "faltan paquetes y para instalarlos se necesita ser root o tener sudo" "packages are missing, and installing them needs root or sudo"): ${missing[*]}"
        echo "$(says Instalando Installing): ${missing[*]}"
        log=$(mktemp)
        as_root apt-get update >"$log" 2>&1 &&
            as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}" \
                >>"$log" 2>&1 </dev/null ||
            fail "$(says "no se ha podido instalar" "could not install"): ${missing[*]} ($log)"
        rm -f "$log"
    fi
    exec {lock}>&-
}

build_packages=(g++ cmake ninja-build qt6-base-dev qt6-base-dev-tools libgl-dev)
run_packages=(qt6-translations-l10n fonts-liberation fonts-dejavu-core fonts-comic-neue at-spi2-core)
[ "$os" = 'debian 12' ] || run_packages+=(fonts-liberation-sans-narrow) # there a part of fonts-liberation
test_packages=(ccache qt6-base-private-dev strace xvfb openbox xdotool dbus-daemon locales python3 orca speech-dispatcher
    speech-dispatcher-audio-plugins python3-speechd python3-pyatspi x11-utils
    pandoc librsvg2-bin desktop-file-utils appstream tidy man-db libbenchmark-dev libicu-dev
    faketime x11-xserver-utils mutter qt6-wayland valgrind xz-utils)

# build PRESET [TARGET...]: configures what is not, and builds what is not up to date. What has been compiled once is not
# compiled again, in whatever folder the tree lies, where there is ccache.
build() {
    local preset=$1 log lock
    shift
    mkdir -p build
    exec {lock}>"build/$preset.lock" && flock "$lock" || fail "$(says "no se puede escribir en" "cannot write to") build"
    if command -v ccache >/dev/null; then
        export CMAKE_CXX_COMPILER_LAUNCHER=ccache CCACHE_DIR=$cache/ccache CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
    fi
    log=build/$preset.log
    { [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset"; } >"$log" 2>&1 &&
        cmake --build --preset "$preset" ${1:+--target "$@"} >>"$log" 2>&1 ||
        { tail -n 40 "$log" >&2; fail "$(says "la compilación ha fallado" "the build has failed") ($log)"; }
    exec {lock}>&-
}
