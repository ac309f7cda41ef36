#!/usr/bin/env bash
# usage: prova_primo_avvio.sh BUILD. The user's own root folder: the first start lays it out; a later one adds
# what is missing, where something was left half done or taken away, and leaves what the user has.
set -euo pipefail
dove=$(mktemp -d)
trap 'rm -rf "$dove"' EXIT
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM XDG_DATA_HOME
cmake --install "$1" --prefix "$dove" >/dev/null

for n in 1 2 3 4 5 6 7 8; do # first starts at once
  HOME="$dove/insieme$((n / 4))" "$dove/bin/tarvel1-avvia" --cartella >/dev/null &
  avviati+=($!)
done
for avviato in "${avviati[@]}"; do wait "$avviato"; done
export HOME="$dove/CITTÀ €, casa"
radice=$("$dove/bin/tarvel1-avvia" --cartella)
sed -i '1s/.*/123\r/' "$radice/custom/CapSezDe.txt"
printf ' PR0042 \r\n' >"$radice/impostazioni/lavoro"
rm -r "$radice"/{Lavori,impostazioni/dirlav}
echo meta >"$radice/impostazioni/dirlav.nuovo"
ln -sfn "$dove/tolto/ostrel" "$radice/progra/ostrel.exe"
[ "$("$dove/bin/tarvel1-avvia" --cartella)" = "$radice" ]
[ "$(head -n 1 "$radice/custom/CapSezDe.txt")" = $'123\r' ] || { echo "riscritto quello dell'utente"; exit 1; }
[ "$radice/progra/ostrel.exe" -ef "$dove/bin/ostrel" ] || { echo "ostrel.exe non è il visualizzatore"; exit 1; }
[ -d "$radice/driver" ] || { echo "manca driver"; exit 1; }
esito=0
"$dove/bin/tarvel1-avvia" --boh 2>/dev/null || esito=$?
[ $esito = 2 ] || { echo "--boh: $esito"; exit 1; }
lavori=$(cd "$radice" && find Lavori impostazioni | sort | tr '\n' ' ')
[ "$lavori" = "Lavori Lavori/PR0042 impostazioni impostazioni/dirlav impostazioni/lavoro " ] ||
  { echo "cartelle: $lavori"; exit 1; }
"$dove/bin/tarvel1-headless" --script "$(dirname "$0")/../../esempi/sessione.txt" "|diroot=$radice|" >/dev/null
[ -s "$radice/Lavori/PR0042/sezio_ut" ] || { echo "non vi si lavora"; exit 1; }
# It follows a home that is renamed, not the user to another's jobs or to where they are away for now.
mv "$HOME" "$dove/altra CITTÀ €"
HOME="$dove/altra CITTÀ €"
radice=$HOME/.local/share/tarvel1
altrui=$dove/altrui/.local/share/tarvel1/Lavori
mkdir -p "$altrui"
for detta in "$radice/Lavori" "$altrui" /media/chiave/tarvel1/Lavori; do
  [ "$detta" = "$radice/Lavori" ] || printf '"%s"\r\n' "$detta" >"$radice/impostazioni/dirlav"
  "$dove/bin/tarvel1-avvia" --cartella >/dev/null
  [ "$(iconv -f CP1252 -t UTF-8 "$radice/impostazioni/dirlav")" = "\"$detta\""$'\r' ] || { echo "dirlav: non $detta"; exit 1; }
done
# Where the user keeps data, and what the program is started with; a job is a name, not a path.
printf '#!/bin/sh\nprintf %%s "$*"\n' >"$dove/chiamato"
install "$dove/chiamato" "$dove/bin/tarvel1"
for dati in "$dove/miei dati" relativa; do
  [ "$dati" = relativa ] && radice=$HOME/.local/share/tarvel1 || radice=$dati/tarvel1
  mkdir -p "$radice/impostazioni"
  echo ../fuori >"$radice/impostazioni/lavoro"
  detto=$(XDG_DATA_HOME="$dati" "$dove/bin/tarvel1-avvia")
  [ "$detto" = "|diroot=$radice|" ] || { echo "avviato con $detto"; exit 1; }
  [ ! -e "$radice/fuori" ] || { echo "una cartella fuori dei lavori"; exit 1; }
done
for casa in '' relativa "$dove/a|b" "$dove/日本"; do
  if HOME=$casa "$dove/bin/tarvel1-avvia" >/dev/null 2>"$dove/detto"; then echo "accettata: $casa"; exit 1; fi
  grep -q '^tarvel1-avvia: \(La cartella personale non è nota\|Il programma non può usare questa\)' "$dove/detto" ||
    { cat "$dove/detto"; exit 1; }
done
