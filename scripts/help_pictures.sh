#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes the pictures of the help from the real windows, on a virtual display, in every language of the program.
# Needs a release build and what "setup.sh display" installs.
set -euo pipefail
cd "$(dirname "$0")/.."
program=$PWD/build/release/src/ordelin
pictures=$PWD/help/pictures
mkdir -p "$pictures"

# shellcheck source=scripts/virtual_display.sh
. scripts/virtual_display.sh

# find_window TITLE: waits for the window of that title, and sets $window.
find_window() {
    for _ in $(seq 100); do
        window=$(xdotool search --onlyvisible --name "^$1" 2>/dev/null | tail -n 1) && [ -n "$window" ] && break
        sleep 0.1
    done
    if [ -z "$window" ]; then
        echo "There is no window called $1." >&2
        exit 1
    fi
    sleep 1 # Until everything is painted.
}

# shot NAME WINDOW-TITLE: saves the window of that title.
shot() {
    local window=
    find_window "$2"
    import -window "$window" -strip -define png:compression-level=9 +dither -colors 128 "$pictures/$1.png"
}

# mnemonic NUMBER: the underlined letter of a text in the language at hand.
mnemonic() { sed -n "s/^$1=.*&\\(.\\).*/\\L\\1/p" "$texts"; }

# games NAME MODULE: pictures of the other quizzes and of the games, over the first words of the list.
games() {
    local texts=$2 list="$work/vardagsord.gls" quiz yes window=
    yes=$(mnemonic 70050)
    quiz=$(sed -n 's/^63060=//p' "$texts")
    settings "languageFile=$texts\\nplugInUse=1\\n[editor]\\nduplicateCheckBeforeQuiz=0\\n[quiz]\\nplayRight=0\\nplayWrong=0\\norder=0\\nshowResult=0\\nincludeFlaggedWords=1\\n"
    "$program" -- "$list" >"$work/program.log" 2>&1 &
    local pid=$! game
    pids+=("$pid")
    find_window "vardagsord"
    for game in 2-table 3-selftest 4-alternatives 5-hangman 6-pairs 7-contest 8-falling 9-memory; do
        xdotool key "ctrl+alt+${game%%-*}" sleep 1
        case $game in
        2-*) xdotool type --delay 50 "house" && xdotool key Return type --delay 50 "flat" && xdotool key Return sleep 0.5 ;;
        3-*) xdotool key Return sleep 0.5 ;;
        5-*) xdotool type --delay 50 "he" && xdotool key Return sleep 0.5 ;; # Letters of "house".
        7-*) # Two players, the first of whom begins.
            for player in Anna Bo; do
                xdotool type --delay 50 "$player" && xdotool key Return sleep 0.3
            done
            xdotool key Return sleep 1 key Return sleep 0.5
            ;;
        8-*) sleep 1 ;; # Until the word is on its way.
        9-*) xdotool key Return sleep 0.5 ;; # A card.
        esac
        shot "$1-${game#*-}" "$quiz"
        xdotool key Escape sleep 0.5 key "alt+$yes" sleep 0.5
    done
    kill "$pid"
    wait "$pid" 2>/dev/null || true
}

