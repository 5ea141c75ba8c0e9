# The Debian packages that Tarvo needs, in one place; run.sh, test.sh and .ci/run read this file.
# shellcheck shell=bash disable=SC2034

PAQUETES_COMPILAR=(
    g++ cmake ninja-build ccache pkg-config
    qt6-base-dev qt6-svg-dev qt6-charts-dev qt6-multimedia-dev qt6-translations-l10n
    libgl-dev libopengl-dev libvulkan-dev libxkbcommon-dev libqt6opengl6-dev libxcb1-dev
    libsqlite3-dev libsqlitecpp-dev
    libgtest-dev libgmock-dev libbenchmark-dev
    fonts-liberation fonts-noto-core fonts-dejavu-core
)
# What drives the program on a screen of its own and looks at what it printed.
PAQUETES_PANTALLA=(
    xvfb xauth openbox xdotool x11-utils imagemagick poppler-utils sqlite3
    cups printer-driver-cups-pdf
)
# Readers not written here, that tests open exported files with.
PAQUETES_LECTORES=(python3 python3-xlrd)
PAQUETES_REVISION=(clang-format clang-tidy)

# Installs those of the packages that are missing. With all of them there it asks neither apt nor the network.
InstalarPaquetes() {
    local faltan=() paquete como_root=()
    for paquete in "$@"; do
        dpkg-query -W -f '${db:Status-Status}\n' "$paquete" 2>/dev/null | grep -qx installed ||
            faltan+=("$paquete")
    done
    [ ${#faltan[@]} -gt 0 ] || return 0
    echo "Se instalan: ${faltan[*]}"
    [ "$(id -u)" -eq 0 ] || como_root=(sudo)
    # A foreign package source that fails is no reason to stop: the installation tells.
    "${como_root[@]}" apt-get update -qq || true
    "${como_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${faltan[@]}" </dev/null >/dev/null
}
