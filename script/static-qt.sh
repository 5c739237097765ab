# A static Qt of Debian's own source, for the editions of the program that bring all they need. To be sourced by bash after
# lib.sh, with `target`, the folder of the edition.

qt=$target/qt # where it is

# The day of resources and of the PDF's fonts, instead of that on which their files have been checked out or made.
SOURCE_DATE_EPOCH=$(date --date="$day UTC" +%s) || fail "CHANGELOG.md does not say which day it is"
export SOURCE_DATE_EPOCH

# run LOG COMMAND...: with all that it says in a log.
run() {
    local log=$target/$1.log
    shift
    "$@" >>"$log" 2>&1 </dev/null || { tail -n 20 "$log" >&2; fail "has failed ($log): ${*:1:3}"; }
}

# installed NAME BUILD: what a build installs, in the folder $target/NAME, as if all were as old as the release, so that an
# archive of the same files is the same.
installed() {
    rm -rf "${target:?}/$1"
    run kelvora cmake --install "$2" --strip --prefix "$target/$1"
    chmod -R u=rwX,go=rX "$target/$1"
    find "$target/$1" -exec touch --no-dereference --date="$day UTC" {} +
}

# sources SUITE PACKAGE...: the source of these packages, as this Debian or another has it, by the signed lists of the archive.
sources() {
    local suite=$1 apt=$target/apt-$1 package
    shift
    step "Source of $*"
    mkdir -p "$apt/lists/partial" "$target/source"
    apt-get indextargets --format 'deb-src $(REPO_URI) $(RELEASE) main' 'Created-By: Packages' |
        sed "s/ $(. /etc/os-release && echo "${VERSION_CODENAME:-sid}")\b/ $suite/" | sort -u >"$apt/sources.list"
    local apt_get=(apt-get -o "Dir::Etc::SourceList=$apt/sources.list" -o Dir::Etc::SourceParts=-
        -o "Dir::State::Lists=$apt/lists" -o "APT::Sandbox::User=$(id -un)")
    run source "${apt_get[@]}" update
    for package in "$@"; do rm -f "$target/source/${package}"_*.dsc; done # of another version
    (cd "$target/source" && run source "${apt_get[@]}" source --download-only --only-source "$@") || exit 1
}

# source_of PACKAGE: the file that describes its source.
source_of() { echo "$target/source/$1"_*.dsc; }

# unpack PACKAGE FOLDER [PATCH...]: its source as Debian has it, with these patches. What is there already stays.
unpack() {
    local package=$1 folder=$2 patch
    shift 2
    [ ! -d "$folder" ] || return
    rm -rf "$folder.new"
    mkdir -p "$(dirname "$folder")"
    run qt dpkg-source --no-check --extract "$(source_of "$package")" "$folder.new"
    for patch in "$@"; do
        run qt patch -d "$folder.new" -p1 -i "$patch"
    done
    mv "$folder.new" "$folder"
}

# keep_qt KEY FUNCTION: what FUNCTION leaves in $qt, from when it did so with the same key, where it has. It works in $work,
# where what has been interrupted goes on.
keep_qt() {
    local kept=$target/qt-$1.tar.xz work=$target/work-$1
    if [ ! -f "$kept" ]; then
        step 'A static Qt: a quarter of an hour to an hour'
        rm -rf "$qt"
        "$2"
        run qt tar -C "$target" -c -J -f "$kept.new" qt
        mv "$kept.new" "$kept"
        find "$target" -maxdepth 1 \( -name 'work-*' -o -name 'qt-*.tar.xz' \) ! -path "$kept" -exec rm -rf {} +
    fi
    if [ "$(cat "$qt/key" 2>/dev/null)" != "$1" ]; then
        rm -rf "$qt"
        run qt tar -C "$target" -x -f "$kept"
        echo "$1" >"$qt/key"
    fi
}

# Of Qt's own source; what only one edition needs, or leaves out, it says itself.
qt_options=(
    -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF -DQT_UNITY_BUILD=ON -DQT_GENERATE_SBOM=OFF
    "-DCMAKE_INSTALL_PREFIX=$qt" -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DQT_BUILD_BENCHMARKS=OFF
    -DFEATURE_accessibility=ON
    -DFEATURE_sql=OFF -DFEATURE_network=OFF -DFEATURE_xml=OFF -DFEATURE_concurrent=OFF -DFEATURE_printsupport=OFF
    -DINPUT_opengl=no -DFEATURE_opengl=OFF -DFEATURE_vulkan=OFF -DFEATURE_icu=OFF -DFEATURE_glib=OFF -DFEATURE_zstd=OFF
    -DFEATURE_fontconfig=OFF
    -DFEATURE_system_zlib=OFF -DFEATURE_system_png=OFF -DFEATURE_system_jpeg=OFF -DFEATURE_system_pcre2=OFF
    -DFEATURE_system_freetype=OFF -DFEATURE_system_harfbuzz=OFF -DFEATURE_system_doubleconversion=OFF
)

# The licences of what is linked into the program and of the compiler's own libraries: licences FOLDER PACKAGE... copies the
# texts of packages that are installed, and of Qt, and says of which sources the program has been made and how it can be
# made again.
licences() {
    local folder=$1 package source name
    shift
    rm -rf "$folder"
    mkdir -p "$folder"
    for source in "$target"/source/qt6-*.dsc; do
        name=${source##*/}
        tar -x -O -f "${source%.dsc}.debian.tar.xz" debian/copyright >"$folder/${name%%_*}.txt" || fail "there is no licence in $source"
    done
    for package in "$@"; do
        cp "/usr/share/doc/$package/copyright" "$folder/${package%%-dev}.txt" || fail "there is no licence of $package"
    done
    cp /usr/share/common-licenses/LGPL-3 "$folder/LGPL-3.txt" || fail "there is no LGPL"
    cat >"$folder/LEEME.txt" <<END
Aquí están las licencias de lo que Kelvora lleva dentro. Kelvora se ha construido a partir de estos paquetes fuente de
Debian, que se conservan en snapshot.debian.org:

$({ for source in "$target"/source/*.dsc; do basename "$source" .dsc | tr _ ' '; done
    dpkg-query -W -f='${source:Package} ${source:Version}\n' "$@"; } | sort -u)

Quien quiera otra Qt, o esta con cambios, tiene en el código fuente de Kelvora todo lo necesario: script/${0##*/} construye
Qt y el programa otra vez.
END
}
