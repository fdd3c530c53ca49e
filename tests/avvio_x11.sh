#!/usr/bin/env bash
# Under a real X display (Xvfb): the program opens the login dialog on the demo site, and a
# login there reaches the main window "Tabulario - Gestione dati".
#   tests/avvio_x11.sh build/site                        the program of a program folder
#   tests/avvio_x11.sh --installato /usr/bin/tabellion   an installed program, in its own folder
set -euo pipefail
if [ "$1" = --installato ]; then
    eseguibile=$2
    unset TABELLION_CARTELLA
else
    sito=$(cd "$1" && pwd)
    eseguibile=$sito/tabellion
    export TABELLION_CARTELLA=$sito
fi
if [ -z "${DISPLAY:-}" ]; then
    exec xvfb-run -a -s "-screen 0 1280x1024x24" "$0" "$@"
fi
unset QT_QPA_PLATFORM
"$eseguibile" >"${TMPDIR:-/tmp}/avvio_x11.$$.log" 2>&1 &
programma=$!
trap 'kill "$programma" 2>/dev/null || true; rm -f "${TMPDIR:-/tmp}/avvio_x11.$$.log"' EXIT

principale=$(timeout 30 xdotool search --sync --name '^Tabulario - Gestione dati$' | head -n 1)
login=$(timeout 30 xdotool search --sync --name '^Login$' | head -n 1)
echo "finestra principale $principale, dialogo Login $login"
xdotool windowfocus --sync "$login"
xdotool type --delay 20 archivista
xdotool key Return

# The dialog goes away and the program keeps running with its main window.
for _ in $(seq 1 100); do
    if ! xdotool search --name '^Login$' >/dev/null 2>&1; then
        break
    fi
    sleep 0.1
done
if xdotool search --name '^Login$' >/dev/null 2>&1; then
    echo "il dialogo Login è ancora aperto" >&2
    exit 1
fi
kill -0 "$programma"
xdotool search --name '^Tabulario - Gestione dati$' >/dev/null
echo "accesso riuscito: la finestra principale è aperta"
