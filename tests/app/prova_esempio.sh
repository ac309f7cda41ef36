#!/usr/bin/env bash
# usage: prova_esempio.sh PROGRAMS. The example installation works wherever it may be laid out, leaves a
# user's sections alone, and says where it cannot work. The session that docs/sessions.md prints can be played there.
set -euo pipefail
avvia=$(cd "$(dirname "$0")/../../esempi" && pwd)/avvia
pagina=${avvia%/*/*}/docs/sessions.md
base=$(mktemp -d)
trap 'rm -rf "$base"' EXIT
unset DISPLAY WAYLAND_DISPLAY
export QT_QPA_PLATFORM=offscreen

dove="$base/CITTÀ €, nuova b"
mie=esempio/Lavori/PR0001/sezio_ut
mkdir -p "$dove/${mie%/*}"
echo mie >"$dove/$mie"
for volta in prima seconda; do # the second time finds what the first has left
  "$avvia" "$1" "$dove" >"$base/uscita" || { cat "$base/uscita"; echo "non riuscita la $volta volta"; exit 1; }
done
for file in sezio_ut U_PO_001.dis SezTmpPO.dis; do
  [ -s "$dove/dimostrazione/Lavori/PR0001/$file" ] || { echo "manca $file"; exit 1; }
done
[ "$(cat "$dove/$mie")" = mie ] || { echo "$mie non è più quello dell'utente"; exit 1; }

for nome in 'a|b' 'a\b' 'a"b' $'a\tb' 日本; do
  if "$avvia" "$base/$nome" >"$base/uscita" 2>"$base/errori"; then echo "accettata: $nome"; exit 1; fi
  grep -q '^Il percorso contiene' "$base/errori" || { cat "$base/errori"; exit 1; }
done

cd "$base"
"$avvia" "$1" build >uscita
ln -s "$1" build/bin
sed -n 's/^    \$ //p' "$pagina" >comando
[ -s comando ]
bash -o pipefail comando >uscita || { cat uscita; echo "la sessione di $pagina"; exit 1; }
sed -n '/^    \$/d; s/^    //p' "$pagina" | grep -v … | while read -r riga; do
  grep -qxF "$riga" uscita || { echo "$pagina: «$riga» non è detto"; exit 1; }
done
