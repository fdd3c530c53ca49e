# Sourced by scripts/run and scripts/test: installs what a fresh Debian 12 machine lacks.
# Asks apt only for the packages that are missing, so a second run costs nothing.

PACCHETTI_BASE=(
    build-essential cmake ninja-build ccache pkg-config
    qt6-base-dev qt6-base-dev-tools libqt6sql6-sqlite libqt6sql6-psql libpq-dev
    libicu-dev libsqlite3-dev
    libgl-dev libxkbcommon-dev fonts-dejavu-core sqlite3
)
# For making the Debian package (dpkg-shlibdeps) and installing it in its test: what the package
# needs besides the libraries above.
PACCHETTI_PACCHETTO=(dpkg-dev adduser postgresql-client)

installa_mancanti() {
    local mancanti=()
    local pacchetto
    for pacchetto in "$@"; do
        if ! dpkg-query -W -f='${Status}' "$pacchetto" 2>/dev/null | grep -q 'install ok installed'; then
            mancanti+=("$pacchetto")
        fi
    done
    if [ ${#mancanti[@]} -eq 0 ]; then
        return 0
    fi
    echo "Installo: ${mancanti[*]}"
    local sudo=()
    if [ "$(id -u)" -ne 0 ]; then
        if command -v sudo >/dev/null 2>&1; then
            sudo=(sudo)
        else
            echo "Mancano i pacchetti ${mancanti[*]} e non ho i permessi per installarli (serve root o sudo)." >&2
            return 1
        fi
    fi
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${mancanti[@]}"
}

costruisci() {
    local radice=$1
    shift
    cmake -S "$radice" -B "$radice/build" -G Ninja "$@"
    cmake --build "$radice/build"
}
