#!/usr/bin/env bash
# The Debian package, as a workstation gets it: made from this build, installed on this machine,
# its files and configuration files in place, the installed program started on the demo
# database; an administrator's edit of the settings survives a reinstallation and an upgrade;
# removing and purging the package leaves the machine as it was.
#   tests/pacchetto_debian.sh <build folder> <source folder>
# Installing a package needs root (CI runs the tests as root on a throw-away machine): as another
# user, and on a machine that already has something of the package, the test is skipped (77).
set -euo pipefail
build=$(cd "$1" && pwd)
sorgenti=$(cd "$2" && pwd)
qui=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

programma=/usr/lib/tabellion
impostazioni=/etc/tabellion
dati=/var/lib/tabellion
impostazioni_sito=(Param.txt Connetti.txt DbNames.txt Istituto.txt)

fallito() {
    echo "FALLITO: $*" >&2
    exit 1
}

if [ "$(id -u)" -ne 0 ]; then
    echo "SALTATO: installare un pacchetto richiede root (i test girano da root in CI)."
    exit 77
fi
# One run at a time on this machine, whatever build folder it comes from.
exec 8>/tmp/tabellion-pacchetto-debian.lock
flock 8
if dpkg-query -W tabellion >/dev/null 2>&1 || [ -e "$impostazioni" ] || [ -e "$dati" ] ||
    getent group tabellion >/dev/null; then
    echo "SALTATO: questa macchina ha già qualcosa del pacchetto tabellion (pacchetto, $impostazioni," \
        "$dati o il gruppo tabellion): il test non lo tocca."
    exit 77
fi

lavoro=$(mktemp -d /tmp/tabellion-pacchetto.XXXXXX)
installato=0
pulisci() {
    if [ "$installato" -eq 1 ]; then
        dpkg --purge tabellion >/dev/null 2>&1 || true
    fi
    rm -rf "$lavoro"
}
trap pulisci EXIT

# --- the package, and an upgrade of it (the next Debian revision) -------------------------
cpack -G DEB --config "$build/CPackConfig.cmake" -B "$lavoro/primo" >"$lavoro/cpack.log" 2>&1 ||
    { cat "$lavoro/cpack.log" >&2; fallito "cpack non ha fatto il pacchetto"; }
cpack -G DEB --config "$build/CPackConfig.cmake" -B "$lavoro/secondo" \
    -D CPACK_DEBIAN_PACKAGE_RELEASE=2 >"$lavoro/cpack.log" 2>&1 ||
    { cat "$lavoro/cpack.log" >&2; fallito "cpack non ha fatto l'aggiornamento"; }
primo=$(ls "$lavoro"/primo/tabellion_*_*.deb)
secondo=$(ls "$lavoro"/secondo/tabellion_*_*.deb)
echo "pacchetti: $(basename "$primo") $(basename "$secondo")"

dipendenze=$(dpkg-deb -f "$primo" Depends)
echo "Depends: $dipendenze"
for richiesto in libqt6sql6-sqlite libqt6sql6-psql postgresql-client libpq5 libqt6widgets6; do
    case ", $dipendenze," in
    *", $richiesto "* | *", $richiesto,"*) ;;
    *) fallito "il pacchetto non dichiara $richiesto" ;;
    esac
done

# --- installation --------------------------------------------------------------------------
installato=1
dpkg -i "$primo" </dev/null || fallito "dpkg -i $(basename "$primo")"

for comando in tabellion tabellion-sql tabellion-scambio; do
    [ -x "$programma/$comando" ] || fallito "manca $programma/$comando"
    [ "$(readlink -f "/usr/bin/$comando")" = "$programma/$comando" ] ||
        fallito "/usr/bin/$comando non porta a $programma/$comando"
done
for file in Menu.txt alter.sql TipologiaCD.txt RuoliPGANT.txt Bitmap/mostra.bmp Schemi/ElementiSch.xml \
    sql/sqlite/schema.sql sql/postgresql/schema.sql sql/riferimenti.sql; do
    [ -f "$programma/$file" ] || fallito "manca $programma/$file"
