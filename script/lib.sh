# Shared by the scripts: packages, builds and one clear line where something goes wrong. To be sourced by bash from the
# top of the project.

# Asked for help a script says what its first lines say; one for users has no arguments, and says so.
if [[ ${1:-} =~ ^(-h|--help)$ ]] && [ "${language:-en}" = en ]; then
    sed -n '2,/^[^#]/s/^# \{0,1\}//p' "script/${0##*/}"
    exit
fi

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

# progress TEXT: of lines "DONE ALL", how far it is: on a terminal each, in its one line, elsewhere each tenth of the whole.
progress() {
    local so_far all last=0 line=
    while read -r so_far all; do
        [[ $so_far =~ ^[0-9]+$ && $all =~ ^[1-9][0-9]*$ ]] || continue
        if [ -t 1 ]; then
            [ "$line" != "$1: $so_far $(says de of) $all" ] || continue # a screen reader would say it again
            line="$1: $so_far $(says de of) $all"
            printf '\r%s\e[K' "$line"
        elif [ $((10 * so_far / all)) -ne "$last" ]; then
            last=$((10 * so_far / all))
            step "$1: $so_far $(says de of) $all"
        fi
    done
    [ -z "$line" ] || printf '\n'
}

# takes MOST ARGUMENT...: ends the script where it was given more arguments than it takes, or an option.
takes() {
    local most=$1 argument
    shift
    for argument in "$@"; do
        [[ $argument != -* ]] || fail "$(says "$0 no tiene la opción" "$0 has no option") $argument"
    done
    [ $# -le "$most" ] || fail "$(says "$0 no admite" "$0 does not take") ${*:most + 1}"
}

# takes_of "WORD..." ARGUMENT...: ends the script where one of its arguments is none of these words.
takes_of() {
    local argument
    for argument in "${@:2}"; do
        [[ " $1 " == *" $argument "* && $argument =~ ^[^\ ]+$ ]] || fail "$0 takes $1, not $argument"
    done
}

# are_numbers ARGUMENT...: ends the script where one of them is no number.
are_numbers() {
    local argument
    for argument in "$@"; do
        [[ $argument =~ ^[1-9][0-9]*$ ]] || fail "$0 takes numbers from 1 on, not $argument"
    done
}

is_installed() {
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# hold DESCRIPTOR: waits until no other script holds the file that is open there, and holds it.
hold() {
    flock --nonblock "$1" && return
    step "$(says 'Hay que esperar a otro script' 'Another script has to end first')"
    flock "$1"
}

# apt_install LOG ARGUMENT...: has apt-get install what its arguments say, and tells how much that is.
apt_install() {
    local log=$1 apt=(env DEBIAN_FRONTEND=noninteractive apt-get -y --no-install-recommends -o APT::Status-Fd=1) uris megabytes kind percent
    shift
    as_root apt-get update >"$log" 2>&1 </dev/null && uris=$("${apt[@]}" --print-uris "$@" 2>>"$log" </dev/null) ||
        { echo "$uris" >>"$log"; objections "$log"; return 1; }
    megabytes=$(awk "/^'/ { bytes += \$(NF - 1) } END { print int((bytes + 999999) / 1e6) }" <<<"$uris")
    step "$(says 'Por descargar' 'To download'): $megabytes MB ($log)"
    as_root "${apt[@]}" "$@" 2>&1 </dev/null | tee -p -a "$log" |
        while IFS=: read -r kind _ percent _; do
            case $kind in
            dlstatus) echo "$((10#0${percent//[!0-9]*/} / 2)) 100" ;;
            pmstatus) echo "$((50 + 10#0${percent//[!0-9]*/} / 2)) 100" ;;
            esac
        done | progress "$(says 'Descargado e instalado, en %' 'Downloaded and installed, in %')"
    [ "${PIPESTATUS[0]}" -eq 0 ] || { objections "$log"; return 1; }
}

# objections LOG: prints to what apt-get and its like object there, or how the log ends.
objections() { grep -E '^([EW]: |dpkg[a-z-]*: error)|^ .* : (Depends|Conflicts): ' "$1" | head -n 15 >&2; [ "${PIPESTATUS[0]}" -eq 0 ] || tail -n 10 "$1" >&2; }

