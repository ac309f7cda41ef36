#!/usr/bin/env bash
# Exports without a window and without a display: exit status and message of each way to call them.
# Usage: prova_esporta.sh OSTREL DRAWING
set -euo pipefail
ostrel=$1
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM XDG_RUNTIME_DIR
export LC_ALL=C.UTF-8
cartella=$(mktemp -d)
trap 'rm -rf "$cartella"' EXIT
cp "$2" "$cartella/s.dis"
cd "$cartella"

prova() {
  local atteso=$1 messaggio=$2 stato=0 detto
  shift 2
  detto=$("$ostrel" "$@" 2>&1 >/dev/null) || stato=$?
  [[ $stato = "$atteso" && $detto = *"$messaggio"* && (-n $messaggio || -z $detto) ]] || { echo "FAILED: $*: status $stato, $detto" >&2; exit 1; }
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
problemi pieno.png 'disco pieno'
problemi manca/s.png 'la cartella non esiste'
problemi s.dis/s.svg 'la cartella non esiste'
problemi tubo.svg 'non è un file'
problemi "$(printf 'x%.0s' {1..300}).pdf" 'il nome è troppo lungo'
prova 1 'vuoto.dis: non c'\''è niente da disegnare' --esporta s.svg vuoto.dis
[ -w chiusa ] || problemi chiusa/s.svg 'manca il permesso di scrivere'
echo prima >s.png
(ulimit -f 1 && problemi s.png 'file troppo grande')
[ -c pieno.png ] && [ -p tubo.svg ] && [ "$(cat s.png)" = prima ]
[ "$(ls)" = $'cartella.svg\nchiusa\npieno.png\ns.dis\ns.dxf\ns.png\ntubo.svg\nvuoto.dis' ]
prova 1 'non è un file di disegno' --esporta s.pdf .

printf '3\r\n0 0\r\n0 0\r\n0 0\r\n2\r\n0 0 0\r\n0 50 0\r\n0\r\n1\r\n0 1 1 0\r\n0\r\n0\r\n' >ritta.dis
prova 0 '' --esporta ritta.PDF --unita mm --scala 1:1 ritta.dis

# What is not understood is no failed export: another status, and nothing written.
prima=$(ls)
for uscita in s.bmp senza .dxf/; do prova 2 "file $uscita: si esporta in" --esporta "$uscita" s.dis; done
prova 2 'manca il disegno' --esporta s.pdf
prova 2 'opzione sconosciuta: --esportare' --esportare
prova 2 'cartella.svg è una cartella: ci vuole --tipo' --esporta cartella.svg s.dis
prova 2 'la cartella manca non esiste' --esporta manca --tipo pdf s.dis
prova 2 'più disegni' --esporta a.svg s.dis vuoto.dis
prova 2 '--scala vuole anche --unita' --esporta a.pdf --scala 1:50 s.dis
prova 2 '--scala: una scala, come 1:50' --esporta a.pdf --unita cm --scala=5:1 s.dis
prova 2 '--unita: mm, cm o m, non "piedi"' --esporta a.pdf --unita piedi s.dis
prova 2 '--carta vale soltanto per il PDF' --esporta a.dxf --carta A3 s.dis
prova 2 'troppi argomenti' s.dis vuoto.dis
prova 2 '--comunque vale soltanto con --esporta' --comunque s.dis
prova 2 'dopo --tipo manca il valore' --esporta . --tipo
prova 1 'Ci sta a 1:50. A 1:20 basta un foglio A1 orizzontale.' --esporta a.pdf --unita cm --scala 20 s.dis
prova 1 'non si vedrebbe niente' --esporta a.pdf --unita mm --scala 1:1000000 --comunque ritta.dis
prova 2 '--unita vale soltanto per PDF e DXF' --esporta a.svg --unita mm s.dis
prova 2 '--senza-sorveglianza vale soltanto per la finestra' --esporta a.svg --senza-sorveglianza s.dis
prova 1 'misura 2,8' --esporta a.pdf --unita mm --scala 1:500 s.dis
[ "$(ls)" = "$prima" ]

# Several drawings: a bad one is passed over; two of one name are refused before anything is written.
mkdir -p tavole altri/s.svg
cp s.dis altri/S.dis
cp s.dis -- -t.1.dis
prova 2 'andrebbero tutti e due in tavole/S.png' --esporta tavole --tipo png s.dis altri/S.dis
ln altri/S.dis altri/letto.pdf
prova 2 'è un disegno da leggere' --esporta altri --tipo pdf altri/letto.pdf
[ -z "$(ls tavole)" ] && cmp s.dis altri/letto.pdf
prova 1 'ostrel: 2 su 4 non esportati' --esporta=tavole/ --tipo=PDF --unita=cm manca.dis s.dis vuoto.dis -- -t.1.dis
[ "$(ls tavole)" = $'-t.1.pdf\ns.pdf' ]

prova 1 'altri/s.svg: è una cartella' --esporta altri --tipo svg s.dis

# Or as the pages of one document, each turned as suits it.
prova 1 'ostrel: 1 su 3 non esportati' --esporta insieme.pdf s.dis vuoto.dis s.dis
grep -aq '^/Count 2$' insieme.pdf
"$ostrel" --esporta diversi.pdf s.dis ritta.dis s.dis
[ "$(grep -ao 'MediaBox [^]]*' diversi.pdf | cut -d' ' -f4 | xargs)" = '842.000000 595.000000 842.000000' ]
prova 1 'vuoto.dis: non' --esporta niente.pdf vuoto.dis vuoto.dis
[ ! -e niente.pdf ]

truncate -s 65M grande.dis
prova 1 'troppo grande per un disegno (65 MB' --esporta grande.svg grande.dis

"$ostrel" -h >aiuto
"$ostrel" --aiuto | cmp - aiuto
[[ $(head -1 aiuto) = 'ostrel - '* ]]
[ "$(awk 'length > 120' aiuto)" = '' ]