done
# The help books that Menu.txt names, each a PDF beside it, where the "?" menu looks for it.
while IFS= read -r guida || [ -n "$guida" ]; do
    guida=${guida%$'\r'}
    [ -n "$guida" ] || continue
    [ -s "$programma/$guida.pdf" ] || fallito "manca la guida $programma/$guida.pdf"
done <"$programma/Menu.txt"
conffiles=$(dpkg-query -W -f='${Conffiles}' tabellion)
for file in "${impostazioni_sito[@]}"; do
    [ -f "$impostazioni/$file" ] || fallito "manca $impostazioni/$file"
    [ "$(readlink "$programma/$file")" = "$impostazioni/$file" ] ||
        fallito "$programma/$file non porta a $impostazioni/$file"
    grep -q "^ $impostazioni/$file " <<<"$conffiles" ||
        fallito "$impostazioni/$file non è un file di configurazione del pacchetto"
done
echo "file di configurazione:$conffiles"

# The demo settings name the installed folders, none of the build.
param=$impostazioni/Param.txt
if grep -F -e "$build" -e "$sorgenti" "$param"; then
    fallito "$param porta percorsi della build o dei sorgenti"
fi
valore() { tr -d '\r' <"$param" | sed -n "s/^\"$1=\(.*\)\"\$/\1/p"; }
[ "$(valore 02)" = "$dati" ] || fallito "il codice 02 di $param non è $dati"
for codice in 01 02 04 05 09; do
    [ -d "$(valore "$codice")" ] || fallito "la cartella del codice $codice ($(valore "$codice")) non c'è"
done
copia=$(valore 03 | sed "s/^ '\(.*\)'\$/\1/")
[ -d "$(dirname "$copia")" ] || fallito "la cartella delle copie ($copia) non c'è"

# The writable data: the demo databases, in a folder of the group tabellion.
for database in Tabellion Esercitazione; do
    [ -f "$dati/$database.db" ] || fallito "manca $dati/$database.db"
    [ "$(stat -c %G "$dati/$database.db")" = tabellion ] && [ -w "$dati/$database.db" ] ||
        fallito "$dati/$database.db non è del gruppo tabellion"
done
[ "$(stat -c %G:%a "$dati")" = tabellion:2775 ] || fallito "$dati non è scrivibile dal gruppo tabellion"
# An archivist of the group writes in the demo database; one outside it does not.
scrivi_demo() {
    setpriv --reuid=nobody --regid="$1" --clear-groups \
        sqlite3 "$dati/Tabellion.db" "CREATE TABLE ProvaGruppo (Numero INTEGER); DROP TABLE ProvaGruppo;"
}
scrivi_demo tabellion || fallito "un utente del gruppo tabellion non scrive in $dati/Tabellion.db"
if scrivi_demo nogroup 2>/dev/null; then fallito "un utente fuori dal gruppo tabellion scrive in $dati/Tabellion.db"; fi

# --- the installed programs run from the system's search path, in a folder of no importance --
cd "$lavoro"
unset TABELLION_CARTELLA
env QT_QPA_PLATFORM=offscreen tabellion >"$lavoro/offscreen.log" 2>&1 &
avviato=$!
sleep 3
kill -0 "$avviato" 2>/dev/null || { cat "$lavoro/offscreen.log" >&2; fallito "tabellion offscreen non è rimasto aperto"; }
kill "$avviato"
wait "$avviato" 2>/dev/null || true
echo "tabellion offscreen: aperto dopo 3 secondi"
"$qui/avvio_x11.sh" --installato /usr/bin/tabellion || fallito "il programma installato non arriva alla finestra principale"