# need PACKAGE...: installs what is missing of Debian's packages. Scripts beside each other do so one after another.
need() {
    command -v dpkg-query >/dev/null || fail "$(says "este programa instala sus dependencias solo en Debian 12 o posterior" "packages are installed on Debian 12 or later only")"
    local missing=() package log lock administration=${DPKG_ADMINDIR:-/var/lib/dpkg}
    exec {lock}<"$administration" && hold "$lock" || fail "$(says "no se puede leer" "cannot read") $administration"
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    if [ ${#missing[@]} -gt 0 ]; then
        [ "$(id -u)" -eq 0 ] || command -v sudo >/dev/null ||
            fail "$(says "faltan paquetes y para instalarlos se necesita ser root o tener sudo" "packages are missing, and installing them needs root or sudo"): ${missing[*]}"
        step "$(says 'Faltan paquetes' 'Packages are missing'): ${missing[*]}"
        log=$(mktemp)
        apt_install "$log" install "${missing[@]}" || fail "$(says "no se ha podido instalar" "could not install"): ${missing[*]} ($log)"
        rm -f "$log"
    fi
    exec {lock}>&-
}

build_packages=(g++ cmake ninja-build qt6-base-dev qt6-base-dev-tools libgl-dev)
run_packages=(qt6-translations-l10n fonts-liberation fonts-dejavu-core fonts-comic-neue at-spi2-core)
[ "$os" = 'debian 12' ] || run_packages+=(fonts-liberation-sans-narrow) # there a part of fonts-liberation
test_packages=(ccache qt6-base-private-dev strace xvfb openbox xdotool dbus-daemon locales python3 orca speech-dispatcher
    speech-dispatcher-audio-plugins python3-speechd python3-pyatspi x11-utils
    pandoc librsvg2-bin weasyprint liblouis-bin poppler-utils desktop-file-utils appstream tidy man-db libbenchmark-dev libicu-dev
    faketime x11-xserver-utils mutter qt6-wayland valgrind xz-utils)

# tells LOG COMMAND...: runs a command that builds with Ninja and tells how far it is; what it says is added to the log.
tells() {
    local log=$1
    shift
    NINJA_STATUS='[%f/%t] ' "$@" 2>&1 </dev/null | tee -p -a "$log" |
        sed -u -n 's|^\[\([1-9][0-9]*\)/\([0-9]*\)\].*|\1 \2|p' | progress "$(says Compilado Compiled)"
    [ "${PIPESTATUS[0]}" -eq 0 ] || { tail -n 40 "$log" >&2; return 1; }
}

# compile LOG ARGUMENT...: has CMake build what its arguments say.
compile() { tells "$1" cmake --build "${@:2}" || fail "$(says "la compilación ha fallado" "the build has failed") ($1)"; }

# build PRESET [TARGET...]: configures what is not, and builds what is not up to date. What has been compiled once is not
# compiled again, in whatever folder the tree lies, where there is ccache.
build() {
    local preset=$1 log=build/$1.log lock
    shift
    mkdir -p build
    exec {lock}>"build/$preset.lock" && hold "$lock" || fail "$(says "no se puede escribir en" "cannot write to") build"
    if command -v ccache >/dev/null; then
        export CMAKE_CXX_COMPILER_LAUNCHER=ccache CCACHE_DIR=$cache/ccache CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
    fi
    : >"$log"
    [ -f "build/$preset/build.ninja" ] ||
        step "$(says 'Se compila por primera vez: de uno a diez minutos' 'Compiling for the first time: one to ten minutes') ($log)"
    if ! [ "build/$preset/build.ninja" -nt CMakePresets.json ]; then
        cmake --preset "$preset" >"$log" 2>&1 || { tail -n 40 "$log" >&2; fail "$(says "la compilación no puede empezar" "the build cannot begin") ($log)"; }
    fi
    compile "$log" --preset "$preset" ${1:+--target "$@"}
    exec {lock}>&-
}
