# New Debian systems in folders, for tests that must not find by chance what this machine has. To be sourced by bash, as
# root, after lib.sh.

# set_up_debian SUITE FOLDER: installs the smallest system of that Debian where there is none, and copies this tree there.
set_up_debian() {
    local suite=$1 folder=$2 log
    need debootstrap
    if [ ! -d "$folder/usr/bin" ]; then
        echo "Instalando Debian $suite en $folder"
        log=$(mktemp)
        debootstrap --variant=minbase "$suite" "$folder" ${DEBIAN_MIRROR:+"$DEBIAN_MIRROR"} >"$log" 2>&1 </dev/null ||
            fail "no se ha podido instalar Debian $suite (detalles en $log)"
        rm -f "$log"
    fi
    mkdir -p "$folder/kelvora"
    tar -c --exclude=./build --exclude=./.git . | tar -x -C "$folder/kelvora" || fail "no se ha podido copiar a $folder"
}

# in_debian FOLDER COMMAND...: runs a command in that system's copy of this tree. Its mounts and processes are its own and
# end with it, so that nothing of this machine is left in the folder.
in_debian() {
    unshare --mount --pid --fork --kill-child bash -s -- "$@" <<'INSIDE' || fail "ha fallado en $1: ${*:2}"
mount --rbind /dev "$1/dev" && mount -t proc proc "$1/proc" || exit
folder=$1
shift
exec chroot "$folder" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 \
    sh -c 'cd /kelvora && exec "$@"' sh "$@" </dev/null
INSIDE
}