# tabellion-sql takes the kind of server from the installed settings and runs a script on a
# copy of the demo database.
mkdir "$lavoro/copia"
cp "$dati/Tabellion.db" "$lavoro/copia/"
printf 'CREATE TABLE ProvaPacchetto (Numero INTEGER);\n' >"$lavoro/prova.sql"
tabellion-sql -U demo -P demo -S "$lavoro/copia" -d Tabellion -i "$lavoro/prova.sql" ||
    fallito "tabellion-sql"
[ "$(sqlite3 "$lavoro/copia/Tabellion.db" "SELECT COUNT(*) FROM sqlite_master WHERE name = 'ProvaPacchetto'")" = 1 ] ||
    fallito "tabellion-sql non ha eseguito lo script"
if tabellion-scambio >"$lavoro/scambio.log" 2>&1; then
    fallito "tabellion-scambio senza argomenti è uscito con 0"
fi
grep -q "^Uso: tabellion-scambio" "$lavoro/scambio.log" || fallito "tabellion-scambio non si è avviato"

# --- an administrator's edit, a reinstallation, an upgrade ----------------------------------
sed -i "s/^\"07= 'italian'\"/\"07= 'english'\"/" "$param"
grep -q "^\"07= 'english'\"" "$param" || fallito "la modifica di $param non è riuscita"
modifica=$(md5sum <"$param")
touch -d '2001-02-03 04:05:06' "$dati/Tabellion.db"
data_demo=$(stat -c %Y "$dati/Tabellion.db")
echo "scritto dall'archivista" >"$dati/Scambio/nota.txt"

dpkg -i "$primo" </dev/null || fallito "reinstallazione"
[ "$(md5sum <"$param")" = "$modifica" ] || fallito "la reinstallazione ha sovrascritto $param"
dpkg -i "$secondo" </dev/null || fallito "aggiornamento"
[ "$(dpkg-query -W -f='${Version}' tabellion)" = "$(dpkg-deb -f "$secondo" Version)" ] ||
    fallito "dopo l'aggiornamento la versione installata non è $(dpkg-deb -f "$secondo" Version)"
[ "$(md5sum <"$param")" = "$modifica" ] || fallito "l'aggiornamento ha sovrascritto $param"
[ ! -e "$param.dpkg-new" ] && [ ! -e "$param.dpkg-dist" ] || fallito "dpkg ha lasciato un altro $param"
[ "$(stat -c %Y "$dati/Tabellion.db")" = "$data_demo" ] || fallito "l'aggiornamento ha toccato $dati/Tabellion.db"
[ -f "$dati/Scambio/nota.txt" ] || fallito "l'aggiornamento ha tolto un file di $dati"
echo "la modifica di $param e i dati sono rimasti dopo reinstallazione e aggiornamento"
"$qui/avvio_x11.sh" --installato /usr/bin/tabellion || fallito "dopo l'aggiornamento il programma non si avvia"

# --- removal keeps the settings and the data; purging takes them away -----------------------
dpkg -r tabellion </dev/null || fallito "dpkg -r"
[ ! -e /usr/bin/tabellion ] && [ ! -e "$programma" ] || fallito "dpkg -r ha lasciato il programma"
[ "$(md5sum <"$param")" = "$modifica" ] || fallito "dpkg -r ha tolto le impostazioni"
[ -f "$dati/Tabellion.db" ] || fallito "dpkg -r ha tolto i dati"
dpkg --purge tabellion </dev/null || fallito "dpkg --purge"
installato=0
[ ! -e "$impostazioni" ] && [ ! -e "$dati" ] && [ ! -e /usr/share/tabellion ] ||
    fallito "dpkg --purge ha lasciato $impostazioni, $dati o /usr/share/tabellion"
if getent group tabellion >/dev/null; then fallito "dpkg --purge ha lasciato il gruppo tabellion"; fi
if dpkg-query -W -f='${Status}\n' tabellion 2>/dev/null | grep -qv "not-installed"; then
    fallito "dpkg conosce ancora il pacchetto"
fi
echo "pacchetto installato, avviato, aggiornato e tolto senza lasciare nulla"
