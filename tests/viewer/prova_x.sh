#!/usr/bin/env bash
# The viewer as the preview drives it, under a virtual display: started in its own folder with
# ostrel.inp, reloaded by Alt+F G in either way of holding Alt, closed by Alt+F4.
# Usage: prova_x.sh OSTREL DRAWING; exit status 77: left out.
set -euo pipefail
for programma in Xvfb openbox xdotool xprop xwininfo; do
  command -v "$programma" >/dev/null || { echo "$programma is missing: left out"; exit 77; }
done
ostrel=$1 disegno=$2
export QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8
unset WAYLAND_DISPLAY

cartella=$(mktemp -d)
figli=()
fine() {
  for pid in "${figli[@]}"; do kill "$pid" 2>/dev/null || true; done
  wait 2>/dev/null || true
  rm -rf "$cartella"
}
trap fine EXIT
errore() { echo "FAILED: $*" >&2; exit 1; }

# Under the sanitizers: what the message bus's own library keeps is not the viewer's.
echo 'leak:libdbus-1' >"$cartella/perdite"
export LSAN_OPTIONS=suppressions=$cartella/perdite:print_suppressions=0

mkfifo "$cartella/schermo"
Xvfb -noreset -displayfd 3 -screen 0 1280x1024x24 3>"$cartella/schermo" 2>/dev/null &
figli+=($!)
read -r -t 20 numero <"$cartella/schermo" || errore "no virtual display"
export DISPLAY=:$numero
openbox --sm-disable 2>/dev/null &
figli+=($!)
grep -q 'SUPPORTING_WM_CHECK.*window id' < <(timeout 20 xprop -root -spy) || errore "no window manager"

mkdir "$cartella/progra" "$cartella/Lavori"
cp "$disegno" "$cartella/Lavori/SezTmpPO.dis"
# The path as the program writes it: backslashes, the folder's case not the host's.
printf '%s\r\n' inutilizzato "${cartella//\//\\}\\lavori\\SezTmpPO.dis" 1350 5250 9500 3900 >"$cartella/progra/ostrel.inp"
(cd "$cartella/progra" && exec "$ostrel" --senza-sorveglianza) &
visore=$!
figli+=($visore)
finestra=$(timeout 20 xdotool search --sync --onlyvisible --name 'U_PO_001.*ostrel' | head -1)
[ -n "$finestra" ] || errore "the drawing is not shown"

# The program's own scale: a twip is a fifteenth of a pixel at least, and the window is on the screen.
eval "$(xdotool getwindowgeometry --shell "$finestra")"
((WIDTH >= 633 && HEIGHT >= 260 && WIDTH * 39 <= HEIGHT * 96 && X > 0 && Y >= 350 && X + WIDTH <= 1280 && Y + HEIGHT <= 1024)) ||
  errore "window at $X,$Y of $WIDTH x $HEIGHT"

timeout 20 xdotool windowactivate --sync "$finestra"
attendi_titolo() {
  grep -q "$1" < <(timeout 20 xprop -id "$finestra" -spy _NET_WM_NAME) ||
    errore "$2: still $(xdotool getwindowname "$finestra")"
}
sed -i 's/U_PO_001/PRIMA/' "$cartella/Lavori/SezTmpPO.dis"
xdotool keydown alt key f key g keyup alt
attendi_titolo 'SEZIONE PRIMA' "Alt held for F and G"
sed -i 's/PRIMA/SECONDA/' "$cartella/Lavori/SezTmpPO.dis"
xdotool key alt+f key g
attendi_titolo 'SEZIONE SECONDA' "Alt+F, then G"
[ "$(xdotool search --onlyvisible --name ostrel | wc -l)" = 1 ] || errore "more than one window"

xdotool key alt+F4
timeout 20 tail --pid="$visore" -f /dev/null || errore "Alt+F4 does not close"
wait "$visore" || errore "exit status $?"
