# preparar.sh: shared by ./run, ./test and .ci/run. Sourced, not started.
#
# faltan PACKAGE...     prints those Debian packages that are not installed
# preparar PACKAGE...   installs the missing ones, having said which
# pantalla COMMAND...   runs a command on a virtual X display with a small window manager

PAQUETES_CONSTRUIR=(build-essential g++ cmake ninja-build ccache pkg-config
    qt6-base-dev qt6-base-dev-tools libqt6opengl6-dev libgl1-mesa-dri fonts-dejavu-core ca-certificates)
PAQUETES_PANTALLA=(xvfb xauth openbox xdotool imagemagick)
PAQUETES_PROBAR=(libgtest-dev libbenchmark-dev locales)

faltan() {
    local p
    for p in "$@"; do
        dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'ok installed' || printf '%s\n' "$p"
    done
}

preparar() {
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        echo "This is not a Debian system: make sure that these are installed: $*"
        return 0
    fi
    local lista
    mapfile -t lista < <(faltan "$@")
    [ ${#lista[@]} -eq 0 ] && return 0
    local como=()
    if [ "$(id -u)" -ne 0 ]; then como=(sudo); fi
    echo "Installing what is missing through apt: ${lista[*]}"
    "${como[@]}" apt-get update -qq
    "${como[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${lista[@]}" \
        >/dev/null
}

# The display number is found by the server itself; nothing is left running behind.
pantalla() {
    local dir numero servidor gestor rc=0
    dir=$(mktemp -d)
    mkfifo "$dir/numero"
    Xvfb -displayfd 3 -screen 0 "${PANTALLA:-1920x1080x24}" -nolisten tcp 3>"$dir/numero" >/dev/null 2>&1 &
    servidor=$!
    read -r numero <"$dir/numero"
    export DISPLAY=":$numero" XDG_RUNTIME_DIR="$dir" DBUS_SESSION_BUS_ADDRESS=unix:path=/dev/null
    chmod 700 "$dir"
    openbox >/dev/null 2>&1 &
    gestor=$!
    local vez
    for vez in $(seq 100); do # until the window manager is there
        xdotool get_num_desktops >/dev/null 2>&1 && break
        sleep 0.1
    done
    "$@" || rc=$?
    kill "$gestor" "$servidor" 2>/dev/null || true
    wait "$gestor" "$servidor" 2>/dev/null || true
    rm -rf "$dir"
    return $rc
}
