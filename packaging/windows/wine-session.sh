# Starts a Windows on a display of its own, which ends with the script; read with ".". Sets and makes $work, a
# folder for what the script needs.
# shellcheck shell=sh
work=$(mktemp -d)
display=
windows=
end_session() {
  [ -z "$windows" ] || kill "$windows" 2>/dev/null || true
  wineserver -k -w 2>/dev/null || true
  [ -z "$display" ] || kill "$display" 2>/dev/null || true
  umount "$work"/*-disk 2>/dev/null || true
  rm -rf --one-file-system "$work"
}
trap end_session EXIT

# Whoever starts Wine for the first time is not asked to download anything.
export WINEPREFIX="$work/wine" WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe=" LC_ALL=C.UTF-8
Xvfb -displayfd 3 -screen 0 1600x1200x24 -nolisten tcp 3>"$work/display" 2>/dev/null &
display=$!
until [ -s "$work/display" ]; do
  kill -0 "$display"
  sleep 0.1
done
DISPLAY=:$(cat "$work/display")
export DISPLAY
wineboot -i >/dev/null 2>&1
# The font of menus and boxes: Wine's own Tahoma is none that Qt draws. A LOGFONT: 12 pixels, normal, the name.
font=f4ffffff000000000000000000000000900100000000000000000022$(printf 'Liberation Sans' | iconv -t UTF-16LE | xxd -p)
font=$(printf '%-184s' "$font" | tr ' ' 0)
for use in CaptionFont IconFont MenuFont MessageFont SmCaptionFont StatusFont; do
  wine reg add 'HKCU\Control Panel\Desktop\WindowMetrics' /v $use /t REG_BINARY /d "$font" /f >/dev/null
done
# While one program waits, Windows need not be started for each of the others.
mkfifo "$work/pause"
wine cmd <"$work/pause" >/dev/null 2>&1 &
windows=$!
exec 9>"$work/pause"
