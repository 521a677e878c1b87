#!/bin/bash
# Start time of the desktop program, seen from outside: from exec until its
# main window is mapped on a private Xvfb display, with a known data folder.
# usage: tests/bench/gui_start.sh build/bin/tarnquill [runs]
set -u
bin=$(realpath "$1")
runs=${2:-5}
scratch=$(mktemp -d)
trap 'kill "$xvfb" 2>/dev/null; rm -rf "$scratch"' EXIT
mkdir -p "$scratch/home/Documents/tarnquill/forms" "$scratch/data"
printf '%s\r\n' "$scratch/data" >"$scratch/home/Documents/tarnquill/forms/Tarnquill.stt"

display=:$((90 + RANDOM % 100))
Xvfb "$display" -screen 0 1280x1024x24 >/dev/null 2>&1 &
xvfb=$!
sleep 1
export DISPLAY=$display HOME=$scratch/home

mapped() {
    local id
    id=$(xwininfo -root -tree 2>/dev/null | awk '/Tarnquill": \("tarnquill"/ { print $1; exit }')
    [ -n "$id" ] && xwininfo -id "$id" 2>/dev/null | grep -q IsViewable
}

for i in $(seq "$runs"); do
    t0=$(date +%s%N)
    "$bin" >/dev/null 2>&1 &
    program=$!
    until mapped; do
        if (($(date +%s%N) - t0 > 10000000000)); then
            echo "run $i: no window within 10 s" >&2
            exit 1
        fi
        sleep 0.005
    done
    t1=$(date +%s%N)
    echo "run $i: $(((t1 - t0) / 1000000)) ms to the main window shown"
    kill "$program"
    wait "$program" 2>/dev/null
done