# imports NAME MODULE: the windows of the search for lists and of the import, both when they are done, over the samples;
# the import ignores those in other languages.
imports() {
    local texts=$2 list="$work/vardagsord.gls" search add start title tools search_key search_title
    tools=$(mnemonic 99005)
    search_key=$(mnemonic 133004)
    search_title=$(sed -n 's/^237000=//p' "$texts")
    search=$(mnemonic 235003)
    add=$(mnemonic 237009)
    start=$(mnemonic 235001)
    title=$(sed -n 's/^235000=//p' "$texts")
    settings "languageFile=$texts\\nplugInUse=1\\n[import]\\nuseFilter=1\\nlanguageMatch=1\\n"
    mkdir -p "$work/lists"
    cp samples/*.gls "$work/lists"
    cp samples/vardagsord.gls "$list"
    "$program" -- "$list" >"$work/program.log" 2>&1 &
    local pid=$! window=
    pids+=("$pid")
    find_window "vardagsord"
    xdotool key "alt+$tools" sleep 0.5 key "$search_key" sleep 1 key ctrl+a type --delay 20 "$work/lists"
    xdotool key Return sleep 2
    shot "$1-search" "$search_title"
    xdotool key Escape sleep 0.5 key ctrl+i sleep 1 key "alt+$search" sleep 1 key ctrl+a type --delay 20 "$work/lists"
    xdotool key Return sleep 2 key "alt+$add" sleep 0.5 key Escape sleep 0.5 key "alt+$start" sleep 2
    shot "$1-import" "$title"
    kill "$pid"
    wait "$pid" 2>/dev/null || true
}

# formats NAME MODULE: the preview of a separated text, and what is asked before a list is written as one.
formats() {
    local texts=$2 list="$work/glosor.csv" preview export
    preview=$(sed -n 's/^249000=//p' "$texts")
    export=$(sed -n 's/^250000=//p' "$texts")
    settings "languageFile=$texts\\nplugInUse=1\\n"
    if [ "$1" = en ]; then
        printf 'Swedish;English;Example;No.\n' >"$list"
    else
        printf 'Svenska;Engelska;Exempel;Nr\n' >"$list"
    fi
    printf '%s\n' 'hus;house;;1' '"lägenhet; våning";flat / apartment;;2' 'kök;kitchen;Vi äter i köket.;3' \
        ';;Kapitel 2;' 'trappa;stairs (pl.);;4' >>"$list"
    "$program" -- "$list" >"$work/program.log" 2>&1 &
    local pid=$! window=
    pids+=("$pid")
    shot "$1-preview" "$preview"
    kill "$pid"
    wait "$pid" 2>/dev/null || true
    list=$work/vardagsord.gls
    cp samples/vardagsord.gls "$list"
    "$program" -- "$list" >"$work/program.log" 2>&1 &
    pid=$!
    pids+=("$pid")
    find_window "vardagsord"
    xdotool key ctrl+shift+s sleep 1 key ctrl+a type --delay 20 "$work/copy.csv"
    xdotool key Return sleep 1
    shot "$1-export" "$export"
    kill "$pid"
    wait "$pid" 2>/dev/null || true
}

# language NAME MODULE: all pictures in one language; the titles of its windows come from its own texts.
language() {
    local texts=$2 list="$work/vardagsord.gls" find properties quiz result settings settings_key special table tools yes
    yes=$(mnemonic 70050)
    tools=$(mnemonic 99005)
    settings_key=$(mnemonic 133006)
    find=$(sed -n 's/^210000=//p' "$texts")
    settings=$(sed -n 's/^220000=//p' "$texts")
    properties=$(sed -n 's/^225000=//p' "$texts")
    quiz=$(sed -n 's/^63060=//p' "$texts")
    result=$(sed -n 's/^62122=//p' "$texts")
    special=$(sed -n 's/^346000=//p' "$texts")
    table=$(sed -n 's/^62660=//p' "$texts")
    settings "languageFile=$texts\\nplugInUse=1\\n[editor]\\nduplicateCheckBeforeQuiz=0\\n[quiz]\\nplayRight=0\\nplayWrong=0\\nwordsToQuiz=1\\nnumberOfWords=8\\nrequiz=0\\n[find]\\ndictionary=1\\n[easykey]\\nsubset=2\\ndock=0\\n[Winpos]\\nStatus=1\\nLeft=40\\nTop=40\\nRight=840\\nBottom=600\\n"
    cp samples/vardagsord.gls "$list"
    if [ "$1" = en ]; then # The comments and the names of the languages.
        LC_ALL=C sed -i -e '3s/.*/Everyday words for beginners\r/' -e '4s/.*/Swedish\r/' -e '5s/.*/English\r/' "$list"
    fi
    "$program" -- "$list" >"$work/program.log" 2>&1 &
    local pid=$!
    pids+=("$pid")
    shot "$1-main" "vardagsord"
    xdotool key ctrl+f sleep 0.5 type --delay 50 "ar"
    sleep 1 # Until it has searched.
    shot "$1-find" "$find"
    xdotool key Escape sleep 0.5 key alt+Return sleep 1 key ctrl+Tab
    shot "$1-properties" "$properties"
    xdotool key Escape sleep 0.5 key "alt+$tools" sleep 0.5 key "$settings_key"
    shot "$1-settings" "$settings"
    xdotool key Escape sleep 0.5 key F9
    shot "$1-special" "$special"
    xdotool key F9 sleep 0.5 key F9 sleep 0.5 key ctrl+p
    shot "$1-tables" "$table"
    xdotool key Escape sleep 0.5 key ctrl+alt+1 sleep 1
    for answer in 1 2 3; do
        [ "$answer" -ne 2 ] || shot "$1-quiz" "$quiz" # The first one is in its panel.
        xdotool type --delay 50 "x"
        xdotool key Return sleep 0.7 key Return sleep 0.7
    done
    xdotool key Escape sleep 0.5 key "alt+$yes"
    shot "$1-result" "$result"
    kill "$pid"
    wait "$pid" 2>/dev/null || true
    games "$@"
    imports "$@"
    formats "$@"
}

language sv "$PWD/src/resources/swedish.ordmod"
language en "$PWD/modules/english.ordmod"
