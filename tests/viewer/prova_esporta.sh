#!/usr/bin/env bash
# Exports without a window and without a display: exit status and message of each way to call them.
# Usage: prova_esporta.sh OSTREL DRAWING
set -euo pipefail
ostrel=$1
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM
export LC_ALL=C.UTF-8
cartella=$(mktemp -d)
trap 'rm -rf "$cartella"' EXIT
cp "$2" "$cartella/s.dis"
cd "$cartella"

prova() {
  local atteso=$1 messaggio=$2 stato=0 detto
  shift 2
  detto=$("$ostrel" "$@" 2>&1 >/dev/null) || stato=$?
  [[ $stato = "$atteso" && $detto = *"$messaggio"* ]] || { echo "FAILED: $*: status $stato, $detto" >&2; exit 1; }
}
prova 0 '' --esporta s.dxf s.dis
[ -s s.dxf ]
prova 1 'manca.dis: il disegno non esiste' --esporta s.pdf manca.dis
# A full device of its own where that is allowed: a fault here must not replace the machine's.
mknod pieno.png c 1 7 2>/dev/null || ln -s /dev/full pieno.png
mkdir cartella.svg chiusa
mkfifo tubo.svg
chmod 500 chiusa
printf '3\r\n0 0\r\n0 0\r\n0 0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n' >vuoto.dis
problemi() { prova 1 "Problemi con la scrittura del file $1: $2" --esporta "$1" "${3:-s.dis}"; }
problemi pieno.png 'il disco è pieno'
problemi manca/s.png 'la cartella non esiste'
problemi s.dis/s.svg 'la cartella non esiste'
problemi cartella.svg 'è una cartella'
problemi tubo.svg 'non è un file'
problemi "$(printf 'x%.0s' {1..300}).pdf" 'il nome è troppo lungo'
problemi s.svg 'non c'\''è niente da disegnare' vuoto.dis
[ -w chiusa ] || problemi chiusa/s.svg 'manca il permesso di scrivere'
echo prima >s.png
(ulimit -f 1 && problemi s.png 'il file supera la grandezza consentita')
[ -c pieno.png ] && [ -p tubo.svg ] && [ "$(cat s.png)" = prima ]
[ "$(ls)" = $'cartella.svg\nchiusa\npieno.png\ns.dis\ns.dxf\ns.png\ntubo.svg\nvuoto.dis' ]
for uscita in s.bmp senza "$cartella/.dxf/"; do prova 1 "File $uscita: si esporta in" --esporta "$uscita" s.dis; done
prova 1 'non è un file di disegno' --esporta s.pdf .
prova 1 'Manca il disegno' --esporta s.pdf
prova 1 'esportare' --esportare
