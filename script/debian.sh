# New Debian systems in folders, for tests that must not find by chance what this machine has. To be sourced by bash, as
# root, after lib.sh.

# new_debian SUITE FOLDER [PACKAGE...]: puts a new system of that Debian into a folder that is not there yet, the smallest
# one and these packages. It is a copy of one that is kept for a week.
new_debian() {
    local suite=$1 folder=$2 kept lock log
    shift 2
    kept=$cache/debian/$suite-$(echo "${DEBIAN_MIRROR:-} $*" | sha256sum | cut -c1-12)
    mkdir -p "$cache/debian" "$(dirname "$folder")"
    exec {lock}>"$kept.lock" && hold "$lock" || fail "cannot write to $cache"
    if [ -z "$(find "$kept" -maxdepth 0 -mtime -7 2>/dev/null)" ]; then
        find "$cache/debian" -mindepth 1 -maxdepth 1 -mtime +7 -exec rm -rf --one-file-system {} +
        rm -rf --one-file-system "$kept" "$kept.new"
        log=$(mktemp)
        if [ $# -eq 0 ]; then
            step "Installing Debian $suite: a minute or two, 100 MB to download ($log)"
            need debootstrap
            debootstrap --variant=minbase "$suite" "$kept.new" ${DEBIAN_MIRROR:+"$DEBIAN_MIRROR"} >"$log" 2>&1 </dev/null
        else
            new_debian "$suite" "$kept.new"
            step "Installing in Debian $suite, some minutes and up to 1 GB to download ($log): $*"
            (in_debian "$kept.new" sh -c 'apt-get update && apt-get install -y --no-install-recommends "$@" && apt-get clean' \
                sh "$@") >"$log" 2>&1
        fi || { objections "$log"; fail "could not install Debian $suite ($log)"; }
        rm -f "$log"
        touch "$kept.new"
        mv "$kept.new" "$kept"
    fi
    rm -rf --one-file-system "$folder.new"
    cp -a --reflink=auto "$kept" "$folder.new" && mv "$folder.new" "$folder" || fail "could not copy to $folder"
    exec {lock}>&-
}

# in_debian FOLDER COMMAND...: runs a command in that system, in its copy of this tree. Its mounts and processes are its
# own and end with it, so that nothing of this machine is left in the folder. What is compiled there is kept here where
# the system has the folder for it.
in_debian() {
    cache=$cache unshare --mount --pid --fork --kill-child bash -s -- "$@" <<'INSIDE' || fail "has failed in $1: ${*:2}"
folder=$1
shift
# A mount of its own, or nobody in there could have further ones.
mount --bind "$folder" "$folder" && mount --rbind /dev "$folder/dev" && mount -t proc proc "$folder/proc" && mkdir -p "$folder/kelvora" || exit
if [ -d "$folder/root/.cache/kelvora/ccache" ]; then
    mkdir -p "$cache/ccache" && mount --bind "$cache/ccache" "$folder/root/.cache/kelvora/ccache" || exit
fi
exec chroot "$folder" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive \
    ${KELVORA_ROUNDS:+"KELVORA_ROUNDS=$KELVORA_ROUNDS"} sh -c 'cd /kelvora && exec "$@"' sh "$@" </dev/null
INSIDE
}

# copy_tree FOLDER: copies this tree into that system, in the place of what was there; what has been built there stays.
copy_tree() {
    mkdir -p "$1/kelvora"
    find "$1/kelvora" -mindepth 1 -maxdepth 1 ! -name build -exec rm -rf {} +
    (set -o pipefail && tar -c --exclude=./build --exclude=./.git . | tar -x -C "$1/kelvora") || fail "could not copy to $1"
}
